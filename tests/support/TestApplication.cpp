#include "support/TestApplication.h"

#include "base/Failure.h"

namespace tempodial {

TestApplication::TestApplication(Ref<HostApplication> application)
    : host(std::move(application))
    , explorers(MakeRef<TestWindows<tempodial::Explorers, Explorer, ObservedExplorer>>(host->Explorers(), Telling()))
    , inspectors(
          MakeRef<TestWindows<tempodial::Inspectors, Inspector, ObservedInspector>>(host->Inspectors(), Telling()))
{
}

void TestApplication::LogOn() const
{
    host->RaiseMapiLogonComplete();
}

void TestApplication::Quit() const
{
    host->RaiseQuit();
}

std::string TestApplication::Version() const
{
    if (versionFails) {
        throw Failure(Error::Automation);
    }
    return version;
}

Ref<tempodial::Explorers> TestApplication::Explorers()
{
    return explorers;
}

Ref<tempodial::Inspectors> TestApplication::Inspectors()
{
    return inspectors;
}

Ref<NameSpace> TestApplication::GetNamespace(const std::string& type)
{
    return toldNameSpace ? *toldNameSpace : host->GetNamespace(type);
}

Ref<Explorer> TestApplication::ActiveExplorer()
{
    const auto active = hasActiveExplorer ? host->ActiveExplorer() : nullptr;
    return active ? Ref<Explorer>(MakeRef<ObservedExplorer>(active, Telling())) : nullptr;
}

Ref<Inspector> TestApplication::ActiveInspector()
{
    const auto active = host->ActiveInspector();
    return active ? Ref<Inspector>(MakeRef<ObservedInspector>(active, Telling())) : nullptr;
}

Ref<MailItem> TestApplication::CreateItem()
{
    return newMail ? newMail() : host->CreateItem();
}

Ref<AppointmentItem> TestApplication::CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder)
{
    return fromTemplate ? fromTemplate(path, folder) : host->CreateItemFromTemplate(path, folder);
}

Subscription TestApplication::Subscribe(ApplicationEvents events)
{
    return host->Subscribe(std::move(events));
}

WindowObserver TestApplication::Telling() const
{
    return [told = observer](const std::string& member) {
        if (*told) {
            (*told)(member);
        }
    };
}

}
