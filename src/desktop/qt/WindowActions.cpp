#include "desktop/qt/WindowActions.h"

#include <QAction>
#include <QMenu>
#include <QWidget>
#include <algorithm>

namespace tempodial {

MainMenu::Own& WindowActions::Of(std::int32_t menu)
{
    const auto known
        = std::find_if(mOwn.begin(), mOwn.end(), [menu](const MainMenu::Own& own) { return own.menu == menu; });
    return known != mOwn.end() ? *known : mOwn.emplace_back(MainMenu::Own { menu, {} });
}

QAction* WindowActions::Add(std::int32_t menu, const char* text, const QKeySequence& keys, std::function<void()> run)
{
    auto* action = new QAction(text, &mWindow);
    action->setShortcut(keys);
    QObject::connect(action, &QAction::triggered, &mWindow, [run = std::move(run)] { run(); });
    // The keys work although no menu has been opened.
    mWindow.addAction(action);
    Of(menu).actions.push_back(action);
    return action;
}

QAction* WindowActions::AddSwitch(std::int32_t menu, const char* text, const QKeySequence& keys,
    std::function<bool()> isOn, std::function<void(bool)> turn)
{
    auto* action = Add(menu, text, keys, [isOn, turn = std::move(turn)] { turn(!isOn()); });
    action->setCheckable(true);
    mSwitches.emplace_back(action, std::move(isOn));
    return action;
}

void WindowActions::AddMenu(std::int32_t menu, const QMenu& below)
{
    Of(menu).actions.push_back(below.menuAction());
}

void WindowActions::AddLine(std::int32_t menu)
{
    Of(menu).actions.push_back(nullptr);
}

void WindowActions::Follow()
{
    for (const auto& [action, isOn] : mSwitches) {
        action->setChecked(isOn());
    }
}

}
