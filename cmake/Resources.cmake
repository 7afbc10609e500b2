# tempodial_resources(): brings resources/ to share/tempodial, where the program looks: next to its own folder, in a
# build tree as in an installation. What a tool generates goes there too; its target is added with
# add_dependencies(resources TARGET).
function(tempodial_resources)
    set(from "${PROJECT_SOURCE_DIR}/resources")
    set(to "${CMAKE_BINARY_DIR}/share/tempodial")
    file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE "${from}" "${from}/*")
    list(FILTER files EXCLUDE REGEX "^(README\\.md|CMakeLists\\.txt|(gnome-shell|desktop)/.*)$")
    set(copies "")
    foreach(file IN LISTS files)
        add_custom_command(OUTPUT "${to}/${file}"
            COMMAND "${CMAKE_COMMAND}" -E copy "${from}/${file}" "${to}/${file}"
            DEPENDS "${from}/${file}" COMMENT "Copying resource ${file}" VERBATIM)
        list(APPEND copies "${to}/${file}")
    endforeach()
    add_custom_target(resources ALL DEPENDS ${copies})
    foreach(program tempodial tempodial-track tempodial-drive tempodial-desktop tempodial-desktop-drive)
        if(TARGET ${program})
            add_dependencies(${program} resources)
        endif()
    endforeach()
    install(DIRECTORY "${to}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/tempodial" OPTIONAL)
endfunction()

# tempodial_shell_extensions(): what tells GNOME's windows to the recorder, in two forms, since the shell reads
# extensions in another way from version 45 on; where the shell looks for them.
function(tempodial_shell_extensions)
    set(from "${PROJECT_SOURCE_DIR}/resources/gnome-shell")
    set(to "${CMAKE_BINARY_DIR}/share/gnome-shell/extensions")
    foreach(form IN ITEMS "" "-43")
        set(folder "${to}/tempodial${form}@tempodial.example")
        set(text "")
        foreach(part IN ITEMS "begin${form}" windows "end${form}")
            set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${from}/${part}.js")
            file(READ "${from}/${part}.js" content)
            string(APPEND text "${content}")
        endforeach()
        file(GENERATE OUTPUT "${folder}/extension.js" CONTENT "${text}")
        configure_file("${from}/metadata${form}.json" "${folder}/metadata.json" COPYONLY)
    endforeach()
    install(DIRECTORY "${to}" DESTINATION "${CMAKE_INSTALL_DATADIR}/gnome-shell")
endfunction()

# tempodial_user_units(): the units for all users of a machine, who enable them if they like, where systemd looks for
# them. Their texts are those that `track install` writes for one user and profile. The prefix is known at installation.
function(tempodial_user_units)
    install(CODE "set(from \"${PROJECT_SOURCE_DIR}/resources/systemd\")
set(bin \"${CMAKE_INSTALL_BINDIR}\")")
    install(CODE [[
        string(REPLACE "%" "%%" bin "${CMAKE_INSTALL_PREFIX}/${bin}")
        set(RECORDER "\"${bin}/tempodial-track\"")
        set(PROGRAM "\"${bin}/tempodial\"")
        foreach(unit IN ITEMS tempodial-track.service tempodial-sync.service tempodial-sync.timer)
            set(to "${CMAKE_INSTALL_PREFIX}/lib/systemd/user/${unit}")
            message(STATUS "Installing: $ENV{DESTDIR}${to}")
            configure_file("${from}/${unit}" "$ENV{DESTDIR}${to}" @ONLY)
            file(CHMOD "$ENV{DESTDIR}${to}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
            list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${to}")
        endforeach()
    ]])
endfunction()
