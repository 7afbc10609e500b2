#include "desktop/qt/drive/WidgetHand.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/drive/AgendaPointer.h"
#include "desktop/qt/drive/MenuPointer.h"
#include "driver/CommandBarsJson.h"
#include "driver/DriverHost.h"
#include "driver/RequestError.h"
#include "host/windows/BarNames.h"

#include <QMenuBar>
#include <QTest>
#include <algorithm>
#include <set>
#include <string>
#include <utility>

namespace tempodial {

namespace {

FlatButton* ButtonOf(MainWindow& window, const std::string& caption)
{
    for (auto* button : window.Bar().findChildren<QPushButton*>()) {
        auto* flat = dynamic_cast<FlatButton*>(button);
        if (flat != nullptr && flat->isVisible() && flat->text() == ToQt(caption)) {
            return flat;
        }
    }
    return nullptr;
}

}

WidgetHand::WidgetHand(DriverHost& host, Desk& desk, WindowFinder windowOf)
    : ModelHand(host)
    , mDesk(desk)
    , mWindowOf(std::move(windowOf))
{
}

void WidgetHand::Close(const Ref<HostExplorer>& window)
{
    if (auto* shown = mWindowOf(window)) {
        Work([shown] { shown->close(); });
    } else {
        ModelHand::Close(window);
    }
}

void WidgetHand::Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items)
{
    auto* shown = mWindowOf(window);
    std::set<std::int64_t> numbers;
    bool isReached = shown != nullptr && !items.empty();
    for (const auto& item : items) {
        const auto stored = item.As<StoreItem>();
        isReached = isReached && AgendaPointer(*shown).Reach(stored->Number(), stored->Start());
        numbers.insert(stored->Number());
    }
    // Days that no view shows together can't be selected together by clicks, and a click on what is selected is none.
    const auto isShown = [&](std::int64_t number) { return shown->Log().PlaceOf(number).has_value(); };
    if (!isReached || !std::all_of(numbers.begin(), numbers.end(), isShown) || numbers == shown->Selected()) {
        ModelHand::Select(window, items);
        return;
    }
    Work([&] {
        AgendaPointer pointer(*shown);
        Qt::KeyboardModifiers modifiers;
        for (const auto& item : items) {
            const auto stored = item.As<StoreItem>();
            pointer.Reach(stored->Number(), stored->Start());
            pointer.Click(stored->Number(), modifiers);
            modifiers = Qt::ControlModifier;
        }
    });
}

void WidgetHand::ClickCommand(const Ref<HostExplorer>& window, const CommandPath& command)
{
    auto* shown = mWindowOf(window);
    const auto control = FindCommand(*window->Bars(), command.bar, command.captions);
    const bool isButton = control->Now().id != HostCommandBarControl::OwnId || command.captions.size() != 1;
    if (shown != nullptr && command.bar == MenuBarName && command.captions.size() > 1) {
        control->CheckUsable();
        Work([&] { ClickInMenus(*shown->menuBar(), command.captions); });
    } else if (shown != nullptr && command.bar == ButtonBarName && !isButton) {
        control->CheckUsable();
        auto* button = ButtonOf(*shown, control->Now().caption);
        if (button == nullptr) {
            throw RequestError("the window shows no button \"" + control->Now().caption + "\"");
        }
        Work([button] { QTest::mouseClick(button, Qt::LeftButton); });
    } else {
        ModelHand::ClickCommand(window, command);
    }
}

Ref<HostInspector> WidgetHand::Open(const Ref<StoreItem>& item)
{
    auto* window = FrontWindow();
    if (window == nullptr || !AgendaPointer(*window).Reach(item->Number(), item->Start())) {
        return ModelHand::Open(item);
    }
    std::int32_t last = 0;
    for (const auto& inspector : mDesk.Windows().OpenInspectors()) {
        last = std::max(last, inspector->Number());
    }
    Work([&] { AgendaPointer(*window).DoubleClick(item->Number()); });
    const auto& open = mDesk.Windows().OpenInspectors();
    const auto opened = std::find_if(open.begin(), open.end(),
        [&](const auto& inspector) { return inspector->Number() > last && inspector->ShownItem() == item; });
    return opened == open.end() ? nullptr : *opened;
}

void WidgetHand::Delete(const Ref<StoreItem>& item)
{
    auto* window = FrontWindow();
    if (window == nullptr || !AgendaPointer(*window).Reach(item->Number(), item->Start())) {
        ModelHand::Delete(item);
        return;
    }
    Work([&] {
        AgendaPointer pointer(*window);
        if (window->Selected() != std::set { item->Number() }) {
            pointer.Click(item->Number());
        }
        pointer.Press(Qt::Key_Delete);
    });
}

void WidgetHand::Work(const std::function<void()>& work)
{
    std::string failed;
    const auto hearing = mDesk.Subscribe({ .Failed = [&](const std::string& message) { failed = message; } });
    work();
    if (!failed.empty()) {
        throw RequestError(failed);
    }
}

MainWindow* WidgetHand::FrontWindow() const
{
    if (!mDesk.Session().IsStarted()) {
        return nullptr;
    }
    const auto front = mDesk.Windows().ActiveExplorer().As<HostExplorer>();
    return front ? mWindowOf(front) : nullptr;
}

}
