#pragma once

#include "desktop/qt/MainMenu.h"

#include <QKeySequence>
#include <functional>
#include <vector>

class QMenu;
class QWidget;

namespace tempodial {

/// The commands of a window that are the desktop's own, with their keys and their places in the menus.
class WindowActions
{
public:
    explicit WindowActions(QWidget& window)
        : mWindow(window)
    {
    }

    /// Adds a command to a menu, told by its number.
    QAction* Add(std::int32_t menu, const char* text, const QKeySequence& keys, std::function<void()> run);
    /// The same of one that is on or off; it is asked before the menu opens.
    QAction* AddSwitch(std::int32_t menu, const char* text, const QKeySequence& keys, std::function<bool()> isOn,
        std::function<void(bool)> turn);
    /// Adds a menu of its own to a menu.
    void AddMenu(std::int32_t menu, const QMenu& below);
    /// Adds a line behind what was added.
    void AddLine(std::int32_t menu);

    const std::vector<MainMenu::Own>& All() const { return mOwn; }
    /// Shows what is on.
    void Follow();

private:
    MainMenu::Own& Of(std::int32_t menu);

    QWidget& mWindow;
    std::vector<MainMenu::Own> mOwn;
    std::vector<std::pair<QAction*, std::function<bool()>>> mSwitches;
};

}
