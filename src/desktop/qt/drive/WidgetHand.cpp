#include "desktop/qt/drive/WidgetHand.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/drive/AgendaPointer.h"
#include "desktop/qt/drive/DeskWork.h"
#include "desktop/qt/drive/FolderPointer.h"
#include "desktop/qt/drive/MenuPointer.h"
#include "desktop/qt/drive/PagePointer.h"
#include "driver/CommandBarsJson.h"
#include "driver/DriverHost.h"
#include "driver/RequestError.h"
#include "host/windows/BarNames.h"

#include <QMenuBar>
#include <QTest>
#include <algorithm>
#include <memory>
#include <optional>
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

WidgetHand::WidgetHand(DriverHost& host, Desk& desk, Windows windows)
    : ModelHand(host)
    , mDesk(desk)
    , mWindows(std::move(windows))
{
}

void WidgetHand::Close(const Ref<HostExplorer>& window)
{
    // The last one takes the windows of items along, which the model leaves.
    const bool takesItems = mDesk.Windows().OpenExplorers().size() == 1 && !mDesk.Windows().OpenInspectors().empty();
    if (auto* shown = takesItems ? nullptr : WindowOf(window)) {
        WorkAt(mDesk, [shown] { shown->close(); });
    } else {
        ModelHand::Close(window);
    }
}

void WidgetHand::Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items)
{
    auto* shown = WindowOf(window);
    std::vector<std::int64_t> numbers;
    bool isReached = shown != nullptr && !items.empty();
    for (const auto& item : items) {
        const auto stored = item.As<StoreItem>();
        isReached = isReached && AgendaPointer(*shown).Reach(stored->Number(), stored->Start());
        numbers.push_back(stored->Number());
    }
    // Days that no view shows together can't be selected together by clicks, nor in another order than their own, and
    // a click on what is selected is none.
    const std::set<std::int64_t> inOrder(numbers.begin(), numbers.end());
    const auto isShown = [&](std::int64_t number) { return shown->Log().PlaceOf(number).has_value(); };
    if (!isReached || !std::all_of(numbers.begin(), numbers.end(), isShown)
        || !std::equal(numbers.begin(), numbers.end(), inOrder.begin(), inOrder.end())
        || inOrder == shown->Selected()) {
        ModelHand::Select(window, items);
        return;
    }
    WorkAt(mDesk, [&] {
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
    auto* shown = WindowOf(window);
    const auto control = FindCommand(*window->Bars(), command.bar, command.captions);
    const bool isButton = control->Now().id != HostCommandBarControl::OwnId || command.captions.size() != 1;
    if (shown != nullptr && command.bar == MenuBarName && command.captions.size() > 1) {
        control->CheckUsable();
        WorkAt(mDesk, [&] { ClickInMenus(*shown->menuBar(), command.captions); });
    } else if (shown != nullptr && command.bar == ButtonBarName && !isButton) {
        control->CheckUsable();
        auto* button = ButtonOf(*shown, control->Now().caption);
        if (button == nullptr) {
            throw RequestError("the window shows no button \"" + control->Now().caption + "\"");
        }
        WorkAt(mDesk, [button] { QTest::mouseClick(button, Qt::LeftButton); });
    } else {
        ModelHand::ClickCommand(window, command);
    }
}

Ref<HostInspector> WidgetHand::Open(const Ref<StoreItem>& item)
{
    auto* window = Reached(*item);
    const bool isAlone = ReachedAlone(*item) != nullptr;
    const auto& inspectors = mDesk.Windows().OpenInspectors();
    const bool isOpen = std::any_of(
        inspectors.begin(), inspectors.end(), [&](const auto& inspector) { return inspector->ShownItem() == item; });
    // In the list of short ones, going to one selects it; and no gesture opens a further window on one.
    if (window == nullptr || isOpen || (!isAlone && AgendaPointer(*window).IsOneOfRun(item->Number()))) {
        return ModelHand::Open(item);
    }
    std::int32_t last = 0;
    for (const auto& inspector : mDesk.Windows().OpenInspectors()) {
        last = std::max(last, inspector->Number());
    }
    WorkAt(mDesk, [&] {
        if (isAlone) {
            AgendaPointer(*window).DoubleClick(item->Number());
        } else {
            AgendaPointer(*window).Press(Qt::Key_Return);
        }
    });
    const auto& open = mDesk.Windows().OpenInspectors();
    const auto opened = std::find_if(open.begin(), open.end(),
        [&](const auto& inspector) { return inspector->Number() > last && inspector->ShownItem() == item; });
    return opened == open.end() ? nullptr : *opened;
}

void WidgetHand::GoTo(const Ref<HostExplorer>& window, const Ref<MAPIFolder>& folder)
{
    if (!ChooseFolders(window, { folder })) {
        ModelHand::GoTo(window, folder);
    }
}

void WidgetHand::ShowBeside(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders)
{
    std::set<std::string> different;
    for (const auto& folder : folders) {
        different.insert(folder->EntryID());
    }
    // In the list one folder alone is gone to, and none is chosen twice.
    const bool canBeChosen = folders.size() > 1 && different.size() == folders.size();
    if (!canBeChosen || !ChooseFolders(window, folders)) {
        ModelHand::ShowBeside(window, folders);
    }
}

bool WidgetHand::ChooseFolders(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders)
{
    auto* shown = WindowOf(window);
    if (shown == nullptr || !FolderPointer(*shown).HasMenu()) {
        return false;
    }
    std::vector<std::string> paths;
    for (const auto& folder : folders) {
        paths.push_back(mDesk.Session().Mailbox()->PathOf(folder));
    }
    WorkAt(mDesk, [&] { FolderPointer(*shown).Choose(paths); });
    return true;
}

void WidgetHand::PickView(const Ref<HostExplorer>& window, const std::string& name)
{
    auto* shown = WindowOf(window);
    if (shown != nullptr && FolderPointer(*shown).HasMenu() && FolderPointer(*shown).HasView(name)) {
        WorkAt(mDesk, [&] { FolderPointer(*shown).PickView(name); });
    } else {
        ModelHand::PickView(window, name);
    }
}

void WidgetHand::Activate(const Ref<HostExplorer>& window)
{
    const auto isInFront = [&] { return mDesk.Windows().ActiveExplorer() == window; };
    auto* shown = WindowOf(window);
    // What stands in front can't be brought there.
    if (shown == nullptr || shown->isActiveWindow() || isInFront()) {
        ModelHand::Activate(window);
        return;
    }
    WorkAt(mDesk, [&] {
        shown->activateWindow();
        if (!QTest::qWaitFor(isInFront)) {
            throw RequestError("the window doesn't come to the front");
        }
    });
}

bool WidgetHand::Save(const Ref<HostInspector>& window)
{
    auto* shown = WindowOf(window);
    std::optional<bool> isSaved;
    if (shown != nullptr) {
        WorkAt(mDesk, [&] { isSaved = PagePointer(*shown).Save(); });
    }
    return isSaved ? *isSaved : ModelHand::Save(window);
}

bool WidgetHand::Reschedule(const Ref<StoreItem>& item, Date start, Date end)
{
    auto* window = ReachedAlone(*item);
    bool isDragged = false;
    // What is open with changes can't be dragged.
    if (window != nullptr && !item->HasChanges()) {
        WorkAt(mDesk, [&] { isDragged = AgendaPointer(*window).Drag(item->Number(), { start, end }); });
    }
    return isDragged ? item->Start() == start && item->End() == end : ModelHand::Reschedule(item, start, end);
}

void WidgetHand::Edit(const Ref<HostInspector>& window, const std::string& control, const Variant& value)
{
    auto* shown = WindowOf(window);
    bool isDone = false;
    if (shown != nullptr) {
        WorkAt(mDesk, [&] { isDone = PagePointer(*shown).Enter(control, value, *mDesk.Formats()); });
    }
    if (!isDone) {
        ModelHand::Edit(window, control, value);
    }
}

bool WidgetHand::Close(const Ref<HostInspector>& window)
{
    auto* shown = mWindows() == nullptr ? nullptr : mWindows()->WindowOf(window);
    if (shown == nullptr) {
        return ModelHand::Close(window);
    }
    WorkAt(mDesk, [shown] { shown->close(); });
    return window->IsGone();
}

void WidgetHand::ClickCommand(const Ref<HostInspector>& window, const CommandPath& command)
{
    const auto control = FindCommand(*window->Bars(), command.bar, command.captions);
    auto* shown = WindowOf(window);
    bool isDone = false;
    if (shown != nullptr && command.captions.size() == 1) {
        control->CheckUsable();
        WorkAt(mDesk, [&] { isDone = PagePointer(*shown).Click(control->Now().caption); });
    }
    if (!isDone) {
        ModelHand::ClickCommand(window, command);
    }
}

void WidgetHand::Delete(const Ref<StoreItem>& item)
{
    if (auto* window = ReachedAlone(*item)) {
        WorkAt(mDesk, [&] { AgendaPointer(*window).Press(Qt::Key_Delete); });
    } else {
        ModelHand::Delete(item);
    }
}

MainWindow* WidgetHand::WindowOf(const Ref<HostExplorer>& explorer) const
{
    const auto* windows = mWindows();
    return windows == nullptr ? nullptr : windows->WindowOf(explorer);
}

InspectorWindow* WidgetHand::WindowOf(const Ref<HostInspector>& inspector) const
{
    const auto* windows = mWindows();
    return windows == nullptr ? nullptr : dynamic_cast<InspectorWindow*>(windows->WindowOf(inspector));
}

MainWindow* WidgetHand::Reached(const StoreItem& item) const
{
    auto* window = FrontWindow();
    return window != nullptr && AgendaPointer(*window).Reach(item.Number(), item.Start()) ? window : nullptr;
}

MainWindow* WidgetHand::ReachedAlone(const StoreItem& item) const
{
    auto* window = Reached(item);
    const bool isAlone = window != nullptr && window->Selected() == std::set { item.Number() };
    return isAlone && window->Explorer()->Selection()->Count() == 1 ? window : nullptr;
}

MainWindow* WidgetHand::FrontWindow() const
{
    if (!mDesk.Session().IsStarted()) {
        return nullptr;
    }
    const auto front = mDesk.Windows().ActiveExplorer().As<HostExplorer>();
    return front ? WindowOf(front) : nullptr;
}

}
