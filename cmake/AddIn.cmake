# The add-in for Windows, and what it is tested with; only where it is compiled for that system. The folders share one
# precompiled header, which is most of what they compile.

# tempodial_addin_folder(NAME FOLDER [EXCEPT FILE] [LINK TARGET...] [USES TARGET...])
function(tempodial_addin_folder name folder)
    tempodial_folder(${name} ${folder} ${ARGN})
    get_target_property(type ${name} TYPE)
    if(name STREQUAL "addin_base")
        target_compile_definitions(addin_base PUBLIC UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601
            WIN32_LEAN_AND_MEAN NOMINMAX)
        # The interfaces of COM have no virtual destructors, since their objects end themselves.
        target_compile_options(addin_base PUBLIC -Wno-non-virtual-dtor)
        target_link_libraries(addin_base PUBLIC ole32 oleaut32 uuid)
        target_precompile_headers(addin_base PRIVATE "${PROJECT_SOURCE_DIR}/src/addin/base/Windows.h")
    elseif(NOT type STREQUAL "INTERFACE_LIBRARY")
        target_precompile_headers(${name} REUSE_FROM addin_base)
    endif()
endfunction()

tempodial_addin_folder(addin_base src/addin/base LINK base)
tempodial_addin_folder(addin_com src/addin/com LINK addin_base platform base)
tempodial_addin_folder(addin_win32 src/addin/win32 LINK addin_com addin_base portable platform base)
tempodial_addin_folder(addin_dll src/addin/dll OBJECT LINK addin_win32 addin_com addin_base engine platform base)
tempodial_addin_folder(standin_rig src/standin/rig OBJECT LINK addin_dll addin_win32 forms faults wire)

# The stand-in for Outlook, and the add-in's module as it is tested with.
file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/standin/*.cpp")
add_executable(tempodial-standin ${sources})
target_link_libraries(tempodial-standin PRIVATE tempodial_options addin_base wire)
target_precompile_headers(tempodial-standin REUSE_FROM addin_base)
add_library(TempodialRig MODULE "${PROJECT_SOURCE_DIR}/src/standin/rig/rig.def")
target_link_libraries(TempodialRig PRIVATE addin_dll standin_rig)
set_target_properties(TempodialRig PROPERTIES PREFIX "" LINKER_LANGUAGE CXX
    LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

option(TEMPODIAL_ADDIN_TESTS "Build the tests of the add-in, which Wine runs" ON)
if(TEMPODIAL_ADDIN_TESTS)
    enable_testing()
    include(AddInTests)
endif()
