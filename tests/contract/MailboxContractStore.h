#pragma once

#include "contract/ContractStore.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"
#include "support/TempFolder.h"

#include <string>

namespace tempodial {

/// The portable host's mailbox, in memory or in a file.
class MailboxContractStore final : public ContractStore
{
public:
    MailboxContractStore(const std::string& locale, bool inMemory)
        : mFormats(MakeRef<IcuLocaleFormats>(locale))
        , mMailbox(
              Mailbox::Open(inMemory ? ":memory:" : mFolder.Path("mailbox.db"), mFormats, MakeRef<ExpatXmlFactory>()))
    {
    }

    Ref<NameSpace> Session() override { return mMailbox->NameSpace(); }
    Ref<LocaleFormats> Formats() override { return mFormats; }
    void DeliverEvents() override { mMailbox->DeliverEvents(); }
    void RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name) override
    {
        mMailbox->RenameFolder(folder, name);
    }
    void MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent) override
    {
        mMailbox->MoveFolder(folder, parent);
    }
    void DeleteFolder(const Ref<MAPIFolder>& folder) override { mMailbox->DeleteFolder(folder); }
    Ref<AppointmentItem> NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form) override
    {
        return mMailbox->NewItem(folder, form);
    }

private:
    TempFolder mFolder;
    Ref<LocaleFormats> mFormats;
    Ref<Mailbox> mMailbox;
};

}
