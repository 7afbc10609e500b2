#pragma once

#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/ObservedActivityWindow.h"
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
    InspectorFixture()
    {
        mPlatform->registry = mRegistry;
        mPlatform->xml = MakeRef<ExpatXmlFactory>();
        mPlatform->shell = mShell;
        mPlatform->pictures = mPictures;
        mPlatform->forms = mForms;
        mPlatform->messageBox = mMessageBox;
        mPlatform->eventPump = mEventPump;
        mRegistry->values[{ Hive::LocalMachine, "Software\\Lindenfold\\Tempodial", "Install Directory" }]
            = TEMPODIAL_SHARE_DIR;
        mMailbox = Mailbox::Open(":memory:", mPlatform->formats, mPlatform->xml);
        mApplication = MakeRef<HostApplication>(mMailbox);
        mApplication->OpenExplorer(mMailbox->FolderByPath("Inbox"));
        mMain = MakeRef<TempodialMain>(mPlatform);
        mMain->Initialize("Tempodial.Connect", mApplication);
        mMain->TempodialMain_Run();
        mLog = mMain->mTempodialDebugLog;
        ForgetTrace();
    }
    ~InspectorFixture() override { mMain->Terminate(); }

    /// A saved activity of ten minutes from nine o'clock on a day of October 2006.
    Ref<AppointmentItem> Activity(const std::string& description = "Plan", const std::string& people = "",
        const std::string& project = "", const std::string& application = "Notepad", int day = 10)
    {
        const auto start = Date::FromParts({ 2006, 10, day, 9, 0, 0 });
        auto item = mMain->CreateCalendarItem(
            project, description, application, people, 10, start, start.AddMinutes(10), "", false);
        mMailbox->DeliverEvents();
        ForgetTrace();
        return item;
    }
    /// A saved appointment that is no activity; without a path it is in the calendar.
    Ref<AppointmentItem> Appointment(const std::string& subject, const std::string& folder = "Calendar")
    {
        ItemData data;
        data.messageClass = "IPM.Appointment";
        data.subject = subject;
        data.start = Date::FromParts({ 2006, 10, 10, 11, 0, 0 });
        data.end = data.start.AddMinutes(30);
        auto item = mMailbox->NewItem(mMailbox->FolderByPath(folder), data);
        item->Save();
        ForgetTrace();
        return item;
    }
    void AddProject(const std::string& name, const std::string& rule = "")
    {
        mMain->UpdateorAddProject(name, rule, "", "", "2", false);
        ForgetTrace();
    }
    /// A window on an item, nothing when the add-in was against it.
    Ref<HostInspector> Open(const Ref<AppointmentItem>& item)
    {
        return mApplication->OpenInspector(item.As<StoreItem>());
    }
    /// A window that the running add-in isn't told of, of an application of its own that is then the add-in's, with a
    /// companion of the number 90 in `mCompanion`; an observer is told of what the companion uses.
    Ref<HostInspector> OpenAlone(const Ref<AppointmentItem>& item, const ItemObserver& observer = {})
    {
        mAlone = MakeRef<HostApplication>(mMailbox);
        mMain->mApplication.Set(mAlone, {});
        const auto subscription = mAlone->Inspectors()->Subscribe({ .NewInspector = [&](const auto& inspector) {
            mCompanion = MakeRef<TempodialInspector>(mPlatform);
            mCompanion->Initialize(mLog, mMain,
                observer ? MakeRef<ObservedActivityWindow>(inspector, observer) : Ref<Inspector>(inspector), 90);
        } });
        return mAlone->OpenInspector(item.As<StoreItem>());
    }
    /// Runs something when a window comes into being, after the add-in did.
    void OnNewInspector(std::function<void(const Ref<Inspector>&)> handler)
    {
        mNewInspector = mApplication->Inspectors()->Subscribe({ .NewInspector = std::move(handler) });
    }
    /// Lets a built-in command be absent from windows.
    void Without(std::int32_t id)
    {
        OnNewInspector([id](const Ref<Inspector>& inspector) {
            inspector->CommandBars()->ItemNamed("Standard")->FindControl({ .id = id, .tag = {} })->Delete();
        });
    }
    static bool HasBar(const Ref<CommandBars>& bars, const std::string& name)
    {
        for (std::int32_t i = 1; i <= bars->Count(); ++i) {
            if (bars->Item(i)->Name() == name) {
                return true;
            }
        }
        return false;
    }

    static Ref<PageControl> Control(const Ref<HostInspector>& inspector, const std::string& name)
    {
        return inspector->ModifiedFormPages()->Item("Activity")->Controls()->Item(name);
    }
    static std::string Value(const Ref<HostInspector>& inspector, const std::string& name)
    {
        return Control(inspector, name)->Value().ToText();
    }
    static void Set(const Ref<HostInspector>& inspector, const std::string& name, const Variant& value)
    {
        Control(inspector, name)->SetValue(value);
    }
    static Ref<CommandBar> Bar(const Ref<HostInspector>& inspector, const std::string& name)
    {
        return inspector->CommandBars()->ItemNamed(name);
    }
    /// The add-in's bar in short: "id caption" of each control.
    static std::vector<std::string> Controls(const Ref<HostInspector>& inspector)
    {
        std::vector<std::string> texts;
        const auto controls = Bar(inspector, "Tempodial")->Controls();
        for (std::int32_t i = 1; i <= controls->Count(); ++i) {
            texts.push_back(std::to_string(controls->Item(i)->Id()) + " " + controls->Item(i)->Caption());
        }
        return texts;
    }
    /// The user clicks a button of the add-in's bar.
    static void Click(const Ref<HostInspector>& inspector, const std::string& caption)
    {
        Bar(inspector, "Tempodial")->Controls()->ItemCaptioned(caption).As<HostCommandBarButton>()->Click();
    }
    static Variant Property(const Ref<AppointmentItem>& item, const std::string& name)
    {
        return item->UserProperties()->Item(name)->Value();
    }
    /// What is stored of an item, whatever the item holds now.
    std::string StoredProperty(const Ref<AppointmentItem>& item, const std::string& name)
    {
        const auto stored = item.As<StoreItem>();
        const auto* before = stored->DataBefore();
        for (const auto& property : (before ? *before : stored->Data()).properties) {
            if (property.name == name) {
                return property.value.ToText();
            }
        }
        return "(absent)";
    }
    /// The companions' lines since the last call to this or `Traced`, without the context word.
    std::vector<std::string> Companions()
    {
        std::vector<std::string> own;
        const std::string context = "TDInspector ";
        for (const auto& line : Traced()) {
            if (line.starts_with(context)) {
                own.push_back(line.substr(context.size()));
            }
        }
        return own;
    }

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
