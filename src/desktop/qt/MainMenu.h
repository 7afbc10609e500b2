#pragma once

#include "base/Ref.h"
#include "desktop/qt/Desk.h"
#include "host/windows/HostExplorer.h"

#include <QString>
#include <vector>

class QAction;
class QBoxLayout;
class QMenu;
class QMenuBar;

namespace tempodial {

/// The menus of a window: the model's entries as they are, and behind them the desktop's own, of which the product
/// knows nothing. The product's buttons stand in a bar.
class MainMenu
{
public:
    /// Entries of the desktop's own in one of the model's menus, told by its number; null stands for a line.
    struct Own
    {
        std::int32_t menu;
        std::vector<QAction*> actions;
    };

    MainMenu(Desk& desk, Ref<HostExplorer> explorer, QMenuBar& menus, QBoxLayout& buttons, std::vector<Own> own);

    /// Shows the model as it is now, if it has changed.
    void Follow();

private:
    void FillMenu(QMenu& menu, const HostCommandBar& bar);
    void AddOwn(QMenu& menu, std::int32_t id);
    void AddCommand(QMenu& menu, const Ref<HostCommandBarControl>& command);
    void FillButtons(const HostCommandBar& bar);
    void Click(const Ref<HostCommandBarControl>& command);

    Desk& mDesk;
    Ref<HostExplorer> mExplorer;
    QMenuBar& mMenus;
    QBoxLayout& mButtons;
    std::vector<Own> mOwn;
    bool mHasChanged = true;
    Subscription mChanges;
};

}
