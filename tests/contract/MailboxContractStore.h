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
    MailboxContractStore(const std::string& locale, bool inMemory);

    Ref<NameSpace> Session() override;
    Ref<LocaleFormats> Formats() override;
    void DeliverEvents() override;
    void RenameFolder(const Ref<MAPIFolder>& folder, const std::string& name) override;
    void MoveFolder(const Ref<MAPIFolder>& folder, const Ref<MAPIFolder>& parent) override;
    void DeleteFolder(const Ref<MAPIFolder>& folder) override;
    Ref<AppointmentItem> NewItem(const Ref<MAPIFolder>& folder, const FormTemplate& form) override;

private:
    TempFolder mFolder;
    Ref<LocaleFormats> mFormats;
    Ref<Mailbox> mMailbox;
};

}
