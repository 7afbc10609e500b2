#pragma once

#include "base/Failure.h"
#include "host/windows/HostApplication.h"
#include "platform/objectmodel/Application.h"
#include "support/Observer.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace tempodial {

/// The host's windows of a kind, of which a test can tell another number.
template <class Collection, class Window> class TestWindows : public Collection
{
public:
    explicit TestWindows(Ref<Collection> windows)
        : mWindows(std::move(windows))
    {
    }

    /// What is told as the number of windows, when it is set.
    std::optional<std::int32_t> toldCount;

    std::int32_t Count() override
    {
        const auto count = mWindows->Count();
        return toldCount.value_or(count);
    }
    Ref<Window> Item(std::int32_t index) override { return mWindows->Item(index); }
    Subscription Subscribe(typename Collection::Events events) override
    {
        return mWindows->Subscribe(std::move(events));
    }

private:
    Ref<Collection> mWindows;
};

/// The host's application, of which a test is told and which it can change or let fail.
class TestApplication : public Application
{
public:
    explicit TestApplication(Ref<HostApplication> application);

    /// The application itself, for what a person does.
    Ref<HostApplication> host;
    std::string version = HostApplication::DefaultVersion;
    bool versionFails = false;
    /// What is given as the mail session, when it is set.
    std::optional<Ref<NameSpace>> toldNameSpace;
    /// Tells what is used of windows and of what comes from them.
    const Ref<Observer> observer = MakeRef<Observer>();
    /// False to tell of no explorer in front.
    bool hasActiveExplorer = true;
    /// Makes the item of a form template, when it is set.
    std::function<Ref<AppointmentItem>(const std::string& path, const Ref<MAPIFolder>& folder)> fromTemplate;
    /// Makes a mail, when it is set.
    std::function<Ref<MailItem>()> newMail;
    Ref<TestWindows<tempodial::Explorers, Explorer>> explorers;
    Ref<TestWindows<tempodial::Inspectors, Inspector>> inspectors;

    void LogOn() const;
    void Quit() const;

    std::string Version() const override;
    Ref<tempodial::Explorers> Explorers() override;
    Ref<tempodial::Inspectors> Inspectors() override;
    Ref<NameSpace> GetNamespace(const std::string& type) override;
    Ref<Explorer> ActiveExplorer() override;
    Ref<Inspector> ActiveInspector() override;
    Ref<MailItem> CreateItem() override;
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override;
    Subscription Subscribe(ApplicationEvents events) override;
};

}
