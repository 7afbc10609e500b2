#pragma once

#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"

#include <string>

namespace tempodial {

/// Opens a mailbox with the forms of the United States; without a path a new one in memory.
inline Ref<Mailbox> OpenTestMailbox(const std::string& path = ":memory:")
{
    return Mailbox::Open(path, MakeRef<IcuLocaleFormats>("en_US"), MakeRef<ExpatXmlFactory>());
}

/// A new item of the default calendar, of five minutes and unsaved.
inline Ref<StoreItem> NewTestItem(const Ref<Mailbox>& mailbox, const std::string& subject)
{
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.subject = subject;
    data.start = Date::FromParts({ 2006, 10, 10, 9, 0, 0 });
    data.end = data.start.AddMinutes(5);
    return mailbox->NewItem(mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar), data);
}

/// The items of the default calendar.
inline Ref<Items> TestItems(const Ref<Mailbox>& mailbox)
{
    return mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar)->Items();
}

}
