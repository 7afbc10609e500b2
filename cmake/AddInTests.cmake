# The tests of the add-in, which Wine runs: one program for each folder of tests/addin, and the cases of tests/rig, which
# are compared with the driver of the preset dev.

include(GoogleTest)

# Debian has GoogleTest for other systems as sources only.
set(googletest /usr/src/googletest)
add_library(addin_googletest STATIC EXCLUDE_FROM_ALL "${googletest}/googletest/src/gtest-all.cc"
    "${googletest}/googlemock/src/gmock-all.cc" "${googletest}/googlemock/src/gmock_main.cc")
target_include_directories(addin_googletest SYSTEM PUBLIC "${googletest}/googletest/include"
    "${googletest}/googlemock/include")
target_include_directories(addin_googletest PRIVATE "${googletest}/googletest" "${googletest}/googlemock")
set_target_properties(addin_googletest PROPERTIES UNITY_BUILD OFF)

set(tests "${PROJECT_SOURCE_DIR}/tests")
foreach(part base com win32 dll)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${tests}/addin/${part}/*.cpp")
    if(part STREQUAL "dll")
        list(APPEND sources "${tests}/addin/com/FakeObject.cpp" "${tests}/addin/win32/ScratchFolder.cpp")
    elseif(part STREQUAL "win32")
        # A person at the forms is the one whom the stand-in has, too.
        set(standin "${PROJECT_SOURCE_DIR}/src/standin")
        list(APPEND sources "${tests}/addin/com/FakeObject.cpp" "${standin}/WindowEyes.cpp" "${standin}/WindowHands.cpp")
    endif()
    if(NOT sources)
        continue()
    endif()
    set(program addin_${part}_tests)
    add_executable(${program} ${sources})
    target_include_directories(${program} PRIVATE "${tests}")
    target_link_libraries(${program} PRIVATE tempodial_options addin_${part} addin_googletest)
    target_compile_options(${program} PRIVATE -Wno-subobject-linkage)
    set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(TEMPODIAL_TESTS_TOGETHER)
        # To start Wine takes longer than most of these tests.
        add_test(NAME addin/${part} WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests"
            COMMAND ${program} --gtest_brief=1 "--gtest_output=xml:addin_${part}.xml")
        set_tests_properties(addin/${part} PROPERTIES TIMEOUT 300 LABELS addin RESOURCE_LOCK registry-of-${part})
    else()
        gtest_discover_tests(${program} TEST_PREFIX "addin/${part}/" DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
            NO_PRETTY_VALUES PROPERTIES TIMEOUT 60 LABELS addin RESOURCE_LOCK registry-of-${part})
    endif()
endforeach()

# These look at the module that is installed, and register it.
add_dependencies(addin_dll_tests Tempodial)
target_link_libraries(addin_dll_tests PRIVATE version)
add_test(NAME addin/exports COMMAND "${PROJECT_SOURCE_DIR}/tools/lint-exports" $<TARGET_FILE:Tempodial>)
set_tests_properties(addin/exports PROPERTIES TIMEOUT 60 LABELS addin)

# The setup program, and what asks for the add-in that it has installed.
add_executable(tempodial-probe "${tests}/packaging/main.cpp")
target_link_libraries(tempodial-probe PRIVATE tempodial_options addin_base)
target_precompile_headers(tempodial-probe REUSE_FROM addin_base)
set_target_properties(tempodial-probe PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_test(NAME packaging/installer COMMAND "${tests}/packaging/installer_test.py")
    set_tests_properties(packaging/installer PROPERTIES TIMEOUT 300 COST 30 LABELS packaging
        RESOURCE_LOCK registry-of-dll)
endif()

file(GLOB cases CONFIGURE_DEPENDS "${tests}/rig/cases/*.jsonl")
foreach(case IN LISTS cases)
    cmake_path(GET case STEM name)
    add_test(NAME rig/${name} COMMAND "${tests}/rig/compare-all" "${case}")
    list(APPEND comparisons rig/${name})
endforeach()
add_test(NAME rig/faults COMMAND "${tests}/rig/compare-all" --faults 30 "${tests}/rig/cases/morning.jsonl")
set_tests_properties(${comparisons} rig/faults PROPERTIES TIMEOUT 600 LABELS rig
    ENVIRONMENT "TEMPODIAL_WINDOWS_BUILD=${CMAKE_BINARY_DIR}")
set_tests_properties(rig/faults rig/thousand-windows PROPERTIES COST 20)
set_tests_properties(rig/faults PROPERTIES PROCESSORS 2)

# The driver with the add-in for Windows, as a program of its own; the one without it is that of dev.
file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/bin/tempodial-drive-wine" CONTENT
"#!/bin/bash
TEMPODIAL_ADDIN_DIR='${CMAKE_BINARY_DIR}/bin' exec '${PROJECT_SOURCE_DIR}/tools/with-wine' \"\${TEMPODIAL_NATIVE_BUILD:-${PROJECT_SOURCE_DIR}/build/dev}/bin/tempodial-drive\" --addin wine \"$@\"
"
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
