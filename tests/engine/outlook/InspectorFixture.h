#pragma once

#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/TempodialInspector.h"
#include "forms/FormModelFactory.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "host/windows/HostApplication.h"
#include "host/windows/HostCommandBarButton.h"
#include "host/windows/HostInspector.h"
#include "host/windows/HostPageControl.h"
#include "support/CannedMessageBox.h"
#include "support/MapRegistry.h"
#include "support/Observer.h"
#include "support/TestServices.h"
#include "support/TraceFixture.h"

#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// The running add-in over the host's windows and the product's own form, with activities that a test makes.
class InspectorFixture : public TraceFixture
{
protected:
    InspectorFixture();
    ~InspectorFixture() override;

    /// A saved activity of ten minutes from nine o'clock on a day of October 2006.
    Ref<AppointmentItem> Activity(const std::string& description = "Plan", const std::string& people = "",
        const std::string& project = "", const std::string& application = "Notepad", int day = 10);
    /// A saved appointment that is no activity; without a path it is in the calendar.
    Ref<AppointmentItem> Appointment(const std::string& subject, const std::string& folder = "Calendar");
    void AddProject(const std::string& name, const std::string& rule = "");
    /// A window on an item, nothing when the add-in was against it.
    Ref<HostInspector> Open(const Ref<AppointmentItem>& item);
    /// A window that the running add-in isn't told of, of an application of its own that is then the add-in's, with a
    /// companion of the number 90 in `mCompanion`, which gets another window in its place where one is given.
    Ref<HostInspector> OpenAlone(const Ref<AppointmentItem>& item,
        const std::function<Ref<Inspector>(const Ref<Inspector>& inspector)>& shown = nullptr);
    /// The same; an observer is told of what the companion uses.
    Ref<HostInspector> OpenObserved(const Ref<AppointmentItem>& item, const UseObserver& observer);
    /// Runs something when a window comes into being, after the add-in did.
    void OnNewInspector(std::function<void(const Ref<Inspector>&)> handler);
    /// Lets a built-in command be absent from windows.
    void Without(std::int32_t id);
    static bool HasBar(const Ref<CommandBars>& bars, const std::string& name);

    static Ref<PageControl> Control(const Ref<HostInspector>& inspector, const std::string& name);
    static std::string Value(const Ref<HostInspector>& inspector, const std::string& name);
    static void Set(const Ref<HostInspector>& inspector, const std::string& name, const Variant& value);
    static Ref<CommandBar> Bar(const Ref<HostInspector>& inspector, const std::string& name);
    /// The add-in's bar in short: "id caption" of each control.
    static std::vector<std::string> Controls(const Ref<HostInspector>& inspector);
    /// The user clicks a button of the add-in's bar.
    static void Click(const Ref<HostInspector>& inspector, const std::string& caption);
    static Variant Property(const Ref<AppointmentItem>& item, const std::string& name);
    /// What is stored of an item, whatever the item holds now.
    std::string StoredProperty(const Ref<AppointmentItem>& item, const std::string& name);
    /// The companions' lines since the last call to this or `Traced`, without the context word.
    std::vector<std::string> Companions();

    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    Ref<TestShell> mShell = MakeRef<TestShell>();
    Ref<TestPictures> mPictures = MakeRef<TestPictures>();
    Ref<CannedMessageBox> mMessageBox = MakeRef<CannedMessageBox>();
    Ref<TestEventPump> mEventPump = MakeRef<TestEventPump>();
    Ref<FormModelFactory> mForms = MakeRef<FormModelFactory>();
    Ref<Mailbox> mMailbox;
    Ref<HostApplication> mApplication;
    Ref<TempodialMain> mMain;
    Ref<HostApplication> mAlone;
    Ref<TempodialInspector> mCompanion;

private:
    Subscription mNewInspector;
};

}
