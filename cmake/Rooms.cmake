# The rooms of src/: a folder's C++ is a static library of its own, its QML goes into the one module.

define_property(GLOBAL PROPERTY QUILLMERE_TOOLS_BUILT BRIEF_DOCS "The tools, by folder, in the order of their lines")
define_property(GLOBAL PROPERTY QUILLMERE_QML BRIEF_DOCS "The QML of all rooms, relative to src/")
define_property(GLOBAL PROPERTY QUILLMERE_QML_TYPES BRIEF_DOCS "The headers that tell QML of the rooms' types, relative to src/")
define_property(GLOBAL PROPERTY QUILLMERE_HEADER_FOLDERS BRIEF_DOCS "The folders that hold a header, relative to src/")

# Adds a room's QML and what QML is told of its types (its header whose name ends in QmlTypes) to the module, and its
# folders to those that registered types are looked up in by base name.
function(quillmere_add_to_module folder)
    file(GLOB_RECURSE qml RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS ${folder}/*.qml)
    file(GLOB_RECURSE headers RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS ${folder}/*.h)
    foreach(header IN LISTS headers)
        cmake_path(GET header PARENT_PATH header_folder)
        set_property(GLOBAL APPEND PROPERTY QUILLMERE_HEADER_FOLDERS ${header_folder})
    endforeach()
    set_property(GLOBAL APPEND PROPERTY QUILLMERE_QML ${qml})
    list(FILTER headers INCLUDE REGEX "QmlTypes\\.h$")
    set_property(GLOBAL APPEND PROPERTY QUILLMERE_QML_TYPES ${headers})
endfunction()

# quillmere_add_library(target source...): a library without Gui and Qml, so that it is tested without a display.
function(quillmere_add_library target)
    set(sources ${ARGN})
    list(FILTER sources EXCLUDE REGEX "QmlTypes\\.h$")
    qt_add_library(${target} STATIC ${sources})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${target} PUBLIC Qt6::Core PRIVATE quillmere_options)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    qt_extract_metatypes(${target})
endfunction()

# quillmere_add_room(folder LINKS target...): the library quillmere_<folder> of the folder and the rooms inside it.
function(quillmere_add_room folder)
    cmake_parse_arguments(room "" "" "LINKS" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    quillmere_add_library(quillmere_${folder} ${sources})
    target_precompile_headers(quillmere_${folder} REUSE_FROM quillmere_base)
    target_link_libraries(quillmere_${folder} PUBLIC ${room_LINKS})
    quillmere_add_to_module(${folder})
endfunction()

# quillmere_add_tool(folder): a room that builds on the floors below the tools and on no other tool. Its test program is
# made from the folder of that name in tests/.
function(quillmere_add_tool folder)
    quillmere_add_room(${folder} LINKS quillmere_activity)
    set_property(GLOBAL APPEND PROPERTY QUILLMERE_TOOLS_BUILT ${folder})
endfunction()
