# The tests of what the install folder holds; they read it with tools that aren't ours.

# The Debian packages of Python modules belong to the system's own interpreter.
find_program(SYSTEM_PYTHON3 python3 PATHS /usr/bin NO_DEFAULT_PATH)
mark_as_advanced(SYSTEM_PYTHON3)
if(NOT SYSTEM_PYTHON3)
    set(SYSTEM_PYTHON3 "${Python3_EXECUTABLE}")
endif()

file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/resources/*_test.py")
foreach(script IN LISTS scripts)
    cmake_path(GET script STEM name)
    add_test(NAME resources/${name} COMMAND "${SYSTEM_PYTHON3}" -B "${script}")
    set_tests_properties(resources/${name} PROPERTIES TIMEOUT 60 LABELS resources
        ENVIRONMENT "TEMPODIAL_SHARE_DIR=${CMAKE_BINARY_DIR}/share/tempodial")
endforeach()
