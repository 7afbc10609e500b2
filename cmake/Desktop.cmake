# The desktop program, where Qt is found. It needs no moc, and its sources share one precompiled header, which is most of
# what they compile.

# tempodial_desktop_files(): what desktops know the program by: its entry, its description, and its icons, which
# rsvg-convert draws in the usual sizes.
function(tempodial_desktop_files)
    set(from "${PROJECT_SOURCE_DIR}/resources/desktop")
    set(id io.github.tempodial.Tempodial)
    set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
    install(FILES "${from}/${id}.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
    install(FILES "${from}/${id}.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
    install(FILES "${from}/tempodial.svg" DESTINATION "${icons}/scalable/apps" RENAME ${id}.svg)
    install(FILES "${from}/tempodial-symbolic.svg" DESTINATION "${icons}/symbolic/apps" RENAME ${id}-symbolic.svg)
    find_program(TEMPODIAL_RSVG_CONVERT rsvg-convert)
    mark_as_advanced(TEMPODIAL_RSVG_CONVERT)
    if(NOT TEMPODIAL_RSVG_CONVERT)
        message(STATUS "rsvg-convert isn't there, so the desktop program has its icon as a drawing only")
        return()
    endif()
    set(drawn "")
    foreach(size IN ITEMS 16 22 24 32 48 64 128 256 512)
        set(icon "${CMAKE_BINARY_DIR}/icons/${size}.png")
        add_custom_command(OUTPUT "${icon}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${CMAKE_BINARY_DIR}/icons"
            COMMAND "${TEMPODIAL_RSVG_CONVERT}" --width=${size} --height=${size} --output=${icon} "${from}/tempodial.svg"
            DEPENDS "${from}/tempodial.svg" COMMENT "Drawing the icon of ${size} pixels" VERBATIM)
        list(APPEND drawn "${icon}")
        install(FILES "${icon}" DESTINATION "${icons}/${size}x${size}/apps" RENAME ${id}.png OPTIONAL)
    endforeach()
    add_custom_target(icons DEPENDS ${drawn})
    add_dependencies(tempodial-desktop icons)
endfunction()

find_package(Qt6 6.4 QUIET COMPONENTS Widgets PrintSupport DBus OPTIONAL_COMPONENTS Test)
if(Qt6_FOUND)
    tempodial_folder(desktop_qt src/desktop/qt EXCEPT main.cpp drive
        LINK desktop terminal Qt6::Widgets Qt6::PrintSupport Qt6::DBus)
    target_compile_definitions(desktop_qt PUBLIC QT_NO_KEYWORDS QT_NO_FOREACH)
    target_precompile_headers(desktop_qt PRIVATE <QApplication> <QBoxLayout> <QLabel> <QMainWindow> <QMenuBar>
        <QPainter> <QPushButton> <QScrollBar> <QtEvents> <functional> <string> <vector>)
    tempodial_program(tempodial-desktop src/desktop/qt/main.cpp LINK desktop_qt)
    tempodial_desktop_files()
    # The windows worked by the driver's commands, for tests alone.
    if(TEMPODIAL_TESTS AND Qt6Test_FOUND)
        tempodial_folder(desktop_drive src/desktop/qt/drive EXCEPT main.cpp LINK desktop_qt driver Qt6::Test)
        target_precompile_headers(desktop_drive REUSE_FROM desktop_qt)
        tempodial_program(tempodial-desktop-drive src/desktop/qt/drive/main.cpp NOT_INSTALLED LINK desktop_drive)
    endif()
else()
    message(STATUS "Qt 6 isn't there, so the desktop program isn't built")
endif()
