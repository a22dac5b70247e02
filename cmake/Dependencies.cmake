# Every library and tool that Quillmere is built with, in one place.
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Qml Quick QuickControls2)
find_package(ICU REQUIRED COMPONENTS uc i18n)
find_package(OpenSSL REQUIRED COMPONENTS Crypto)
find_package(PkgConfig REQUIRED)
pkg_check_modules(XXHASH REQUIRED IMPORTED_TARGET libxxhash)

if(UNIX AND NOT APPLE)
    find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
    pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0)
    pkg_check_modules(SYSTEMD REQUIRED IMPORTED_TARGET libsystemd)
endif()

if(QUILLMERE_TESTS)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test QuickTest)
    find_package(GTest REQUIRED)
endif()

# The symbol font is made with fontTools. The system's Python is asked first: one that stands before it on the
# search path (a version manager's, an environment's) seldom has the library.
function(quillmere_find_font_python)
    foreach(candidate IN ITEMS "$CACHE{QUILLMERE_PYTHON}" /usr/bin/python3 python3)
        if(NOT candidate)
            continue()
        endif()
        execute_process(COMMAND "${candidate}" -c "import fontTools" RESULT_VARIABLE failure OUTPUT_QUIET ERROR_QUIET)
        if(failure STREQUAL "0")
            set(QUILLMERE_PYTHON "${candidate}" CACHE STRING "A Python 3 that has fontTools" FORCE)
            return()
        endif()
    endforeach()
    message(FATAL_ERROR "No Python 3 with fontTools found (Debian: python3-fonttools). Set QUILLMERE_PYTHON to one.")
endfunction()
quillmere_find_font_python()
