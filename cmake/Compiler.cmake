# How all of the product's own code is compiled: the target `tempodial_options`, which every folder links.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

# With CMAKE_UNITY_BUILD so many sources of a folder are compiled as one: they share the headers, which are most of it.
set(CMAKE_UNITY_BUILD_BATCH_SIZE 10)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

# ccache is used when it is there. Precompiled headers need the two kinds of sloppiness.
find_program(CCACHE ccache)
mark_as_advanced(CCACHE)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE}")
endif()

add_library(tempodial_options INTERFACE)
target_include_directories(tempodial_options INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_options(tempodial_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-qual
    -Wextra-semi -Wformat=2 -Wimplicit-fallthrough -Wundef -Wvla
    # Designated initializers name the members that matter; the others have their values where they are declared.
    -Wno-missing-field-initializers
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wduplicated-branches -Wlogical-op -Wsuggest-override>
    $<$<BOOL:${TEMPODIAL_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(tempodial_options INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND (NOT CMAKE_BUILD_TYPE STREQUAL "Debug" OR TEMPODIAL_SANITIZERS))
    # With optimisation GCC 12 sees overlapping copies and unset values in the standard library that aren't there.
    target_compile_options(tempodial_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    # Start-up pays for each library that is loaded, so only those in use are.
    target_link_options(tempodial_options INTERFACE -Wl,--as-needed)
endif()

if(TEMPODIAL_SANITIZERS)
    add_compile_options(-fsanitize=${TEMPODIAL_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # What the address sanitizer or the processor finds anyway; without it the build takes half the time.
    add_compile_options(-fno-sanitize=null,alignment,vptr,object-size)
    add_link_options(-fsanitize=${TEMPODIAL_SANITIZERS})
endif()
