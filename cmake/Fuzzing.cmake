# With TEMPODIAL_FUZZING one program of libFuzzer for each file of tests/fuzz: XmlFuzzTest.cpp gives fuzz/Xml. The target
# `fuzzers` builds them all. Without it the same files are tests of what their corpora hold.

file(GLOB sources CONFIGURE_DEPENDS "${tests}/fuzz/*FuzzTest.cpp")
add_custom_target(fuzzers)
# What several targets do.
add_library(fuzz_helpers STATIC EXCLUDE_FROM_ALL "${tests}/fuzz/SourceFuzz.cpp")
target_link_libraries(fuzz_helpers PUBLIC test_support review sources slots host_system)
foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    string(REPLACE "FuzzTest" "" name "${name}")
    add_executable(fuzz_${name} EXCLUDE_FROM_ALL "${source}")
    target_compile_definitions(fuzz_${name} PRIVATE TEMPODIAL_FUZZING)
    target_link_libraries(fuzz_${name} PRIVATE fuzz_helpers test_support engine ${host} forms track track_x11)
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    set_target_properties(fuzz_${name} PROPERTIES OUTPUT_NAME ${name}
        RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/fuzz")
    add_dependencies(fuzzers fuzz_${name})
endforeach()
