#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/Views.h"

#include <cstdint>
#include <string>

namespace tempodial {

class MailboxStore;

/// A folder of the mailbox.
class StoreFolder final : public MAPIFolder
{
public:
    StoreFolder(Ref<MailboxStore> store, std::int64_t row);

    std::string EntryID() const override;
    std::string Name() const override;
    std::string FullFolderPath() const override;
    Ref<tempodial::Folders> Folders() override;
    Ref<tempodial::Items> Items() override;
    Ref<tempodial::Views> Views() override;

    /// The kind of default folder whose items it holds.
    DefaultFolder Kind() const;

private:
    Ref<MailboxStore> mStore;
    std::int64_t mRow;
};

}
