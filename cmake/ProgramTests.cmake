# The tests of the program as people get it, with its documents and what it is installed with.

file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/program/*_test.py")
foreach(script IN LISTS scripts)
    cmake_path(GET script STEM name)
    add_test(NAME program/${name} COMMAND "${Python3_EXECUTABLE}" -B "${script}")
    set_tests_properties(program/${name} PROPERTIES TIMEOUT 300 LABELS program
        ENVIRONMENT "TEMPODIAL_EXECUTABLE=${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/tempodial;TEMPODIAL_BUILD_DIR=${CMAKE_BINARY_DIR}")
endforeach()
