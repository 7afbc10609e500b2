# The lints, and the tests that show that each of them can fail, as tests of their own.

set(lints "${PROJECT_SOURCE_DIR}/tools")

foreach(lint includes files format)
    add_test(NAME lint/${lint} COMMAND "${Python3_EXECUTABLE}" -B "${lints}/lint-${lint}")
    set_tests_properties(lint/${lint} PROPERTIES TIMEOUT 120 LABELS lint)
endforeach()

file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/tools/*_test.py")
foreach(script IN LISTS scripts)
    cmake_path(GET script STEM name)
    add_test(NAME tools/${name} COMMAND "${Python3_EXECUTABLE}" -B "${script}")
    set_tests_properties(tools/${name} PROPERTIES TIMEOUT 120 LABELS lint)
endforeach()
