#pragma once

#include "forms/FormModelFactory.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreImportJournal.h"
#include "host/windows/HostApplication.h"
#include "platform/Platform.h"
#include "support/CannedMessageBox.h"
#include "support/ManualClock.h"
#include "support/TestApplication.h"
#include "support/TestServices.h"

#include <string>

namespace tempodial {

/// All surroundings of an add-in, in en_US, at 9 o'clock on 10 October 2006: files in a folder, a mailbox with one
/// explorer on the inbox, and services that a test looks at.
class TestHost
{
public:
    /// Takes the folder of the files, the registry, and where the mailbox is.
    explicit TestHost(
        const std::string& folder, const Ref<Registry>& registry, const std::string& mailboxPath = ":memory:");
    /// Closes the forms that are open, as the end of a host does.
    ~TestHost();
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    Ref<TestFileSystem> files;
    Ref<ManualClock> clock = MakeRef<ManualClock>(Date::FromParts({ 2006, 10, 10, 9, 0, 0 }));
    Ref<TestShell> shell = MakeRef<TestShell>();
    Ref<TestPictures> pictures = MakeRef<TestPictures>();
    Ref<FormModelFactory> forms = MakeRef<FormModelFactory>();
    Ref<CannedMessageBox> messageBox = MakeRef<CannedMessageBox>();
    Ref<TestEventPump> eventPump = MakeRef<TestEventPump>();
    Ref<Platform> platform = MakeRef<Platform>();
    Ref<Mailbox> mailbox;
    /// The mailbox's own journal, and what the add-in gets in its place.
    Ref<StoreImportJournal> storeJournal;
    Ref<TestImportJournal> journal;
    Ref<TestApplication> application;
    /// The explorer on the inbox.
    Ref<HostExplorer> explorer;
    /// The message class of new activities.
    std::string formClass = "IPM.Appointment.TDActivity1";
};

}
