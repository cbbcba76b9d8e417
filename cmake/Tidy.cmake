# The target `tidy`: clang-tidy over every source file that it has not passed since the file, a header of ours that it
# reads, or the list of checks last changed.

find_program(CLANG_TIDY clang-tidy REQUIRED)

function(vantelos_tidy library)
    foreach(source IN LISTS ARGN)
        cmake_path(RELATIVE_PATH source BASE_DIRECTORY "${PROJECT_SOURCE_DIR}/src" OUTPUT_VARIABLE name)
        set(passed "${PROJECT_BINARY_DIR}/tidy/${name}.passed")
        cmake_path(GET passed PARENT_PATH folder)
        file(MAKE_DIRECTORY "${folder}")
        add_custom_command(
            OUTPUT "${passed}"
            DEPENDS "${source}" "${PROJECT_SOURCE_DIR}/.clang-tidy"
            DEPFILE "${passed}.d"
            # GCC's warnings are the compiler's business, and Clang does not know all of them.
            COMMAND "${CLANG_TIDY}" --quiet -p "${PROJECT_BINARY_DIR}"
                --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-error "${source}"
            COMMAND "${CMAKE_CXX_COMPILER}" -std=c++20 -MM -MT "tidy/${name}.passed" -MF "${passed}.d"
                "-I$<JOIN:$<TARGET_PROPERTY:${library},INCLUDE_DIRECTORIES>,;-I>" "${source}"
            COMMAND "${CMAKE_COMMAND}" -E touch "${passed}"
            COMMENT "clang-tidy src/${name}"
            COMMAND_EXPAND_LISTS
            VERBATIM)
        set_property(GLOBAL APPEND PROPERTY VANTELOS_TIDY_PASSED "${passed}")
    endforeach()
endfunction()

foreach(layer logic forms console)
    vantelos_tidy(vantelos_${layer} ${VANTELOS_${layer}_SOURCES})
endforeach()
vantelos_tidy(vantelos-console ${VANTELOS_console_MAIN})
if(VANTELOS_DESKTOP)
    vantelos_tidy(vantelos_desktop ${VANTELOS_desktop_SOURCES})
    vantelos_tidy(vantelos ${VANTELOS_desktop_MAIN})
endif()

get_property(passed GLOBAL PROPERTY VANTELOS_TIDY_PASSED)
add_custom_target(tidy DEPENDS ${passed})
if(VANTELOS_DESKTOP)
    add_dependencies(tidy vantelos_desktop)   # whose forms are compiled to headers first
endif()
