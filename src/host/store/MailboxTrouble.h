#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"

namespace tempodial {

/// Fails when a read of the mailbox met damage or a failing disk, or when memory was wanting: then what was read isn't
/// all there is, so that nothing may be told of it, and nothing more is written.
void RequireNoTrouble(const Ref<Mailbox>& mailbox);
/// True when the whole mailbox is sound; reads all of it.
bool IsSound(const Ref<Mailbox>& mailbox);

}
