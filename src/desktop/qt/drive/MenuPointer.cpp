#include "desktop/qt/drive/MenuPointer.h"

#include "desktop/qt/QtText.h"
#include "driver/RequestError.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <algorithm>

namespace tempodial {

namespace {

QAction& ActionOf(const QWidget& menu, const std::string& caption)
{
    const auto actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(),
        [text = ToQt(caption)](const auto* action) { return action->text() == text && action->isVisible(); });
    if (found == actions.end()) {
        throw RequestError("the window shows no command \"" + caption + "\"");
    }
    if (!(*found)->isEnabled()) {
        throw RequestError("the window shows \"" + caption + "\" as disabled");
    }
    return **found;
}

/// Opens the menu of an action with a click on it.
template <class Menu> QMenu& Opened(Menu& menu, QAction& action)
{
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    auto* below = action.menu();
    if (below == nullptr || !QTest::qWaitFor([below] { return below->isVisible(); })) {
        throw RequestError("the menu \"" + FromQt(action.text()) + "\" doesn't open");
    }
    return *below;
}

}

void ClickInMenus(QMenuBar& bar, const std::vector<std::string>& captions)
{
    auto* menu = &Opened(bar, ActionOf(bar, captions.front()));
    for (std::size_t i = 1; i + 1 < captions.size(); ++i) {
        menu = &Opened(*menu, ActionOf(*menu, captions[i]));
    }
    auto& action = ActionOf(*menu, captions.back());
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&action).center());
}

}
