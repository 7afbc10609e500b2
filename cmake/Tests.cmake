# One test program for each folder of tests/ that holds sources: tests/engine/worklog gives engine_worklog_tests.
# tests/support is the library that all of them use.

include(GoogleTest)
find_package(GTest REQUIRED)
# The system's own Python comes first: it is the one that has the Debian packages.
find_program(Python3_EXECUTABLE python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

set(tests "${PROJECT_SOURCE_DIR}/tests")

# How the tests are compiled.
add_library(test_options INTERFACE)
target_link_libraries(test_options INTERFACE tempodial_options GTest::gmock GTest::gtest GTest::gmock_main)
target_include_directories(test_options INTERFACE "${tests}" "${tests}/support")
target_compile_definitions(test_options INTERFACE
    TEMPODIAL_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    TEMPODIAL_EXECUTABLE="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/tempodial"
    TEMPODIAL_SHARE_DIR="${CMAKE_BINARY_DIR}/share/tempodial"
    TEST_DATA_DIR="${tests}/data")
# A fixture may hold what is local to its source, which looks like a header where several are compiled as one.
target_compile_options(test_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
if(TEMPODIAL_SANITIZERS)
    # What the tests do themselves needs no speed, and no proof of what is undefined: that is the product's. They compile
    # in a third of the time without.
    target_compile_options(test_options INTERFACE -O0 $<$<CXX_COMPILER_ID:GNU>:-fno-sanitize=undefined>)
endif()

# The tests' precompiled header, made once.
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/TestHeaders.cpp" CONTENT "")
add_library(test_headers OBJECT "${CMAKE_BINARY_DIR}/TestHeaders.cpp")
target_link_libraries(test_headers PRIVATE test_options)
set(test_headers <gmock/gmock.h> <gtest/gtest.h> <functional> <memory> <string> <vector>)
target_precompile_headers(test_headers PRIVATE ${test_headers})

# The desktop that tests direct the recorder by.
add_library(fake-desktop MODULE "${tests}/support/FakeDesktop.cpp")
target_link_libraries(fake-desktop PRIVATE tempodial_options)
set_target_properties(fake-desktop PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")

tempodial_folder(test_support tests/support EXCEPT FakeDesktop.cpp LINK test_options slots platform base)
# Each test program takes the helpers that it needs, so they stay apart.
set_target_properties(test_support PROPERTIES UNITY_BUILD OFF)
target_precompile_headers(test_support REUSE_FROM test_headers)

file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${tests}/*.cpp")
list(FILTER sources EXCLUDE REGEX "^${tests}/(support/|addin/|packaging/|(.*/)?data/)")
set(folders "")
if(NOT TARGET desktop_qt)
    list(FILTER sources EXCLUDE REGEX "^${tests}/desktop/qt/")
endif()
if(NOT TARGET desktop_drive)
    list(FILTER sources EXCLUDE REGEX "^${tests}/desktop/qt/drive/")
endif()
foreach(source IN LISTS sources)
    cmake_path(GET source PARENT_PATH folder)
    list(APPEND folders "${folder}")
endforeach()
list(REMOVE_DUPLICATES folders)
if(TEMPODIAL_TESTS_OF)
    list(FILTER folders INCLUDE REGEX "^${tests}/(${TEMPODIAL_TESTS_OF})")
endif()

# What the tests of a folder use: no more than they need, so that they can be built while another folder can't. What
# stands behind test_support's helpers comes with it.
function(tempodial_tested_by path result)
    if(path MATCHES "^(base|platform)")
        set(links base)
    elseif(path MATCHES "^portable")
        set(links portable)
    elseif(path MATCHES "^wire/forms")
        set(links wire_forms)
    elseif(path MATCHES "^wire")
        set(links wire)
    elseif(path MATCHES "^slots")
        set(links slots)
    elseif(path MATCHES "^sources")
        set(links sources host_system)
    elseif(path MATCHES "^track/(x11|wayland|bus)")
        string(REPLACE "/" "_" links "${path}")
    elseif(path MATCHES "^review")
        set(links review)
    elseif(path MATCHES "^desktop/qt/drive")
        set(links desktop_drive)
    elseif(path MATCHES "^desktop/qt")
        set(links desktop_qt Qt6::Test host_system)
    elseif(path MATCHES "^desktop")
        set(links desktop)
    elseif(path MATCHES "^forms")
        set(links forms)
    elseif(path MATCHES "^host/files")
        set(links host_files)
    elseif(path MATCHES "^host/settings")
        set(links host_settings)
    elseif(path MATCHES "^track")
        set(links track)
    elseif(path MATCHES "^host/system")
        set(links host_system)
    elseif(path MATCHES "^host/store")
        set(links host_store host_system)
    elseif(path MATCHES "^host/windows")
        set(links host_windows host_store host_system forms)
    elseif(path MATCHES "^engine")
        set(links engine ${host} forms faults)
    elseif(path MATCHES "^(session|faults)")
        set(links session)
    elseif(path MATCHES "^terminal")
        set(links terminal)
    elseif(path MATCHES "^driver")
        set(links driver)
    elseif(path MATCHES "^benchmarks")
        set(links workload host_system)
    elseif(path MATCHES "^fuzz")
        set(links driver cli track_x11)
    else()
        set(links driver cli)
    endif()
    set(${result} ${links} PARENT_SCOPE)
endfunction()

# Tests see the same surroundings everywhere, and a sanitizer's finding ends the test.
set(surroundings TZ=UTC LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
    UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1)

foreach(folder IN LISTS folders)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${tests}" OUTPUT_VARIABLE path)
    string(REPLACE "/" "_" program "${path}")
    string(REGEX REPLACE "^scenarios" "scenario" program "${program}")
    string(APPEND program "_tests")
    file(GLOB programSources CONFIGURE_DEPENDS "${folder}/*.cpp")
    add_executable(${program} ${programSources})
    tempodial_tested_by("${path}" links)
    target_link_libraries(${program} PRIVATE test_support ${links})
    if(path MATCHES "^desktop/qt")
        # Qt has its own way to compile, so that the header of the others doesn't fit.
        target_precompile_headers(${program} PRIVATE ${test_headers} <QApplication> <QTest>)
    else()
        target_precompile_headers(${program} REUSE_FROM test_headers)
    endif()
    set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    if(TEMPODIAL_UNITED_TESTS AND NOT CMAKE_UNITY_BUILD)
        set_target_properties(${program} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 4)
    endif()
    set(timeout 60)
    if(path MATCHES "^scenarios")
        set(timeout 1800) # the long forms under the sanitizers
    elseif(path MATCHES "^(cli|driver|contract)")
        set(timeout 300)
    endif()
    if(TARGET tempodial AND path MATCHES "^(cli|scenarios|track/.*)")
        add_dependencies(${program} tempodial)
    endif()
    if(TARGET tempodial-track AND path MATCHES "^track/(x11|wayland|bus)")
        add_dependencies(${program} tempodial-track)
    endif()
    if(TARGET tempodial-track AND path MATCHES "^track/program")
        add_dependencies(${program} tempodial-track fake-desktop)
    endif()
    if(TARGET tempodial-drive AND path MATCHES "^(driver|scenarios)")
        add_dependencies(${program} tempodial-drive)
    endif()
    # Those of scenarios take long, so they keep all processors busy only as tests of their own.
    if(TEMPODIAL_TESTS_TOGETHER AND NOT path MATCHES "^scenarios")
        set(parts 1)
        if(path STREQUAL "cli")
            set(parts 4)
        endif()
        foreach(part RANGE 1 ${parts})
            set(name "${path}")
            if(parts GREATER 1)
                string(APPEND name "/part${part}")
            endif()
            string(REPLACE "/" "_" report "${name}.xml")
            math(EXPR shard "${part} - 1")
            add_test(NAME "${name}" WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests"
                COMMAND ${program} --gtest_brief=1 "--gtest_output=xml:${report}")
            # What takes long begins first, so that at the end no processor waits for it.
            set_tests_properties("${name}" PROPERTIES TIMEOUT 1800 COST 100 LABELS "${path}" ENVIRONMENT
                "${surroundings};GTEST_TOTAL_SHARDS=${parts};GTEST_SHARD_INDEX=${shard}")
        endforeach()
    else()
        gtest_discover_tests(${program} TEST_PREFIX "${path}/" DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
            NO_PRETTY_VALUES WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests"
            PROPERTIES TIMEOUT ${timeout} LABELS "${path}")
        list(APPEND programs ${program})
    endif()
endforeach()

# CTest learns of the single tests when it starts, so it learns of their surroundings then, too; gtest_discover_tests
# itself can't pass on a list.
set(script "")
foreach(program IN LISTS programs)
    string(APPEND script
        "set_tests_properties(\${${program}_TESTS} PROPERTIES ENVIRONMENT \"${surroundings}\")\n")
endforeach()
file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/TestEnvironment.cmake" CONTENT "${script}" @ONLY)
set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${CMAKE_BINARY_DIR}/TestEnvironment.cmake")

if(TEMPODIAL_FUZZING)
    include(Fuzzing)
endif()
include(ResourceTests)
if(NOT TEMPODIAL_SANITIZERS)
    include(ProgramTests)
endif()
if(TEMPODIAL_LINTS)
    include(Lints)
endif()
