#include "session/ActivityGesture.h"

#include "base/Text.h"
#include "host/store/StoreItem.h"
#include "session/Steps.h"
#include "session/WorkLogFolder.h"

#include <algorithm>

namespace tempodial {

namespace {

bool BelongsTo(const Ref<MAPIFolder>& folder, const Ref<OutlookItem>& item)
{
    const auto stored = item.As<StoreItem>();
    return stored && stored->Parent()->EntryID() == folder->EntryID();
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

}
