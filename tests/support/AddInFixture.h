#pragma once

#include "base/Date.h"
#include "engine/core/TempodialMain.h"
#include "forms/FormModelFactory.h"
#include "host/store/Mailbox.h"
#include "host/system/HostFileSystem.h"
#include "host/system/TomlRegistry.h"
#include "platform/Platform.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"
#include "support/TestApplication.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// Messages let a test look in, or cancel, when a job lets them be processed.
class TestEventPump : public EventPump
{
public:
    /// Run each time, when it is set.
    std::function<void()> hook;

    void ProcessPending() override
    {
        if (hook) {
            hook();
        }
    }
};

/// Message boxes that note their texts and are answered by their first button.
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

/// The files of the host, of which a test is told before each operation; what it throws, the operation fails with.
class TestFileSystem : public HostFileSystem
{
public:
    using HostFileSystem::HostFileSystem;

    /// Told of "open", "copy", "delete" and "move" with the path, and of "write" and "save" for a file opened for
    /// writing: each text, and the moment at which all of it takes the place of the old file.
    std::function<void(const std::string& operation, const std::string& path)> hook;

    void MoveFile(const std::string& source, const std::string& target) override;
    void CopyFile(const std::string& source, const std::string& target, bool overwrite) override;
    void DeleteFile(const std::string& path, bool force) override;
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override;

private:
    void Tell(const std::string& operation, const std::string& path) const;
};

/// An import journal of which a test is told before each call; what it throws, the call fails with.
class TestImportJournal : public ImportJournal
{
public:
    explicit TestImportJournal(Ref<ImportJournal> journal)
        : mJournal(std::move(journal))
    {
    }

    std::function<void(const std::string& call)> hook;
    /// The calls so far, as "Loaded 20061010 4300 2".
    std::vector<std::string> calls;

    void Begin() override;
    void Loaded(const std::string& dayKey, const Position& position) override;
    void Commit() override;
    std::optional<Position> Committed(const std::string& dayKey) override;
    void HistorySaved() override;
    void End() override;

private:
    void Tell(const std::string& call);

    Ref<ImportJournal> mJournal;
};

/// An import journal as Outlook has it: none.
class NoImportJournal : public ImportJournal
{
public:
    void Begin() override { }
    void Loaded(const std::string&, const Position&) override { }
    void Commit() override { }
    std::optional<Position> Committed(const std::string&) override { return std::nullopt; }
    void HistorySaved() override { }
    void End() override { }
};

/// The add-in in a profile of its own, with one explorer on the inbox, in en_US, at 9 o'clock on 10 October 2006.
class TestAddIn
{
public:
    /// Takes the profile folder, and where the mailbox is.
    explicit TestAddIn(const std::string& profile, const std::string& mailboxPath = ":memory:");
    ~TestAddIn();
    TestAddIn(const TestAddIn&) = delete;
    TestAddIn& operator=(const TestAddIn&) = delete;

    /// Connects the add-in and logs on to the mailbox.
    void Connect();
    /// Ends the add-in; the surroundings stay.
    void Disconnect();

    /// Writes the tracker's file of a day: a first line, then these lines.
    void WriteTracker(const std::string& dayKey, const std::vector<std::string>& lines) const;
    void WriteHistory(const std::string& text) const;
    /// The content of the history file, "(absent)" without one.
    std::string HistoryText() const;
    /// True when the data folder has that file.
    bool HasFile(const std::string& name) const;
    std::string ReadFile(const std::string& name) const;
    /// The lines traced since the last call, without thread id and moment.
    std::vector<std::string> Trace();
    /// The same without the context words.
    std::vector<std::string> TraceTexts();
    /// The activities in the order of their starts.
    std::vector<Ref<AppointmentItem>> Items() const;
    /// The activities in short, as "09:00-09:05 subject", with the body behind "|" when there is one.
    std::vector<std::string> ItemTexts() const;
    Variant Property(const Ref<AppointmentItem>& item, const std::string& name) const;
    /// Clicks the button that cancels a job.
    void ClickCancel() const;

    Ref<Platform> platform = MakeRef<Platform>();
    Ref<TestFileSystem> files;
    Ref<ManualClock> clock = MakeRef<ManualClock>(Date::FromParts({ 2006, 10, 10, 9, 0, 0 }));
    Ref<TomlRegistry> registry;
    Ref<FormModelFactory> forms = MakeRef<FormModelFactory>();
    Ref<TestMessageBox> messageBox = MakeRef<TestMessageBox>();
    Ref<TestEventPump> eventPump = MakeRef<TestEventPump>();
    Ref<Mailbox> mailbox;
    Ref<TestImportJournal> journal;
    Ref<TestApplication> application = MakeRef<TestApplication>();
    Ref<TempodialMain> main;

private:
    std::string DataPath(const std::string& name) const;

    std::string mProfile;
    std::size_t mTraceRead = 0;
};

/// A tracker line of a slot, in seconds after midnight, with further nodes as they are.
std::string Slot(std::int32_t start, std::int32_t end, const std::string& nodes);
/// A tracker line of a slot in which a document was open in the word processor.
std::string WordSlot(std::int32_t start, std::int32_t end, const std::string& document, const std::string& nodes = "");

/// The add-in, connected, with an empty trace.
class AddInFixture : public testing::Test
{
protected:
    AddInFixture()
    {
        mAddIn.Connect();
        mAddIn.Trace();
    }

    TempFolder mFolder { TempFolder::InMemory() };
    TestAddIn mAddIn { mFolder.Path() };
};

}
