#pragma once

#include "addin/base/Windows.h"
#include "wire/Conversation.h"

namespace tempodial {

/// Lets the host answer what a module that knows of no test asks the system for: the time, message boxes, and documents
/// to be opened; and lets it act when the module finds no more messages. They take the place of four imports.
class ImportHooks
{
public:
    /// Changes a loaded module, for which the host must live; fails with `WireFailure` when it lacks one of them.
    static void Set(HMODULE module, Conversation& host);
};

}
