# The add-in for Windows, and what it is tested with; only where it is compiled for that system. The folders share one
# precompiled header, which is most of what they compile.

enable_language(RC)

option(TEMPODIAL_ADDIN_TESTS "Build the tests of the add-in, which Wine runs" ON)

# tempodial_addin_folder(NAME FOLDER [EXCEPT FILE] [LINK TARGET...] [USES TARGET...])
function(tempodial_addin_folder name folder)
    tempodial_folder(${name} ${folder} ${ARGN})
    get_target_property(type ${name} TYPE)
    if(name STREQUAL "addin_base")
        target_compile_definitions(addin_base PUBLIC UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601
            WIN32_LEAN_AND_MEAN NOMINMAX)
        # The interfaces of COM have no virtual destructors, since their objects end themselves.
        target_compile_options(addin_base PUBLIC -Wno-non-virtual-dtor)
        target_link_libraries(addin_base PUBLIC ole32 oleaut32 uuid gdi32 comctl32)
        target_precompile_headers(addin_base PRIVATE "${PROJECT_SOURCE_DIR}/src/addin/base/Windows.h")
    elseif(NOT type STREQUAL "INTERFACE_LIBRARY")
        target_precompile_headers(${name} REUSE_FROM addin_base)
    endif()
endfunction()

# tempodial_addin_module(NAME SOURCE... [LINK TARGET...]): a module of the add-in, with the exports of a .def file among
# its sources. It comes out the same wherever and whenever it is linked.
function(tempodial_addin_module name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
    add_library(${name} MODULE ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE addin_dll ${arg_LINK})
    target_link_options(${name} PRIVATE -Wl,--no-insert-timestamp -Wl,--disable-auto-image-base
        $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},4>:-Wl,--enable-stdcall-fixup> $<$<CONFIG:Release>:-s>)
    set_target_properties(${name} PROPERTIES PREFIX "" LINKER_LANGUAGE CXX DEFINE_SYMBOL ""
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
endfunction()

tempodial_addin_folder(addin_base src/addin/base LINK base)
tempodial_addin_folder(addin_com src/addin/com LINK addin_base platform base)
tempodial_addin_folder(addin_win32 src/addin/win32 LINK addin_com addin_base forms portable platform base)
tempodial_addin_folder(addin_dll src/addin/dll OBJECT EXCEPT Surroundings.cpp
    LINK addin_win32 addin_com addin_base engine platform base)

# What is installed. What the file says of itself is compiled apart, since the options of C++ are unknown there.
set(dll "${PROJECT_SOURCE_DIR}/src/addin/dll")
add_library(addin_version OBJECT "${dll}/version.rc")
target_compile_definitions(addin_version PRIVATE TEMPODIAL_VERSION=${PROJECT_VERSION}
    "TEMPODIAL_VERSION_NUMBERS=${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
tempodial_addin_module(Tempodial "${dll}/Surroundings.cpp" "${dll}/tempodial.def" $<TARGET_OBJECTS:addin_version>)
target_precompile_headers(Tempodial REUSE_FROM addin_base)

# The stand-in for Outlook, and the add-in's module as it is tested with.
tempodial_addin_folder(standin_rig src/standin/rig OBJECT LINK addin_dll addin_win32 forms faults wire_forms wire)
tempodial_addin_module(TempodialRig "${PROJECT_SOURCE_DIR}/src/standin/rig/rig.def" LINK standin_rig)
file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/standin/*.cpp")
add_executable(tempodial-standin ${sources})
target_link_libraries(tempodial-standin PRIVATE tempodial_options addin_base wire_forms wire forms)
target_precompile_headers(tempodial-standin REUSE_FROM addin_base)

if(TEMPODIAL_ADDIN_TESTS)
    enable_testing()
    include(AddInTests)
endif()
