#pragma once

#include "base/Date.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostExplorer.h"
#include "host/windows/HostInspector.h"
#include "platform/objectmodel/OutlookItem.h"
#include "session/Profile.h"

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace tempodial {

/// A person changes items by a gesture of that caption, in a window or a view. When one of them belongs to the work log
/// it is a step by the caption without its mark of the keyboard; during an import it is none. Fails as the
/// work does, and as the profile's mailbox and registry do; then nothing has changed.
void GestureAsStep(const Profile& profile, const std::vector<Ref<OutlookItem>>& items, const std::string& caption,
    const std::function<void()>& work);

/// A person clicks a command of a window's bars, which is a step as above where it changes the items that are selected
/// there, or shown. Fails as the click does.
void ClickCommandAsStep(const Profile& profile, HostExplorer& window, HostCommandBarControl& command);
void ClickCommandAsStep(const Profile& profile, HostInspector& window, HostCommandBarControl& command);

/// A person saves what a window shows; false when a handler refused it. Fails as the save does.
bool SaveAsStep(const Profile& profile, HostInspector& window);
/// A person drags an item to other times; false when a handler refused it. Fails as the mailbox does.
bool RescheduleAsStep(const Profile& profile, const Ref<StoreItem>& item, Date start, Date end);

/// What is selected in a window.
std::vector<Ref<OutlookItem>> SelectedItems(HostExplorer& window);
/// The numbers of the stored items among them.
std::set<std::int64_t> SelectedNumbers(HostExplorer& window);

}
