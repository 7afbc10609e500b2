#pragma once

#include "base/Text.h"
#include "engine/core/Connect.h"
#include "engine/core/TempodialMain.h"
#include "forms/FormModelFactory.h"
#include "host/profile/MailboxEventPump.h"
#include "host/store/FormTemplate.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreImportJournal.h"
#include "host/store/StoreItem.h"
#include "host/system/ExpatXml.h"
#include "host/system/HostFileSystem.h"
#include "host/system/IcuLocaleFormats.h"
#include "support/ManualClock.h"
#include "support/MapRegistry.h"
#include "support/TempFolder.h"
#include "support/TestApplication.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

/// An application of any version, of which a member or two may fail.
class VersionedApplication : public TestApplication
{
public:
    std::string version = "16.0.0.1";
    bool versionFails = false;

    std::string Version() const override
    {
        if (versionFails) {
            throw Failure(Error::Automation);
        }
        return version;
    }
    Subscription Subscribe(ApplicationEvents events) override { return mSource.Subscribe(std::move(events)); }
    void LogOn() const { mSource.Raise(&ApplicationEvents::MapiLogonComplete); }
    void Quit() const { mSource.Raise(&ApplicationEvents::Quit); }

private:
    EventSource<ApplicationEvents> mSource;
};

/// A picture that is nothing but there.
class TestPicture : public Picture
{
};

/// Knows the pictures that a test names; others are absent.
class TestPictures : public PictureLoader
{
public:
    bool present = true;

    Ref<Picture> Load(const std::string& path) override
    {
        if (!present) {
            throw Failure(Error::FileNotFound);
        }
        loaded.push_back(path.substr(path.rfind('/') + 1));
        return MakeRef<TestPicture>();
    }

    std::vector<std::string> loaded;
};

/// The add-in with a mailbox in memory, a registry in memory, one window, and a trace to look at.
class CoreFixture : public testing::Test
{
protected:
    CoreFixture()
    {
        mPlatform->fileSystem = MakeRef<HostFileSystem>(mFolder.Path());
        mPlatform->registry = mRegistry;
        mPlatform->shell = MakeRef<NoShell>();
        mPlatform->clock = mClock;
        mPlatform->formats = MakeRef<IcuLocaleFormats>("en_US");
        mPlatform->xml = MakeRef<ExpatXmlFactory>();
        mPlatform->pictures = mPictures;
        mPlatform->forms = MakeRef<FormModelFactory>();
        mMailbox = Mailbox::Open(":memory:", mPlatform->formats, mPlatform->xml);
        mPlatform->importJournal = MakeRef<StoreImportJournal>(mMailbox);
        mPlatform->eventPump = MakeRef<MailboxEventPump>(mMailbox);
        mApplication->nameSpace = mMailbox->NameSpace();
        mApplication->fromTemplate = [this](const std::string&, const Ref<MAPIFolder>& folder) {
            FormTemplate form;
            form.messageClass = "IPM.Appointment.TDActivity1";
            return Ref<AppointmentItem>(mMailbox->NewItem(folder, form));
        };
        mExplorer->folder = mMailbox->FolderByPath("Inbox");
        mApplication->activeExplorer = mExplorer;
        mApplication->explorers->windows = { mExplorer };
    }
    ~CoreFixture() override { mConnect.OnDisconnection(); }

    void ConnectAddIn() { mConnect.OnConnection(mApplication, "Tempodial.Connect"); }
    TempodialMain& Main() const { return *mConnect.Main(); }
    void Set(const std::string& value, const Variant& content)
    {
        mRegistry->values[{ Hive::CurrentUser, R"(Software\Lindenfold\Tempodial)", value }] = content;
    }
    Variant Get(const std::string& value)
    {
        return mRegistry->Read(Hive::CurrentUser, R"(Software\Lindenfold\Tempodial)", value, RegistryAccess::Query);
    }
    bool HasTraceFile() const { return mFolder.Has("Tempodial/WorkLogTrace1.out"); }
    /// The lines traced since the last call without thread, moment and context word.
    std::vector<std::string> Traced()
    {
        std::vector<std::string> lines;
        const auto text = mFolder.Read("Tempodial/WorkLogTrace1.out");
        for (const auto& line : Split(text.substr(mRead), CrLf)) {
            const auto context = line.find("M: ");
            if (context != std::string::npos) {
                lines.push_back(line.substr(line.find(' ', context + 3) + 1));
            }
        }
        mRead = text.size();
        return lines;
    }

    TempFolder mFolder;
    Ref<ManualClock> mClock = MakeRef<ManualClock>(Date::FromYearMonthDay(2006, 10, 10).AddMinutes(9 * 60));
    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    Ref<TestPictures> mPictures = MakeRef<TestPictures>();
    Ref<Platform> mPlatform = MakeRef<Platform>();
    Ref<Mailbox> mMailbox;
    Ref<VersionedApplication> mApplication = MakeRef<VersionedApplication>();
    Ref<TestExplorer> mExplorer = MakeRef<TestExplorer>();
    Connect mConnect { mPlatform };

private:
    class NoShell : public Shell
    {
    public:
        void Open(const std::string&) override { }
        std::int32_t ThreadId() override { return 7; }
    };

    std::size_t mRead = 0;
};

}
