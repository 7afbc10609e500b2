#include "support/TestMailbox.h"

#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"

namespace tempodial {

Ref<Mailbox> OpenTestMailbox(const std::string& path)
{
    return Mailbox::Open(path, MakeRef<IcuLocaleFormats>("en_US"), MakeRef<ExpatXmlFactory>());
}

Ref<StoreItem> NewTestItem(const Ref<Mailbox>& mailbox, const std::string& subject)
{
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.subject = subject;
    data.start = Date::FromParts({ 2006, 10, 10, 9, 0, 0 });
    data.end = data.start.AddMinutes(5);
    return mailbox->NewItem(mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar), data);
}

Ref<Items> TestItems(const Ref<Mailbox>& mailbox)
{
    return mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar)->Items();
}

}
