# quillmere_options: what every target of ours is compiled with. Link it PRIVATE.
add_library(quillmere_options INTERFACE)

target_compile_options(quillmere_options INTERFACE -Wall -Wextra -Wshadow -Wconversion)
if(QUILLMERE_WARNINGS_AS_ERRORS)
    target_compile_options(quillmere_options INTERFACE -Werror)
endif()

target_compile_definitions(quillmere_options INTERFACE QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Sanitizers hold for the whole program or not at all, generated code and plugins included.
if(QUILLMERE_SANITIZE)
    add_compile_options("-fsanitize=${QUILLMERE_SANITIZE}" -fno-sanitize-recover=undefined)
    add_link_options("-fsanitize=${QUILLMERE_SANITIZE}")
    # Qt's headers contain a fence, which the thread sanitizer does not follow; GCC says so in every file. And what the
    # sanitizer adds to the code makes GCC take moved records for uninitialised ones.
    if(QUILLMERE_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(quillmere_options INTERFACE -Wno-tsan -Wno-maybe-uninitialized)
    endif()
endif()

# The C++ that Qt generates from QML and for type registration shadows names and converts as it likes, so it is
# compiled without warnings. Call this after qt_add_qml_module.
function(quillmere_silence_generated_qml_code target)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "/qmlcache/|_qmltyperegistrations\\.cpp$")
    set_property(SOURCE ${sources} TARGET_DIRECTORY ${target} APPEND PROPERTY COMPILE_OPTIONS -w)
endfunction()
