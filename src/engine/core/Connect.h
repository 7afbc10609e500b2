#pragma once

#include "base/Ref.h"
#include "platform/Platform.h"
#include "platform/objectmodel/Application.h"

#include <string>

namespace tempodial {

class TempodialMain;

/// The class that a host loads: it makes the add-in and ends it. Nothing that fails inside leaves it.
class Connect
{
public:
    explicit Connect(Ref<const Platform> platform);

    /// Makes and initialises the add-in, unless the host runs without any window: then it stays dormant.
    void OnConnection(const Ref<Application>& application, const std::string& progID);
    /// The host's further calls; none has a meaning here.
    void OnStartupComplete() { }
    void OnAddInsUpdate() { }
    void OnBeginShutdown() { }
    /// Ends the add-in.
    void OnDisconnection();

    /// The add-in, nothing while it is dormant.
    const Ref<TempodialMain>& Main() const { return mMain; }

private:
    Ref<const Platform> mPlatform;
    Ref<TempodialMain> mMain;
};

}
