#pragma once

#include "base/Ref.h"
#include "engine/core/TempodialMain.h"
#include "platform/objectmodel/Application.h"

namespace tempodial {

/// The add-in as a host has loaded it, wherever it runs.
class LoadedAddIn
{
public:
    virtual ~LoadedAddIn() = default;

    /// Connects it with the application as it is to see it.
    virtual void Connect(const Ref<Application>& application) = 0;
    /// Begins the shut-down and disconnects it.
    virtual void Disconnect() = 0;
    /// Its own members; fails with `Failure` while it isn't connected, when it stays dormant, and when it runs
    /// elsewhere.
    virtual TempodialMain& Members() const = 0;
};

}
