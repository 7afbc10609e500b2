#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/MAPIFolder.h"

#include <cstdint>
#include <string>

namespace tempodial {

class MailboxStore;

/// The folders below a folder of the mailbox in the order in which they were made, or its one store.
class StoreFolders final : public Folders
{
public:
    /// The folders below that row; 0 for the stores.
    StoreFolders(Ref<MailboxStore> store, std::int64_t parent);

    std::int32_t Count() override;
    Ref<MAPIFolder> Item(std::int32_t index) override;
    Ref<MAPIFolder> ItemNamed(const std::string& name) override;
    /// A name in use fails (457); an empty one, or one with a slash, a backslash or a control character, fails (5).
    Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) override;

private:
    Ref<MailboxStore> mStore;
    std::int64_t mParent;
};

}
