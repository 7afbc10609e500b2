# The tests of what the install folder holds; they read it with tools that aren't ours.

file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/resources/*_test.py")
foreach(script IN LISTS scripts)
    cmake_path(GET script STEM name)
    add_test(NAME resources/${name} COMMAND "${Python3_EXECUTABLE}" -B "${script}")
    set_tests_properties(resources/${name} PROPERTIES TIMEOUT 60 LABELS resources
        ENVIRONMENT "TEMPODIAL_SHARE_DIR=${CMAKE_BINARY_DIR}/share/tempodial")
endforeach()
