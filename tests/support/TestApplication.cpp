#include "support/TestApplication.h"

#include "base/Failure.h"

namespace tempodial {

TestApplication::TestApplication(Ref<HostApplication> application)
    : host(std::move(application))
    , explorers(MakeRef<TestWindows<tempodial::Explorers, Explorer>>(Wrapped(host->Explorers(), observer)))
    , inspectors(MakeRef<TestWindows<tempodial::Inspectors, Inspector>>(Wrapped(host->Inspectors(), observer)))
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
    return hasActiveExplorer ? Wrapped(host->ActiveExplorer(), observer) : nullptr;
}

Ref<Inspector> TestApplication::ActiveInspector()
{
    return Wrapped(host->ActiveInspector(), observer);
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

}
