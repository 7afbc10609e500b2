#pragma once

#include "base/Date.h"
#include "engine/core/TempodialMain.h"
#include "host/system/TomlRegistry.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// The add-in in a profile of its own.
class TestAddIn : public TestHost
{
public:
    /// Takes the profile folder, and where the mailbox is.
    explicit TestAddIn(const std::string& profile, const std::string& mailboxPath = ":memory:");
    ~TestAddIn();

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

    Ref<TomlRegistry> registry;
    Ref<TempodialMain> main;

private:
    std::string DataPath(const std::string& name) const;

    std::string mProfile;
    std::size_t mTraceRead = 0;
};

/// The add-in, connected, with an empty trace.
class AddInFixture : public testing::Test
{
protected:
    AddInFixture();
    ~AddInFixture() override;

    TempFolder mFolder { TempFolder::InMemory() };
    TestAddIn mAddIn { mFolder.Path() };
};

}
