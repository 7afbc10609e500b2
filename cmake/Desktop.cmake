# The desktop program, where Qt is found. It needs no moc, and its sources share one precompiled header, which is most of
# what they compile.

find_package(Qt6 6.4 QUIET COMPONENTS Widgets PrintSupport DBus OPTIONAL_COMPONENTS Test)
if(Qt6_FOUND)
    tempodial_folder(desktop_qt src/desktop/qt EXCEPT main.cpp
        LINK desktop terminal Qt6::Widgets Qt6::PrintSupport Qt6::DBus)
    target_compile_definitions(desktop_qt PUBLIC QT_NO_KEYWORDS QT_NO_FOREACH)
    target_precompile_headers(desktop_qt PRIVATE <QApplication> <QBoxLayout> <QLabel> <QMainWindow> <QMenuBar>
        <QPainter> <QPushButton> <QScrollBar> <QtEvents> <functional> <string> <vector>)
    tempodial_program(tempodial-desktop src/desktop/qt/main.cpp NOT_INSTALLED LINK desktop_qt)
else()
    message(STATUS "Qt 6 isn't there, so the desktop program isn't built")
endif()
