#pragma once

#include "base/Failure.h"
#include "host/windows/HostApplication.h"
#include "platform/objectmodel/Application.h"
#include "support/ObservedWindows.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace tempodial {

/// The host's windows of a kind, of which a test is told.
template <class Collection, class Window, class Observed> class TestWindows : public Collection
{
public:
    TestWindows(Ref<Collection> windows, WindowObserver observer)
        : mWindows(std::move(windows))
        , mObserver(std::move(observer))
    {
    }

    /// What is told as the number of windows, when it is set.
    std::optional<std::int32_t> toldCount;

    std::int32_t Count() override
    {
        mObserver("Windows.Count");
        return toldCount.value_or(mWindows->Count());
    }
    Ref<Window> Item(std::int32_t index) override { return MakeRef<Observed>(mWindows->Item(index), mObserver); }
    Subscription Subscribe(typename Collection::Events events) override
    {
        return mWindows->Subscribe(Observing(std::move(events)));
    }

private:
    ExplorersEvents Observing(ExplorersEvents events) const
    {
        return { .NewExplorer
            = [raise = std::move(events.NewExplorer), observer = mObserver](
                  const Ref<Explorer>& explorer) { raise(MakeRef<ObservedExplorer>(explorer, observer)); } };
    }
    InspectorsEvents Observing(InspectorsEvents events) const
    {
        return { .NewInspector
            = [raise = std::move(events.NewInspector), observer = mObserver](
                  const Ref<Inspector>& inspector) { raise(MakeRef<ObservedInspector>(inspector, observer)); } };
    }

    Ref<Collection> mWindows;
    WindowObserver mObserver;
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
    /// Told of the use of each window and its bars, when it is set.
    const std::shared_ptr<WindowObserver> observer = std::make_shared<WindowObserver>();
    /// False to tell of no explorer in front.
    bool hasActiveExplorer = true;
    /// Makes the item of a form template, when it is set.
    std::function<Ref<AppointmentItem>(const std::string& path, const Ref<MAPIFolder>& folder)> fromTemplate;
    /// Makes a mail, when it is set.
    std::function<Ref<MailItem>()> newMail;
    Ref<TestWindows<tempodial::Explorers, Explorer, ObservedExplorer>> explorers;
    Ref<TestWindows<tempodial::Inspectors, Inspector, ObservedInspector>> inspectors;

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

private:
    WindowObserver Telling() const;
};

}
