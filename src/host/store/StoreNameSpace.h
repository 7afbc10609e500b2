#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/NameSpace.h"

namespace tempodial {

class Mailbox;

/// The session that shows one mailbox.
class StoreNameSpace final : public NameSpace
{
public:
    explicit StoreNameSpace(Ref<Mailbox> mailbox);

    /// A default folder that was deleted fails (-2147221233).
    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override;
    Ref<tempodial::Folders> Folders() override;

private:
    Ref<Mailbox> mMailbox;
};

}
