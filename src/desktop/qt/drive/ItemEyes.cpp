#include "desktop/qt/drive/ItemEyes.h"

#include "desktop/qt/CommandBarView.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/PageView.h"
#include "desktop/qt/QtText.h"
#include "forms/FormRules.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <algorithm>

namespace tempodial {

namespace {

using Texts = std::vector<std::string>;

std::string Joined(const Texts& texts)
{
    std::string joined;
    for (const auto& text : texts) {
        joined += (joined.empty() ? "" : ", ") + text;
    }
    return "[" + joined + "]";
}

/// A field of a page, as it is compared and told.
std::string ToBeSeen(const HostPageControl& control)
{
    if (control.Layout().kind == FormPageLayout::Kind::Check) {
        return control.Value().ToBoolean() ? "checked" : "not checked";
    }
    auto words = "\"" + control.Text() + "\"";
    if (control.Layout().kind == FormPageLayout::Kind::Combo) {
        words += " of " + Joined(control.List());
    }
    return words;
}

std::string Seen(const QWidget* widget)
{
    if (widget == nullptr || !widget->isVisible()) {
        return "nothing";
    }
    if (const auto* mark = qobject_cast<const QCheckBox*>(widget)) {
        return mark->isChecked() ? "checked" : "not checked";
    }
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
        Texts list;
        for (int entry = 0; entry < box->count(); ++entry) {
            list.push_back(FromQt(box->itemText(entry)));
        }
        return "\"" + FromQt(box->currentText()) + "\" of " + Joined(list);
    }
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    return line == nullptr ? "nothing" : "\"" + FromQt(line->text()) + "\"";
}

std::string CommandWords(const std::string& caption, bool isEnabled)
{
    return caption + (isEnabled ? "" : " (disabled)");
}

void CompareCommands(const InspectorWindow& window, const HostCommandBars& bars, Texts& differences)
{
    Texts expected;
    for (const auto& bar : bars.All()) {
        for (const auto& entry : bar->Entries()) {
            if (bar->Visible() && entry->Now().visible) {
                expected.push_back(CommandWords(WithoutKey(entry->Now().caption), entry->Now().enabled));
            }
        }
    }
    Texts shown;
    for (const auto* action : window.Commands().actions()) {
        if (!action->isSeparator() && action->isVisible()) {
            shown.push_back(CommandWords(FromQt(action->text()), action->isEnabled()));
        }
    }
    if (shown != expected) {
        differences.push_back("the commands are " + Joined(shown) + " for " + Joined(expected));
    }
}

void Compare(const InspectorWindow& window, const HostInspector& inspector, Texts& differences)
{
    CompareCommands(window, *inspector.Bars(), differences);
    if ((window.Page() == nullptr) != !inspector.ShownPage()) {
        differences.push_back("the page is missing, or is one too many");
    } else if (inspector.ShownPage()) {
        for (const auto& control : inspector.ShownPage()->All()) {
            const auto& name = control->Layout().name;
            const auto seen = Seen(window.Page()->WidgetOf(name));
            if (const auto expected = ToBeSeen(*control); seen != expected) {
                differences.push_back("the field \"" + name + "\" shows " + seen + " for " + expected);
            }
        }
    }
}

Texts DifferencesOf(const HostInspector& inspector, const ItemWindow* window)
{
    if (window == nullptr || !window->isVisible()) {
        return { "it isn't shown" };
    }
    Texts differences;
    const auto title = FromQt(window->windowTitle());
    const bool isUnsaved = inspector.ShownItem() && inspector.ShownItem()->HasChanges();
    if (const auto expected = (isUnsaved ? ItemWindow::UnsavedDot : "") + inspector.Caption(); title != expected) {
        differences.push_back("the title is \"" + title + "\" for \"" + expected + "\"");
    }
    if (const auto* activity = dynamic_cast<const InspectorWindow*>(window)) {
        Compare(*activity, inspector, differences);
    }
    return differences;
}

std::size_t VisibleItems()
{
    const auto windows = QApplication::topLevelWidgets();
    return static_cast<std::size_t>(std::count_if(windows.begin(), windows.end(),
        [](const auto* window) { return window->isVisible() && dynamic_cast<const ItemWindow*>(window) != nullptr; }));
}

}

std::vector<std::string> ShownItemDifferences(const Desk& desk, const HostWindows& windows)
{
    Texts differences;
    const auto& inspectors = desk.Windows().OpenInspectors();
    if (const auto visible = VisibleItems(); visible != inspectors.size()) {
        differences.push_back(
            std::to_string(visible) + " windows are shown for " + std::to_string(inspectors.size()) + " inspectors");
    }
    for (const auto& inspector : inspectors) {
        for (const auto& difference : DifferencesOf(*inspector, windows.WindowOf(inspector))) {
            differences.push_back("inspector " + std::to_string(inspector->Number()) + ": " + difference);
        }
    }
    return differences;
}

}
