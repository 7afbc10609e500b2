#include "contract/MailboxContractStore.h"

namespace tempodial {

MailboxContractStore::MailboxContractStore(const std::string& locale, bool inMemory)
    : mFormats(MakeRef<IcuLocaleFormats>(locale))
    , mMailbox(Mailbox::Open(inMemory ? ":memory:" : mFolder.Path("mailbox.db"), mFormats, MakeRef<ExpatXmlFactory>()))
{
}

Ref<NameSpace> MailboxContractStore::Session()
{
    return mMailbox->NameSpace();
}

Ref<LocaleFormats> MailboxContractStore::Formats()
{
    return mFormats;
}

void MailboxContractStore::DeliverEvents()
{
    mMailbox->DeliverEvents();
}

void MailboxContractStore::RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name)
{
    mMailbox->RenameFolder(folder, name);
}

void MailboxContractStore::MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent)
{
    mMailbox->MoveFolder(folder, parent);
}

void MailboxContractStore::DeleteFolder(const Ref<MAPIFolder>& folder)
{
    mMailbox->DeleteFolder(folder);
}

Ref<AppointmentItem> MailboxContractStore::NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form)
{
    return mMailbox->NewItem(folder, form);
}

}
