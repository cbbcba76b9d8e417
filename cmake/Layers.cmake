# A file's layer follows from its folder and name. Each layer has a tree of links to its own headers in the build
# folder, and a library sees the trees of its own layer and of those below: an include that points upwards finds no
# file.

set(VANTELOS_LOGIC_FOLDERS
    model prediction analysis power special workouts splits course weather tables datafiles help)
set(VANTELOS_FORMS_FOLDERS forms program)
set(VANTELOS_CONSOLE_FOLDERS console)
set(VANTELOS_DESKTOP_FOLDERS desktop)
set(VANTELOS_LAYERS logic forms console desktop)

# Sets VANTELOS_<layer>_SOURCES, VANTELOS_<layer>_HEADERS and, where there is one, VANTELOS_<layer>_MAIN.
function(vantelos_sort_files)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS
        RELATIVE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/src/*.cpp" "${PROJECT_SOURCE_DIR}/src/*.h")
    foreach(file IN LISTS files)
        set(layer "")
        if(file MATCHES "^([a-z]+)/([a-z0-9_]+)\\.(cpp|h)$")
            set(folder "${CMAKE_MATCH_1}")
            set(name "${CMAKE_MATCH_2}")
            set(ending "${CMAKE_MATCH_3}")
            if(folder IN_LIST VANTELOS_LOGIC_FOLDERS)
                set(layer logic)
                if(name MATCHES "_form$")
                    set(layer forms)
                endif()
            elseif(folder IN_LIST VANTELOS_FORMS_FOLDERS)
                set(layer forms)
            elseif(folder IN_LIST VANTELOS_CONSOLE_FOLDERS)
                set(layer console)
            elseif(folder IN_LIST VANTELOS_DESKTOP_FOLDERS)
                set(layer desktop)
            endif()
        endif()
        if(NOT layer)
            message(FATAL_ERROR "src/${file} belongs to no layer: see the folders in cmake/Layers.cmake.")
        endif()
        if(name STREQUAL "main")
            set(VANTELOS_${layer}_MAIN "${PROJECT_SOURCE_DIR}/src/${file}" PARENT_SCOPE)
        elseif(ending STREQUAL "h")
            list(APPEND ${layer}_HEADERS "${file}")
        else()
            list(APPEND ${layer}_SOURCES "${PROJECT_SOURCE_DIR}/src/${file}")
        endif()
    endforeach()
    foreach(layer IN LISTS VANTELOS_LAYERS)
        set(VANTELOS_${layer}_SOURCES "${${layer}_SOURCES}" PARENT_SCOPE)
        set(VANTELOS_${layer}_HEADERS "${${layer}_HEADERS}" PARENT_SCOPE)
    endforeach()
endfunction()

# Lays the trees of links anew, so that none is stale.
function(vantelos_link_headers)
    file(REMOVE_RECURSE "${PROJECT_BINARY_DIR}/include")
    foreach(layer IN LISTS VANTELOS_LAYERS)
        set(tree "${PROJECT_BINARY_DIR}/include/${layer}")
        file(MAKE_DIRECTORY "${tree}")
        foreach(header IN LISTS VANTELOS_${layer}_HEADERS)
            cmake_path(GET header PARENT_PATH folder)
            file(MAKE_DIRECTORY "${tree}/${folder}")
            file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${header}" "${tree}/${header}" SYMBOLIC)
        endforeach()
    endforeach()
endfunction()

# vantelos_add_library(name layer what-it-stands-on...): a layer without a source file yet is headers alone.
function(vantelos_add_library name layer)
    if(VANTELOS_${layer}_SOURCES)
        add_library(${name} STATIC ${VANTELOS_${layer}_SOURCES})
        set(reach PUBLIC)
    else()
        add_library(${name} INTERFACE)
        set(reach INTERFACE)
    endif()
    target_include_directories(${name} ${reach} "${PROJECT_BINARY_DIR}/include/${layer}")
    target_link_libraries(${name} ${reach} ${ARGN})
endfunction()

# One set of libraries, vantelos_logic and so on; the benchmarks make a second one with a suffix.
function(vantelos_add_libraries suffix)
    vantelos_add_library(vantelos_logic${suffix} logic)
    vantelos_add_library(vantelos_forms${suffix} forms vantelos_logic${suffix} pugixml::pugixml)
    vantelos_add_library(vantelos_console${suffix} console
        vantelos_forms${suffix} CLI11::CLI11 nlohmann_json::nlohmann_json Threads::Threads)
endfunction()

# The windows: their forms are compiled from the .ui files beside the sources.
function(vantelos_add_desktop)
    vantelos_add_library(vantelos_desktop desktop vantelos_forms Qt6::Widgets Qt6::PrintSupport Qt6::Svg)
    set_target_properties(vantelos_desktop PROPERTIES AUTOMOC ON)
    file(GLOB forms CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/desktop/*.ui")
    qt_wrap_ui(headers ${forms})
    target_sources(vantelos_desktop PRIVATE ${headers})
    target_include_directories(vantelos_desktop PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    target_compile_definitions(vantelos_desktop PUBLIC QT_NO_FOREACH)
    if(VANTELOS_SANITIZERS)
        # nothing but the calls that the form files are compiled to, which take minutes to compile with checks
        set_source_files_properties("${PROJECT_SOURCE_DIR}/src/desktop/layouts.cpp" PROPERTIES
            COMPILE_OPTIONS "-fno-sanitize=all;-O0")
    endif()
endfunction()

vantelos_sort_files()
