#include "desktop/qt/drive/ShownMenus.h"

#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "host/windows/BarNames.h"
#include "host/windows/HostCommandBarPopup.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

namespace tempodial {

namespace {

using Lines = std::vector<std::string>;

std::string Line(const std::string& path, const std::string& caption, bool isEnabled)
{
    return path + "/" + caption + (isEnabled ? "" : " (disabled)");
}

/// The entries of a menu in the model, those below included, as far as they can be seen.
void ListModel(const HostCommandBar& bar, const std::string& path, Lines& lines)
{
    for (const auto& entry : bar.Entries()) {
        const auto& now = entry->Now();
        if (!now.visible) {
            continue;
        }
        if (now.beginGroup) {
            lines.push_back(path + "/-");
        }
        lines.push_back(Line(path, now.caption, now.enabled));
        if (const auto popup = entry.As<HostCommandBarPopup>()) {
            ListModel(*popup->Menu(), path + "/" + now.caption, lines);
        }
    }
}

void ListShown(const QWidget& menu, const std::string& path, Lines& lines)
{
    for (const auto* action : menu.actions()) {
        if (action->isSeparator()) {
            lines.push_back(path + "/-");
        } else if (action->isVisible()) {
            lines.push_back(Line(path, FromQt(action->text()), action->isEnabled()));
            if (action->menu() != nullptr) {
                ListShown(*action->menu(), path + "/" + FromQt(action->text()), lines);
            }
        }
    }
}

/// The first of the lines that isn't as expected, each menu beginning with the expected ones.
void Compare(const Lines& expected, const Lines& shown, const std::string& what, Lines& differences)
{
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (i >= shown.size() || shown[i] != expected[i]) {
            differences.push_back(
                what + " shows \"" + (i < shown.size() ? shown[i] : "") + "\" for \"" + expected[i] + "\"");
            return;
        }
    }
}

void CompareMenus(QMenuBar& menus, const HostCommandBar& bar, Lines& differences)
{
    const auto actions = menus.actions();
    qsizetype place = 0;
    for (const auto& entry : bar.Entries()) {
        const auto popup = entry.As<HostCommandBarPopup>();
        if (!popup || !entry->Now().visible) {
            continue;
        }
        const auto& caption = entry->Now().caption;
        if (place >= actions.size() || actions[place]->text() != ToQt(caption) || actions[place]->menu() == nullptr) {
            differences.push_back("the menu bar has no \"" + caption + "\" in its place");
            return;
        }
        Lines expected;
        ListModel(*popup->Menu(), caption, expected);
        Lines shown;
        ListShown(*actions[place]->menu(), caption, shown);
        Compare(expected, shown, "the menu", differences);
        ++place;
    }
    if (place != actions.size()) {
        differences.push_back("the menu bar has more menus than the model");
    }
}

void CompareButtons(NavigationBar& place, const HostCommandBar& bar, Lines& differences)
{
    Lines expected;
    for (const auto& entry : bar.Entries()) {
        const auto& now = entry->Now();
        if (now.id == HostCommandBarControl::OwnId && now.visible) {
            expected.push_back(Line("", now.caption, now.enabled));
        }
    }
    Lines shown;
    for (int i = 0; i < place.Buttons().count(); ++i) {
        if (const auto* button = dynamic_cast<QPushButton*>(place.Buttons().itemAt(i)->widget())) {
            shown.push_back(Line("", FromQt(button->text()), button->isEnabled()));
        }
    }
    Compare(expected, shown, "the bar", differences);
    if (shown.size() > expected.size()) {
        differences.push_back("the bar has more buttons than the model");
    }
}

}

std::vector<std::string> MenuDifferences(MainWindow& window, const HostCommandBars& bars)
{
    Lines differences;
    for (const auto& bar : bars.All()) {
        if (bar->Name() == MenuBarName) {
            CompareMenus(*window.menuBar(), *bar, differences);
        } else if (bar->Name() == ButtonBarName) {
            CompareButtons(window.Bar(), *bar, differences);
        }
    }
    return differences;
}

}
