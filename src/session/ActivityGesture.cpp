#include "session/ActivityGesture.h"

#include "base/Text.h"
#include "host/windows/BuiltInCommand.h"
#include "host/windows/Person.h"
#include "session/Steps.h"
#include "session/WorkLogFolder.h"

#include <algorithm>

namespace tempodial {

namespace {

bool BelongsTo(const Ref<MAPIFolder>& folder, const Ref<OutlookItem>& item)
{
    const auto stored = item.As<StoreItem>();
    // What is deleted may still be selected.
    return stored && !stored->IsDeleted() && stored->Parent()->EntryID() == folder->EntryID();
}

/// True for a command of the host's own that changes items.
bool ChangesItems(const HostCommandBarControl& command)
{
    const auto id = command.Now().id;
    return id == BuiltInCommand::SaveAndClose || id == BuiltInCommand::Delete;
}

}

void GestureAsStep(const Profile& profile, const std::vector<Ref<OutlookItem>>& items, const std::string& caption,
    const std::function<void()>& work)
{
    const auto workLog = WorkLogOf(profile);
    const bool isOfLog = workLog
        && std::any_of(items.begin(), items.end(), [&](const auto& item) { return BelongsTo(workLog, item); });
    if (isOfLog) {
        Steps(profile).Record(Replace(caption, "&", ""), work);
    } else {
        work();
    }
}

void ClickCommandAsStep(const Profile& profile, HostExplorer& window, HostCommandBarControl& command)
{
    const auto changed = ChangesItems(command) ? SelectedItems(window) : std::vector<Ref<OutlookItem>>();
    GestureAsStep(profile, changed, command.Now().caption, [&] { command.Click(); });
}

void ClickCommandAsStep(const Profile& profile, HostInspector& window, HostCommandBarControl& command)
{
    std::vector<Ref<OutlookItem>> changed;
    if (ChangesItems(command)) {
        changed.push_back(window.CurrentItem());
    }
    GestureAsStep(profile, changed, command.Now().caption, [&] { command.Click(); });
}

bool SaveAsStep(const Profile& profile, HostInspector& window)
{
    bool isSaved = false;
    GestureAsStep(profile, { window.CurrentItem() }, "Save", [&] { isSaved = window.Save(); });
    return isSaved;
}

bool RescheduleAsStep(const Profile& profile, const Ref<StoreItem>& item, Date start, Date end)
{
    const bool isMoved = SecondsBetween(start, end) == SecondsBetween(item->Start(), item->End());
    bool isDone = false;
    GestureAsStep(profile, { item }, isMoved ? "Move" : "Resize",
        [&] { isDone = Person(profile.Mailbox()).Reschedule(item, start, end); });
    return isDone;
}

std::vector<Ref<OutlookItem>> SelectedItems(HostExplorer& window)
{
    std::vector<Ref<OutlookItem>> items;
    const auto selection = window.Selection();
    for (std::int32_t i = 1; i <= selection->Count(); ++i) {
        items.push_back(selection->Item(i));
    }
    return items;
}

std::set<std::int64_t> SelectedNumbers(HostExplorer& window)
{
    std::set<std::int64_t> numbers;
    for (const auto& item : SelectedItems(window)) {
        const auto stored = item.As<StoreItem>();
        if (stored && stored->Number() != 0) {
            numbers.insert(stored->Number());
        }
    }
    return numbers;
}

}
