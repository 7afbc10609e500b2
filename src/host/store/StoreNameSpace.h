#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/NameSpace.h"

namespace tempodial {

class MailboxStore;

/// The session that shows one mailbox.
class StoreNameSpace final : public NameSpace
{
public:
    explicit StoreNameSpace(Ref<MailboxStore> store);

    /// A default folder that was deleted fails (-2147221233).
    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override;
    Ref<tempodial::Folders> Folders() override;

private:
    Ref<MailboxStore> mStore;
};

}
