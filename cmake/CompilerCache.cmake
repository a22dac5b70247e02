# Compiles through ccache where it is installed, unless a launcher is already chosen.
find_program(QUILLMERE_CCACHE ccache)
mark_as_advanced(QUILLMERE_CCACHE)

if(QUILLMERE_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Without this sloppiness ccache never reuses a file that was compiled with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
        "${QUILLMERE_CCACHE}")
endif()
