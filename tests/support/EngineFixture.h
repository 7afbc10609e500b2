#pragma once

#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "forms/FormModelFactory.h"
#include "host/store/FormTemplate.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "support/MapRegistry.h"
#include "support/ObservedItem.h"
#include "support/TestApplication.h"
#include "support/TraceFixture.h"

#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// A message box that is answered at once and kept.
class TestMessageBox : public MessageBox
{
public:
    std::vector<std::string> texts;

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon) override
    {
        texts.push_back(text);
        return buttons.front();
    }
};

/// An event pump that does what a test wants done.
class TestEventPump : public EventPump
{
public:
    std::function<void()> onProcess;

    void ProcessPending() override
    {
        if (onProcess) {
            onProcess();
        }
    }
};

/// An initialised main object over a mailbox in memory, an empty registry and windows that the test makes. Nothing ran
/// yet: the mailbox has its default folders only.
class EngineFixture : public TraceFixture
{
protected:
    static constexpr const char* ProductKey = "Software\\Lindenfold\\Tempodial";
    static constexpr const char* ActivityClass = "IPM.Appointment.TDActivity1";

    EngineFixture()
    {
        mPlatform->registry = mRegistry;
        mPlatform->xml = MakeRef<ExpatXmlFactory>();
        mPlatform->messageBox = mMessages;
        mPlatform->forms = mForms;
        mPlatform->eventPump = mEventPump;
        mRegistry->values[{ Hive::LocalMachine, ProductKey, "Install Directory" }] = mFolder.Path("install");
        mMailbox = Mailbox::Open(":memory:", mPlatform->formats, mPlatform->xml);
        mNamespace = mMailbox->NameSpace();
        mApplication->nameSpace = mNamespace;
        mApplication->activeExplorer = mExplorer;
        mExplorer->folder = mNamespace->GetDefaultFolder(DefaultFolder::Inbox);
        mApplication->explorers->windows = { mExplorer };
        mApplication->fromTemplate = [this](const std::string&, const Ref<MAPIFolder>& folder) {
            return mMailbox->NewItem(folder, FormTemplate { mFormClass, "", {}, "" });
        };
        mMain = MakeRef<TempodialMain>(mPlatform);
        mMain->Initialize("Tempodial.Connect", mApplication);
        mLog = mMain->mTempodialDebugLog;
        ForgetTrace();
    }
    ~EngineFixture() override { mMain->Terminate(); }

    Ref<MAPIFolder> Calendar() { return mNamespace->GetDefaultFolder(DefaultFolder::Calendar); }
    /// What the product keeps in the user's registry, "" for an absent value.
    std::string Registered(const std::string& value)
    {
        return mRegistry->Read(Hive::CurrentUser, ProductKey, value, RegistryAccess::Query).ToText();
    }
    void Register(const std::string& value, const std::string& text)
    {
        mRegistry->Write(Hive::CurrentUser, ProductKey, value, text);
    }
    /// Makes the form of activities known to the mailbox.
    void PublishForm()
    {
        mMailbox->NewItem(Calendar(), FormTemplate { ActivityClass, "Activity", {}, "" })
            ->FormDescription()
            ->PublishForm(FormRegistry::Personal);
    }
    /// Puts a file into the install folder.
    void Install(const std::string& name, const std::string& content)
    {
        std::filesystem::create_directories(mFolder.Path("install"));
        mFolder.Write("install/" + name, content);
    }
    /// Shows an item in a window, from the next run of the main object on.
    void Open(const Ref<AppointmentItem>& item)
    {
        mApplication->inspectors->windows.push_back(MakeRef<TestInspector>(item));
    }
    static std::string Property(const Ref<AppointmentItem>& item, const std::string& name)
    {
        const auto property = item->UserProperties()->Item(name);
        return property ? property->Value().ToText() : "(absent)";
    }
    /// A moment of October 10, 2006.
    static Date At(int hour, int minute, int second = 0)
    {
        return Date::FromParts({ 2006, 10, 10, hour, minute, second });
    }

    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    Ref<TestMessageBox> mMessages = MakeRef<TestMessageBox>();
    Ref<FormModelFactory> mForms = MakeRef<FormModelFactory>();
    Ref<TestEventPump> mEventPump = MakeRef<TestEventPump>();
    Ref<Mailbox> mMailbox;
    Ref<NameSpace> mNamespace;
    Ref<TestExplorer> mExplorer = MakeRef<TestExplorer>();
    Ref<TestApplication> mApplication = MakeRef<TestApplication>();
    Ref<TempodialMain> mMain;
    /// The class of the form template's items.
    std::string mFormClass = ActivityClass;
};

}
