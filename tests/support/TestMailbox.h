#pragma once

#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"

#include <string>

namespace tempodial {

/// Opens a mailbox with the forms of the United States; without a path a new one in memory.
Ref<Mailbox> OpenTestMailbox(const std::string& path = ":memory:");
/// A new item of the default calendar, of five minutes and unsaved.
Ref<StoreItem> NewTestItem(const Ref<Mailbox>& mailbox, const std::string& subject);
/// The items of the default calendar.
Ref<Items> TestItems(const Ref<Mailbox>& mailbox);

}
