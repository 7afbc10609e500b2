#include "cli/CommandLineEventPump.h"

#include "cli/Interruption.h"
#include "session/ProductFacts.h"
#include "support/AddInFixture.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sstream>

namespace tempodial {

namespace {

/// The add-in with the event pump of the command line; a hook runs before each of its moments.
class CommandLineEventPumpTest : public testing::Test
{
protected:
    CommandLineEventPumpTest()
    {
        mAddIn.platform->eventPump = MakeRef<CommandLineEventPump>(
            mAddIn.eventPump, mAddIn.forms, std::make_unique<ProgressLine>(mTerminal, 80));
        mAddIn.Connect();
        std::vector<std::string> lines;
        for (int i = 1; i <= 40; ++i) {
            lines.push_back(WordSlot(i * 300, i * 300 + 300, std::to_string(i) + ".doc"));
        }
        mAddIn.WriteTracker("20061010", lines);
    }

    std::ostringstream mTerminal;
    TempFolder mFolder;
    TestAddIn mAddIn { mFolder.Path() };
    Interruption mInterruption;
};

}

TEST_F(CommandLineEventPumpTest, ProcessPending_Import_DrawsTheForm)
{
    mAddIn.main->SyncData(SavedDataDays, true);
    EXPECT_EQ(mAddIn.Items().size(), 40U);
    EXPECT_NE(mTerminal.str().find("\rloading Tuesday, October 10, 2006                  [--------------------]"),
        std::string::npos)
        << mTerminal.str();
    EXPECT_NE(mTerminal.str().find("[####----------------]"), std::string::npos);
}

TEST_F(CommandLineEventPumpTest, ProcessPending_Interrupted_PressesCancel)
{
    int pumped = 0;
    mAddIn.eventPump->hook = [&pumped] {
        if (++pumped == 3) {
            (void)std::raise(SIGINT);
        }
    };
    mAddIn.main->SyncData(SavedDataDays, true);
    EXPECT_EQ(pumped, 3);
    EXPECT_EQ(mAddIn.Items().size(), 11U) << "the import looks at every fourth line, from the third on";
    EXPECT_TRUE(mTerminal.str().ends_with(" \r")) << "the line is taken off with the form";
}

TEST_F(CommandLineEventPumpTest, ProcessPending_InterruptedBeforeAFormIsShown_PressesCancelAtTheFirstMoment)
{
    (void)std::raise(SIGINT);
    mAddIn.platform->eventPump->ProcessPending();
    mAddIn.main->SyncData(SavedDataDays, true);
    EXPECT_EQ(mAddIn.Items().size(), 3U);
}

}
