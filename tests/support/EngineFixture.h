#pragma once

#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "support/MapRegistry.h"
#include "support/TestHost.h"
#include "support/TraceFixture.h"

#include <string>
#include <vector>

namespace tempodial {

/// An initialised main object over a mailbox in memory, an empty registry and an explorer on the inbox. Nothing ran
/// yet: the mailbox has its default folders only.
class EngineFixture : public TraceFixture
{
protected:
    static constexpr const char* ProductKey = "Software\\Lindenfold\\Tempodial";
    static constexpr const char* ActivityClass = "IPM.Appointment.TDActivity1";

    EngineFixture();
    ~EngineFixture() override;

    Ref<MAPIFolder> Calendar();
    /// What the product keeps in the user's registry, "" for an absent value.
    std::string Registered(const std::string& value);
    void Register(const std::string& value, const std::string& text);
    /// Makes the form of activities known to the mailbox.
    void PublishForm();
    /// Puts a file into the install folder.
    void Install(const std::string& name, const std::string& content);
    /// Shows an item in a window.
    void Open(const Ref<AppointmentItem>& item);
    static std::string Property(const Ref<AppointmentItem>& item, const std::string& name);
    /// A moment of October 10, 2006.
    static Date At(int hour, int minute, int second = 0);

    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    TestHost mHost { mFolder.Path(), mRegistry };
    Ref<CannedMessageBox> mMessages = mHost.messageBox;
    Ref<FormModelFactory> mForms = mHost.forms;
    Ref<TestEventPump> mEventPump = mHost.eventPump;
    Ref<Mailbox> mMailbox = mHost.mailbox;
    Ref<NameSpace> mNamespace = mMailbox->NameSpace();
    Ref<HostExplorer> mExplorer = mHost.explorer;
    Ref<TestApplication> mApplication = mHost.application;
    Ref<TempodialMain> mMain = MakeRef<TempodialMain>(mHost.platform);
    /// What was used of windows and of what comes from them, such as "Explorer.SetCurrentFolder".
    std::vector<std::string> mWindowUses;
    /// The class of the form template's items.
    std::string mFormClass = ActivityClass;
};

}
