#pragma once

#include "base/Ref.h"

#include <functional>

namespace tempodial {

class Mailbox;

/// Does work that saves several items of a mailbox, and makes it durable in one commit; when the work or the commit
/// fails, nothing is left of it, and this fails in the same way. During an import or a step the commit is that
/// of what is held already, and a failure is for whoever holds it.
void SavedTogether(const Ref<Mailbox>& mailbox, const std::function<void()>& work);

}
