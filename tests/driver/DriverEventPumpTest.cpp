#include "driver/DriverEventPump.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NotingPump : public EventPump
{
public:
    explicit NotingPump(std::vector<std::string>& notes)
        : mNotes(notes)
    {
    }

    void ProcessPending() override { mNotes.emplace_back("host"); }

private:
    std::vector<std::string>& mNotes;
};

}

class DriverEventPumpTest : public testing::Test
{
protected:
    std::function<void()> Note(const std::string& text)
    {
        return [this, text] { mNotes.push_back(text); };
    }
    std::vector<std::string> Pumped()
    {
        mNotes.clear();
        mPump.ProcessPending();
        return mNotes;
    }

    std::vector<std::string> mNotes;
    DriverEventPump mPump { MakeRef<NotingPump>(mNotes) };
};

TEST_F(DriverEventPumpTest, ProcessPending_Deferred_RunsOnceBehindTheHostAtItsMoment)
{
    mPump.Defer(2, Note("b"));
    mPump.Defer(1, Note("a"));
    mPump.Defer(2, Note("c"));
    EXPECT_THAT(mNotes, IsEmpty());
    EXPECT_THAT(Pumped(), ElementsAre("host", "a"));
    EXPECT_THAT(Pumped(), ElementsAre("host", "b", "c"));
    EXPECT_THAT(Pumped(), ElementsAre("host"));
}

TEST_F(DriverEventPumpTest, Defer_Later_CountsFromThen)
{
    Pumped();
    Pumped();
    mPump.Defer(1, Note("a"));
    EXPECT_THAT(Pumped(), ElementsAre("host", "a"));
}

TEST_F(DriverEventPumpTest, ProcessPending_WithinAnAction_CountsAsAMoment)
{
    mPump.Defer(1, [this] {
        mNotes.emplace_back("begin");
        mPump.ProcessPending();
        mNotes.emplace_back("end");
    });
    mPump.Defer(1, Note("same moment"));
    mPump.Defer(2, Note("next moment"));
    EXPECT_THAT(Pumped(), ElementsAre("host", "begin", "host", "next moment", "end", "same moment"));
}

TEST_F(DriverEventPumpTest, Defer_WithinAnAction_WaitsForAnotherMoment)
{
    mPump.Defer(1, [this] { mPump.Defer(1, Note("a")); });
    EXPECT_THAT(Pumped(), ElementsAre("host"));
    EXPECT_THAT(Pumped(), ElementsAre("host", "a"));
}

}
