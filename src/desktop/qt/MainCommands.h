#pragma once

#include "desktop/DesktopSettings.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/LogOutlets.h"
#include "desktop/qt/WindowActions.h"

class QKeyEvent;
class QMenu;
class QPoint;

namespace tempodial {

class MainWindow;

/// The desktop's own commands of a window: in its menus, in the menu of what is selected, and by single keys.
class MainCommands
{
public:
    /// What leads to the folders, and to the views of the one that is shown.
    static constexpr auto FolderCaption = "Fold&er\u2026";
    static constexpr auto ViewsCaption = "&Views";

    /// Both must live as long as this.
    MainCommands(MainWindow& window, Desk& desk);

    WindowActions& Actions() { return mActions; }
    LogOutlets& Outlets() { return mOutlets; }
    /// Does what a command of the host does that needs a window, told by its number.
    void Run(std::int32_t command);
    /// Opens the menu of what is selected, at a point of the screen.
    void ShowMenu(const QPoint& place);
    /// Takes a key that no view wants; true when it means something.
    bool TakeKey(const QKeyEvent& event);

private:
    using View = DesktopSettings::View;

    void MakeActions();
    void MakeViewActions();
    void AddExports();
    void ShowSettings();
    void FocusSearch();
    void ShowGuide();
    /// Lists the views of the folder that the window shows.
    void FillViews(QMenu& menu);
    /// Shows what has the colours of the selected ones alone.
    void ShowOnlySelected();
    /// Takes a letter that does something to what is selected.
    bool TakeLetter(int key);
    /// Takes one that goes elsewhere, which a person can switch off.
    bool TakeViewLetter(int key);
    bool TakeDigit(std::size_t place);

    MainWindow& mWindow;
    Desk& mDesk;
    LogOutlets mOutlets;
    WindowActions mActions;
};

}
