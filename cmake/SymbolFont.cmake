# The symbol font: built from the table of symbols, the drawings of Bootstrap Icons and our own.

find_path(QUILLMERE_BOOTSTRAP_ICONS_DIR NAMES folder-fill.svg
    PATHS /usr/share/bootstrap-icons/svg /usr/local/share/bootstrap-icons/svg
        /opt/homebrew/share/bootstrap-icons/svg
    NO_DEFAULT_PATH DOC "Folder of the bootstrap-icons SVG files")

# Sets out_python to a Python 3 that has what the font script uses of fontTools, or ends with what to install.
function(quillmere_require_font_python out_python)
    set(python "${QUILLMERE_PYTHON}")
    if(NOT python)
        find_package(Python3 REQUIRED COMPONENTS Interpreter)
        set(python "${Python3_EXECUTABLE}")
    endif()
    execute_process(
        COMMAND "${python}" -c "import fontTools.fontBuilder, fontTools.pens.cu2quPen, fontTools.svgLib.path"
        RESULT_VARIABLE failure OUTPUT_QUIET ERROR_QUIET)
    if(NOT failure STREQUAL "0")
        message(FATAL_ERROR "The symbol font needs fontTools, which ${python} does not have. "
            "Install it (Debian: apt-get install python3-fonttools), "
            "or set QUILLMERE_PYTHON to a Python 3 that has it.")
    endif()
    set(${out_python} "${python}" PARENT_SCOPE)
endfunction()

# Sets out_drawings to the SVG files that the table names. A name without a file is left to the script, whose
# message tells the line.
function(quillmere_symbol_drawings table own_dir out_drawings)
    file(STRINGS "${table}" rows REGEX "^[^#]")
    set(drawings)
    foreach(row IN LISTS rows)
        if(row MATCHES "\tbootstrap:([a-z0-9-]+)\t")
            set(drawing "${QUILLMERE_BOOTSTRAP_ICONS_DIR}/${CMAKE_MATCH_1}.svg")
        elseif(row MATCHES "\town:([a-z0-9-]+)\t")
            set(drawing "${own_dir}/${CMAKE_MATCH_1}.svg")
        else()
            continue()
        endif()
        if(EXISTS "${drawing}")
            list(APPEND drawings "${drawing}")
        endif()
    endforeach()
    list(REMOVE_DUPLICATES drawings)
    set(${out_drawings} "${drawings}" PARENT_SCOPE)
endfunction()

# Adds the build step and the target quillmere_symbol_font. The two variables are set to the font and to the
# C++ table of its symbols, which stands below ${PROJECT_BINARY_DIR}/generated and is included as
# "controls/symbols/SymbolTable.h". A target of another directory that uses either must depend on
# quillmere_symbol_font.
function(quillmere_add_symbol_font out_font out_header)
    if(NOT QUILLMERE_BOOTSTRAP_ICONS_DIR)
        message(FATAL_ERROR "The symbol font needs the SVG files of Bootstrap Icons. "
            "Install them (Debian: apt-get install bootstrap-icons), "
            "or set QUILLMERE_BOOTSTRAP_ICONS_DIR to the folder that holds folder-fill.svg.")
    endif()
    quillmere_require_font_python(python)

    set(tools "${PROJECT_SOURCE_DIR}/tools/symbols")
    set(symbols "${PROJECT_SOURCE_DIR}/src/controls/symbols")
    set(generated "${PROJECT_BINARY_DIR}/generated/controls/symbols")
    set(font "${generated}/QuillmereSymbols.ttf")
    set(header "${generated}/SymbolTable.h")

    # The table tells which drawings the font depends on, so a change of it needs a new configure run.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${symbols}/symbols.tsv")
    quillmere_symbol_drawings("${symbols}/symbols.tsv" "${symbols}/own" drawings)

    # -B: no bytecode is left in the source tree.
    add_custom_command(OUTPUT "${font}" "${header}"
        COMMAND "${python}" -B "${tools}/make_symbol_font.py"
            --table "${symbols}/symbols.tsv" --bootstrap-dir "${QUILLMERE_BOOTSTRAP_ICONS_DIR}"
            --own-dir "${symbols}/own" --font-out "${font}" --header-out "${header}"
        DEPENDS "${tools}/make_symbol_font.py" "${tools}/svg_outline.py" "${symbols}/symbols.tsv" ${drawings}
        COMMENT "Making the symbol font" VERBATIM)
    add_custom_target(quillmere_symbol_font DEPENDS "${font}" "${header}")

    set(${out_font} "${font}" PARENT_SCOPE)
    set(${out_header} "${header}" PARENT_SCOPE)
endfunction()
