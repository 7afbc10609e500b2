#pragma once

#include "base/Ref.h"
#include "host/files/NativePath.h"
#include "host/store/Mailbox.h"

namespace tempodial {

/// Writes all that a mailbox holds at this moment into a file of its own, which is made for this user alone and needs
/// no journal beside it. Fails as making a file does, as a statement does, and for a damaged mailbox.
void CopyMailbox(const Ref<Mailbox>& mailbox, const NativePath& path);

}
