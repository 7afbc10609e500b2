# tempodial_folder(NAME FOLDER [OBJECT] [EXCEPT PATH...] [LINK TARGET...] [USES TARGET...])
#
# A library of all sources in FOLDER and below, but not of the files and folders that are excepted. It passes on what it links, but not the libraries that it uses: those
# stay in the folder. A folder that doesn't exist yet, or has only headers, gives a target
# that passes on its links. OBJECT makes an object library, for parts that know each other; such parts are linked
# through the target that tempodial_collect makes of them.
function(tempodial_folder name folder)
    cmake_parse_arguments(PARSE_ARGV 2 arg "OBJECT" "" "EXCEPT;LINK;USES")
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${folder}/*.cpp")
    foreach(path IN LISTS arg_EXCEPT)
        list(FILTER sources EXCLUDE REGEX "^${PROJECT_SOURCE_DIR}/${folder}/${path}(/|$)")
    endforeach()
    if(NOT sources)
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE tempodial_options ${arg_LINK})
    else()
        if(arg_OBJECT)
            add_library(${name} OBJECT ${sources})
        else()
            add_library(${name} STATIC ${sources})
        endif()
        target_link_libraries(${name} PUBLIC tempodial_options ${arg_LINK} PRIVATE ${arg_USES})
    endif()
    set_property(GLOBAL APPEND PROPERTY TEMPODIAL_FOLDERS ${name})
    set_property(GLOBAL PROPERTY TEMPODIAL_FOLDER_${name} "${folder}")
    set_property(GLOBAL PROPERTY TEMPODIAL_EXCEPT_${name} "${arg_EXCEPT}")
endfunction()

# tempodial_collect(NAME PART...): one static library of object libraries, with their links.
function(tempodial_collect name)
    set(objects "")
    set(links "")
    foreach(part IN LISTS ARGN)
        get_target_property(type ${part} TYPE)
        if(type STREQUAL "OBJECT_LIBRARY")
            list(APPEND objects $<TARGET_OBJECTS:${part}>)
        endif()
        get_target_property(partLinks ${part} INTERFACE_LINK_LIBRARIES)
        list(APPEND links ${partLinks})
    endforeach()
    list(REMOVE_DUPLICATES links)
    if(objects)
        add_library(${name} STATIC ${objects})
        set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
        target_link_libraries(${name} PUBLIC ${links})
    else()
        add_library(${name} INTERFACE)
        target_link_libraries(${name} INTERFACE ${links})
    endif()
endfunction()

# tempodial_program(NAME MAIN [NOT_INSTALLED] [LINK TARGET...]): a program, once its main source exists.
function(tempodial_program name main)
    cmake_parse_arguments(PARSE_ARGV 2 arg "NOT_INSTALLED" "" "LINK")
    file(GLOB source CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${main}")
    if(source)
        add_executable(${name} ${source})
        target_link_libraries(${name} PRIVATE ${arg_LINK})
        if(NOT arg_NOT_INSTALLED)
            install(TARGETS ${name} OPTIONAL)
        endif()
    endif()
endfunction()

# tempodial_module(NAME SOURCES... [LINK TARGET...]): a module that the programs load while they run, from lib/tempodial
# beside their own folder. Sources are files, or patterns of their names.
function(tempodial_module name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
    list(TRANSFORM arg_UNPARSED_ARGUMENTS PREPEND "${PROJECT_SOURCE_DIR}/")
    file(GLOB sources CONFIGURE_DEPENDS ${arg_UNPARSED_ARGUMENTS})
    add_library(${name} MODULE ${sources})
    target_link_libraries(${name} PRIVATE tempodial_options ${arg_LINK})
    set_target_properties(${name} PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib/tempodial"
        CXX_VISIBILITY_PRESET hidden)
    install(TARGETS ${name} DESTINATION lib/tempodial)
endfunction()

# tempodial_track_folder(FOLDER [LINK TARGET...]): what modules of the recorder are made of, a folder of src/track, as a
# library that tests can have, too.
function(tempodial_track_folder folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
    tempodial_folder(track_${folder} src/track/${folder} EXCEPT ".*Module\\.cpp" LINK base ${arg_LINK})
    set_target_properties(track_${folder} PROPERTIES POSITION_INDEPENDENT_CODE ON)
endfunction()

# tempodial_track_module(NAME SOURCE [LINK TARGET...]): a module of the recorder, of a source in src/track.
function(tempodial_track_module name source)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINK")
    # Of the base it has what it needs itself, since a module's code may lie anywhere in memory.
    tempodial_module(tempodial-track-${name} src/track/${source} src/base/Utf8.cpp LINK ${arg_LINK})
    add_dependencies(track tempodial-track-${name})
endfunction()
