# How every file is compiled: the language, the warnings, and whatever the same bits everywhere depend on.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
endif()

if("${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${CMAKE_BUILD_TYPE}}" MATCHES "-ffast-math|-Ofast|-funsafe-math|-march=|-mfma")
    message(FATAL_ERROR "The compiler flags change numbers: ${CMAKE_MATCH_0} must go.")
endif()
add_compile_options(-ffp-contract=off)
add_compile_definitions(VANTELOS_VERSION="${PROJECT_VERSION}")

add_compile_options(
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast
    -Wcast-align -Wcast-qual -Wnon-virtual-dtor -Woverloaded-virtual -Wundef -Wunused -Wformat=2
    -Wimplicit-fallthrough -Wextra-semi)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 warns falsely of uninitialised variants and regular expressions; Clang's build watches in its place.
    add_compile_options(-Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wredundant-decls -Wno-maybe-uninitialized)
else()
    add_compile_options(-Wconditional-uninitialized)
endif()

if(VANTELOS_SANITIZERS)
    add_compile_options(-fsanitize=${VANTELOS_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VANTELOS_SANITIZERS})
endif()
if(VANTELOS_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
