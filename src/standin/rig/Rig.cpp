#include "standin/rig/Rig.h"

#include "addin/win32/UserLocale.h"
#include "addin/win32/Win32Surroundings.h"
#include "engine/core/ProductWords.h"
#include "faults/Wrapped.h"
#include "forms/ModelHands.h"
#include "standin/rig/RigSurroundings.h"
#include "wire/WireFailure.h"
#include "wire/forms/FormRequest.h"

namespace tempodial {

namespace {

/// Forms while the add-in isn't connected.
Ref<Win32FormFactory> FormsWithoutHost()
{
    return MakeRef<Win32FormFactory>(HostsWindow(ComRef<IDispatch>()));
}

}

Rig& Rig::Only()
{
    static Rig rig;
    return rig;
}

Rig::Rig()
    : mForms(FormsWithoutHost())
{
    mWorks["locale"] = [this](const Arguments& arguments) {
        mLocale = arguments.at(0).text;
        return WireValue();
    };
    mWorks["install"] = [this](const Arguments& arguments) {
        mInstallFolder = arguments.at(0).text;
        return WireValue();
    };
    mWorks["fault"] = [this](const Arguments& arguments) {
        mFaults->Add({ .call = arguments.at(0).text,
            .skip = arguments.at(1).number,
            .times = arguments.at(2).number,
            .failure = Failure(static_cast<std::int32_t>(arguments.at(3).number), arguments.at(4).text) });
        return WireValue();
    };
}

WireValue Rig::Do(const std::string& word, const std::vector<WireValue>& arguments)
{
    if (IsFormRequest(word)) {
        ModelHands hands(mForms->Models());
        return DoFormRequest(hands, word, arguments);
    }
    const auto found = mWorks.find(word);
    if (found == mWorks.end()) {
        throw WireFailure(WireFailure::Refused, "nobody can do \"" + word + "\"");
    }
    return found->second(arguments);
}

Platform Rig::Surroundings(const ComRef<IDispatch>& application)
{
    mForms = MakeRef<Win32FormFactory>(HostsWindow(application));
    auto platform = Win32Surroundings({ .text = FileText::OfHost(),
        .title = ProductName,
        .installPlace = { ProductKey, InstallFolderValue },
        .installFolder = mInstallFolder,
        .locale = PatternsOfLocale(mLocale),
        .forms = mForms });
    const auto& host = mHost.value();
    platform.clock = MakeRef<RigClock>(host);
    platform.messageBox = MakeRef<RigMessageBox>(host);
    platform.eventPump = MakeRef<RigEventPump>(host, platform.eventPump);
    platform.shell = MakeRef<RigShell>(host, platform.shell);
    return Wrapped(platform, mFaults);
}

void Rig::End()
{
    mForms->CloseAll();
    mForms = FormsWithoutHost();
}

}
