#include "track/RecorderFixture.h"

#include <filesystem>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

class RecorderTest : public RecorderFixture
{
};

TEST_F(RecorderTest, Observe_ThreeWindows_AreThreeActivities)
{
    Front("editor", "a");
    Work(12);
    Front("browser", "b");
    Work(6);
    Front("reader", "c");
    Work(12);
    Finish();
    EXPECT_THAT(Slots(),
        ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "+10:10-10:15 Editor, a",
            "10:15-10:20 Browser, b", "10:20-10:25 Reader, c", "+10:25-10:30 Reader, c"));
}

TEST_F(RecorderTest, Observe_WorkGoesOn_IsAtMostTenMinutesBehind)
{
    Front("editor", "a");
    Work(60);
    EXPECT_THAT(Written(), SizeIs(testing::Ge(10U)));
}

TEST_F(RecorderTest, Observe_TwoHoursWithoutInput_EndAtTheLastInput)
{
    Front("editor", "a");
    Work(8);
    Rest(120);
    Work(7);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "12:10-12:15 Editor, a"));
}

TEST_F(RecorderTest, Observe_AwayEarlyInASlot_LeavesTheSlotOut)
{
    Front("editor", "a");
    Work(7);
    Rest(120);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a"));
}

TEST_F(RecorderTest, Observe_AShortRest_IsNoAbsence)
{
    Front("editor", "a");
    Work(5);
    Rest(2.5);
    Work(7.5);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "+10:10-10:15 Editor, a"));
}

TEST_F(RecorderTest, Observe_ACallWithoutInput_CountsAsFarAsItsPatienceGoes)
{
    Front("call", "Weekly");
    Rest(60);
    Work(5);
    Finish();
    EXPECT_THAT(Written(), SizeIs(13));
}

TEST_F(RecorderTest, Observe_ACallThatNobodyCameBackTo_EndsAtTheLastInput)
{
    Front("call", "Weekly");
    Work(10);
    Rest(100);
    Finish();
    EXPECT_THAT(Written(), SizeIs(2));
}

TEST_F(RecorderTest, Observe_ACallThatWasLeft_LendsItsPatienceToNothingElse)
{
    Front("call", "Weekly");
    Work(10);
    Front("editor", "a");
    Rest(60);
    Work(10);
    Finish();
    EXPECT_THAT(Written(),
        ElementsAre("10:00-10:05 Call, Weekly", "+10:05-10:10 Call, Weekly", "11:10-11:15 Editor, a",
            "+11:15-11:20 Editor, a"));
}

TEST_F(RecorderTest, Observe_ACallThatBeginsByAClick_HasItsPatience)
{
    Front("browser", "Join");
    Work(5);
    mSeen.window = Sighting { "call", "", "Weekly", "", false };
    Rest(30);
    Work(5);
    Finish();
    EXPECT_THAT(Written(), SizeIs(8));
}

TEST_F(RecorderTest, Observe_Locked_EndsAtOnce)
{
    Front("editor", "a");
    Work(8);
    Lock(true);
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a"));
    Work(120);
    Lock(false);
    Work(6);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "12:10-12:15 Editor, a"));
}

TEST_F(RecorderTest, Observe_LockProgramInFront_IsLocked)
{
    Front("editor", "a");
    Work(8);
    Front("lock", "anything");
    Work(60);
    Finish();
    EXPECT_THAT(Written(), SizeIs(2));
    EXPECT_TRUE(mRecorder->IsIdle());
}

TEST_F(RecorderTest, Observe_LockedForAMomentInASlot_CountsBothParts)
{
    Front("editor", "a");
    Work(2);
    Lock(true);
    Work(1);
    Lock(false);
    Work(2);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a"));
}

TEST_F(RecorderTest, Observe_TheMachineSlept_IsNobodysTime)
{
    Front("editor", "a");
    Work(8);
    Sleep(120);
    Work(7);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "12:10-12:15 Editor, a"));
}

TEST_F(RecorderTest, Observe_AboutToSleep_WritesWhatWaits)
{
    Front("editor", "a");
    Work(8);
    mSeen.isAsleep = true;
    Tick();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a"));
}

TEST_F(RecorderTest, Observe_ClockPutForward_LeavesAGap)
{
    Front("editor", "a");
    Work(10);
    PutClock(3600);
    Work(10);
    Finish();
    EXPECT_THAT(Written(),
        ElementsAre(
            "10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "11:10-11:15 Editor, a", "+11:15-11:20 Editor, a"));
    EXPECT_THAT(mWarnings, IsEmpty());
}

TEST_F(RecorderTest, Observe_ClockPutBack_WritesOnlyWhenItHasPassedTheLastLine)
{
    Front("editor", "a");
    Work(10);
    PutClock(-3600);
    Work(70);
    Finish();
    EXPECT_THAT(Written(),
        ElementsAre(
            "10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "10:10-10:15 Editor, a", "+10:15-10:20 Editor, a"));
    EXPECT_THAT(mWarnings, SizeIs(1));
}

TEST_F(RecorderTest, Observe_ClockPutBackWithinASlot_WritesNoSlotTwice)
{
    Front("editor", "a");
    Work(8);
    PutClock(-120);
    Work(9);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "10:10-10:15 Editor, a"));
}

TEST_F(RecorderTest, Observe_OverMidnight_EachDayHasItsFile)
{
    StartAt(23, 50);
    Front("editor", "a");
    Work(20);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("23:50-23:55 Editor, a", "+23:55-24:00 Editor, a"));
    EXPECT_THAT(Written(1), ElementsAre("00:00-00:05 Editor, a", "+00:05-00:10 Editor, a"));
}

TEST_F(RecorderTest, Observe_NoWindowForAMoment_KeepsTheOldOne)
{
    Front("editor", "a");
    Work(5);
    NoFront();
    mNow.local += 1500;
    mNow.boot += 1500;
    mNow.awake += 1500;
    Front("editor", "a");
    Work(5);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a"));
    EXPECT_EQ(mRecorder->InFront()->program, "Editor");
}

TEST_F(RecorderTest, Observe_NoWindowForLong_IsNothingInFront)
{
    Front("editor", "a");
    NoFront();
    Work(1);
    EXPECT_FALSE(mRecorder->InFront());
}

TEST_F(RecorderTest, Observe_DroppedWindow_IsAsIfAway)
{
    Front("editor", "a");
    Work(10);
    Front("browser", "dropped");
    Work(10);
    Front("editor", "a");
    Work(10);
    Finish();
    EXPECT_THAT(Written(),
        ElementsAre(
            "10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "10:20-10:25 Editor, a", "+10:25-10:30 Editor, a"));
}

TEST_F(RecorderTest, Observe_NobodyCanTellOfIdleness_TakesSomebodyToBeThere)
{
    mSeen.window = Sighting { "editor", "", "a", "", false };
    for (int tick = 0; tick <= 40; ++tick) {
        mRecorder->Observe(mNow, mSeen);
        mNow.local += 15000;
        mNow.boot += 15000;
        mNow.awake += 15000;
    }
    Finish();
    EXPECT_THAT(Written(), SizeIs(2));
}

TEST_F(RecorderTest, Pause_NothingIsWrittenUntilItEnds)
{
    Front("editor", "a");
    Work(5);
    mRecorder->Pause(mNow, 20 * 60000);
    Work(30);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "10:25-10:30 Editor, a", "+10:30-10:35 Editor, a"));
    EXPECT_FALSE(mRecorder->IsPaused());
}

TEST_F(RecorderTest, Resume_PauseHadNoEnd_GoesOn)
{
    Front("editor", "a");
    mRecorder->Pause(mNow, std::nullopt);
    Work(20);
    mRecorder->Resume();
    Work(10);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:20-10:25 Editor, a", "+10:25-10:30 Editor, a"));
}

TEST_F(RecorderTest, SetProject_AllLinesHaveItUntilItIsTakenBack)
{
    Front("editor", "a");
    Work(12);
    mRecorder->SetProject("Riverside");
    Work(10);
    mRecorder->SetProject("");
    Work(8);
    Finish();
    EXPECT_THAT(Written(),
        ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "10:10-10:15 [Riverside] Editor, a",
            "+10:15-10:20 [Riverside] Editor, a", "10:20-10:25 Editor, a", "+10:25-10:30 Editor, a"));
}

TEST_F(RecorderTest, Forget_TimeThatWaits_IsNotWritten)
{
    Front("editor", "a");
    Work(9);
    mRecorder->Forget(mNow.local - 10 * 60000);
    Finish();
    EXPECT_THAT(Written(), IsEmpty());
}

TEST_F(RecorderTest, Forget_NothingWaits_LeavesNoWordsOfTheActivity)
{
    Front("editor", "a secret");
    Work(15);
    Lock(true);
    Rest(1);
    Lock(false);
    mRecorder->Forget(mNow.local - 60 * 60000);
    Front("editor", "b");
    Work(10);
    Finish();
    EXPECT_THAT(Content().substr(Content().rfind("<slot>")), Not(HasSubstr("secret")));
}

TEST_F(RecorderTest, Forget_SlotThatWaitsEndsBefore_IsWritten)
{
    Front("editor", "a");
    Work(7);
    mRecorder->Forget(mNow.local - 60000);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a"));
}

TEST_F(RecorderTest, Pause_ClockIsPut_LastsAsLongAsItWasSaid)
{
    Front("editor", "a");
    mRecorder->Pause(mNow, 20 * 60000);
    PutClock(3600);
    Work(15);
    EXPECT_TRUE(mRecorder->IsPaused());
    Restart();
    Work(4);
    EXPECT_TRUE(mRecorder->IsPaused());
    Work(2);
    EXPECT_FALSE(mRecorder->IsPaused());
}

TEST_F(RecorderTest, Restore_KilledAtAnyTick_LosesNothingAndDoublesNothing)
{
    for (int tick = 0; tick < 80; ++tick) {
        std::filesystem::remove(mWriter->PathOf(Midnight()));
        mWriter.emplace(mFolder.Path());
        mRecorder.emplace(*mWriter, ViewMaker(ProgramTable({}), PrivacyRules()), [](const std::string&) {});
        StartAt(10, 0);
        mSeen = {};
        Front("editor", "a");
        Work(tick * 0.25);
        Restart();
        Work(20 - tick * 0.25);
        Finish();
        std::string ends;
        for (const auto& line : Written()) {
            ends += line.substr(line.find('-') + 1, 5) + " ";
        }
        EXPECT_EQ(ends, "10:05 10:10 10:15 10:20 ") << tick;
    }
}

TEST_F(RecorderTest, Restore_SlotWasWrittenSince_IsNotWrittenTwice)
{
    Front("editor", "a");
    Work(9);
    const auto state = mRecorder->State();
    Finish();
    mWriter.emplace(mFolder.Path());
    mRecorder.emplace(*mWriter, ViewMaker(ProgramTable({}), PrivacyRules()), [](const std::string&) {});
    mRecorder->Restore(state, mNow);
    Front("editor", "a");
    Work(6);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a", "10:10-10:15 Editor, a"));
}

TEST_F(RecorderTest, Restore_HoursLater_WritesTheSlotThatWasInHand)
{
    Front("editor", "a");
    Work(9);
    const auto state = mRecorder->State();
    mWriter.emplace(mFolder.Path());
    mRecorder.emplace(*mWriter, ViewMaker(ProgramTable({}), PrivacyRules()), [](const std::string&) {});
    mNow.local += 7200000;
    mNow.boot = 1000;
    mNow.awake = 1000;
    mLastInput = mNow.boot;
    mRecorder->Restore(state, mNow);
    Tick();
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a"));
}

TEST_F(RecorderTest, Restore_ClockWasPutBackSince_KeepsTheSlots)
{
    Front("editor", "a");
    Work(9);
    auto state = mRecorder->State();
    state.isPaused = true;
    mNow.local -= 86400000;
    mWriter.emplace(mFolder.Path());
    mRecorder.emplace(*mWriter, ViewMaker(ProgramTable({}), PrivacyRules()), [](const std::string&) {});
    mRecorder->Restore(state, mNow);
    Finish();
    EXPECT_THAT(Written(), ElementsAre("10:00-10:05 Editor, a", "+10:05-10:10 Editor, a"));
    EXPECT_TRUE(mRecorder->IsPaused());
}

TEST_F(RecorderTest, Since_NobodyIsThere_IsTheLastInput)
{
    Front("editor", "a");
    Work(8);
    Rest(30);
    EXPECT_TRUE(mRecorder->IsIdle());
    EXPECT_EQ(mRecorder->Since() / 60000 % 60, 8);
    Work(1);
    EXPECT_FALSE(mRecorder->IsIdle());
    EXPECT_EQ(mRecorder->Since() / 60000 % 60, 38);
}

TEST_F(RecorderTest, Observe_Details_StandInFrontOfWhatGoesOn)
{
    Front("editor", "a");
    Work(4);
    Front("browser", "b");
    Work(1);
    Front("editor", "a");
    Work(10);
    Finish();
    EXPECT_THAT(Written(),
        ElementsAre("10:00-10:05 Editor, a", "*10:00-10:05 Editor, a", "*10:00-10:05 Editor, Browser: b",
            "+10:05-10:10 Editor, a", "+10:10-10:15 Editor, a"));
}

}

}
