#pragma once

#include "addin/base/ComRef.h"
#include "addin/win32/forms/Win32FormFactory.h"
#include "base/Ref.h"
#include "faults/FaultPlan.h"
#include "platform/Platform.h"
#include "standin/rig/RigHost.h"
#include "wire/WireValue.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What the test build of the module has besides the shipped one: the host answers what a test must decide, calls can
/// be made to fail, and a person works the forms.
class Rig
{
public:
    Rig();

    /// The only one of this module.
    static Rig& Only();

    /// Connects it with the host.
    void Attach(const RigLink& link) { mHost.emplace(link); }
    /// Does what the host asks for; an unknown word fails with `WireFailure`.
    WireValue Do(const std::string& word, const std::vector<WireValue>& arguments);
    /// The surroundings of the shipped module, with what the host answers.
    Platform Surroundings(const ComRef<IDispatch>& application);
    /// Closes the forms for good.
    void End();

private:
    using Arguments = std::vector<WireValue>;

    std::optional<RigHost> mHost;
    std::string mLocale;
    std::string mInstallFolder;
    Ref<FaultPlan> mFaults = MakeRef<FaultPlan>();
    Ref<Win32FormFactory> mForms;
    std::map<std::string, std::function<WireValue(const Arguments& arguments)>> mWorks;
};

}
