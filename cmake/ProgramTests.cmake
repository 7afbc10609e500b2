# The tests of the program as people get it, with its documents and what it is installed with.

file(GLOB scripts CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/program/*_test.py")
foreach(script IN LISTS scripts)
    cmake_path(GET script STEM name)
    add_test(NAME program/${name} COMMAND "${Python3_EXECUTABLE}" -B "${script}")
    set_tests_properties(program/${name} PROPERTIES TIMEOUT 300 LABELS program
        ENVIRONMENT "TEMPODIAL_EXECUTABLE=${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/tempodial;TEMPODIAL_BUILD_DIR=${CMAKE_BINARY_DIR}")
endforeach()

# The rig's cases once more, done at the windows of the desktop program; nobody opens a thousand of those.
if(TARGET tempodial-desktop-drive)
    file(GLOB cases CONFIGURE_DEPENDS
        "${PROJECT_SOURCE_DIR}/tests/rig/cases/*.jsonl" "${PROJECT_SOURCE_DIR}/tests/desktop/cases/*.jsonl")
    list(FILTER cases EXCLUDE REGEX "/thousand-windows\\.jsonl$")
    foreach(case IN LISTS cases)
        cmake_path(GET case STEM name)
        add_test(NAME desktop/cases/${name}
            COMMAND "${Python3_EXECUTABLE}" -B "${PROJECT_SOURCE_DIR}/tests/rig/compare-all" --desktop "${case}")
        set_tests_properties(desktop/cases/${name} PROPERTIES TIMEOUT 300 LABELS desktop
            ENVIRONMENT "TEMPODIAL_NATIVE_BUILD=${CMAKE_BINARY_DIR}")
    endforeach()
    # And what the tests of scenarios do.
    add_test(NAME desktop/kept COMMAND "${Python3_EXECUTABLE}" -B "${PROJECT_SOURCE_DIR}/tests/rig/compare-kept"
        "$<TARGET_FILE:scenario_tests>")
    set_tests_properties(desktop/kept PROPERTIES TIMEOUT 900 PROCESSORS 2 LABELS desktop
        ENVIRONMENT "TEMPODIAL_NATIVE_BUILD=${CMAKE_BINARY_DIR}")
endif()
