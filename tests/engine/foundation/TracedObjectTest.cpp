#include "engine/foundation/TracedObject.h"

#include "support/FailureNumber.h"
#include "support/TraceFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// An object that shows what its base offers.
class Worker : public TracedObject
{
public:
    Worker(Ref<const Platform> platform, Ref<TempodialDebugLog> log)
        : TracedObject(std::move(platform))
    {
        mTraceInfo = "Worker";
        mLog = std::move(log);
        mStage = "step";
    }

    using TracedObject::Failing;
    using TracedObject::mLog;
    using TracedObject::mStage;
    using TracedObject::Trace;
};

[[noreturn]] void Fail()
{
    throw Failure(Error::FileNotFound);
}

}

class TracedObjectTest : public TraceFixture
{
protected:
    Worker mWorker { mPlatform, mLog };
};

TEST_F(TracedObjectTest, Attempt_StatementFails_TracesTheLineOfTheShape)
{
    const std::pair<LineShape, const char*> shapes[] = {
        { LineShape::TextColonStep, "Worker words File not found:step" },
        { LineShape::TextBlankStep, "Worker words File not found step" },
        { LineShape::TextAmpersandStep, "Worker words File not found & step" },
        { LineShape::TextStep, "Worker words File not foundstep" },
        { LineShape::TextOnly, "Worker words File not found" },
        { LineShape::ColonText, "Worker words :File not found" },
        { LineShape::StepNumberText, "Worker words step 53 File not found" },
    };
    for (const auto& [shape, line] : shapes) {
        EXPECT_FALSE(mWorker.Failing("words ", shape)([] { Fail(); }));
        EXPECT_THAT(Traced(), ElementsAre(line));
    }
}

TEST_F(TracedObjectTest, Attempt_FinishedShape_TellsOfTheEndOfAFileBehindItsLine)
{
    const auto attempt = mWorker.Failing("words ", LineShape::TextBlankStepFinished);
    attempt([] { throw Failure(Error::InputPastEnd); });
    attempt([] { Fail(); });
    EXPECT_THAT(Traced(),
        ElementsAre(
            "Worker words Input past end of file step", "Worker Finished file", "Worker words File not found step"));
}

TEST_F(TracedObjectTest, Attempt_SilentStatementFails_TracesNothing)
{
    EXPECT_FALSE(mWorker.Failing("words ", LineShape::Silent)([] { Fail(); }));
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TracedObjectTest, Attempt_StatementSucceeds_IsTrueAndTracesNothing)
{
    int target = 1;
    EXPECT_TRUE(mWorker.Failing("words ", LineShape::TextOnly)([&] { target = 2; }));
    EXPECT_EQ(target, 2);
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TracedObjectTest, Attempt_AssignmentFails_LeavesTheTarget)
{
    std::string target = "before";
    const auto attempt = mWorker.Failing("words ", LineShape::TextOnly);
    attempt([&] { target = Ref<std::string>()->substr(0); });
    EXPECT_EQ(target, "before");
    EXPECT_THAT(Traced(), ElementsAre("Worker words Object variable or With block variable not set"));
}

TEST_F(TracedObjectTest, Attempt_StepWordChangesMeanwhile_TracesThePresentOne)
{
    mWorker.Failing("words ", LineShape::TextBlankStep)([&] {
        mWorker.mStage = "later";
        Fail();
    });
    EXPECT_THAT(Traced(), ElementsAre("Worker words File not found later"));
}

TEST_F(TracedObjectTest, Attempt_ForeignException_IsMappedToAFailure)
{
    mWorker.Failing("words ", LineShape::StepNumberText)([] { throw std::out_of_range("any"); });
    mWorker.Failing("words ", LineShape::StepNumberText)([] { throw 1; });
    EXPECT_THAT(
        Traced(), ElementsAre("Worker words step 9 Subscript out of range", "Worker words step 440 Automation error"));
}

TEST_F(TracedObjectTest, Attempt_WithHandler_HandsItTheFailureInPlaceOfTheLine)
{
    std::int32_t number = 0;
    const auto attempt = mWorker.Failing("words ", LineShape::TextOnly);
    EXPECT_FALSE(attempt([] { Fail(); }, [&](const Failure& failure) { number = failure.Number(); }));
    EXPECT_EQ(number, 53);
    number = 0;
    EXPECT_TRUE(attempt([] {}, [&](const Failure& failure) { number = failure.Number(); }));
    EXPECT_EQ(number, 0);
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TracedObjectTest, Say_TextOrExpression_TracesIt)
{
    const auto attempt = mWorker.Failing("words ", LineShape::TextOnly);
    attempt.Say("word");
    attempt.Say(std::string("text"));
    attempt.Say([] { return std::string("expression"); });
    EXPECT_THAT(Traced(), ElementsAre("Worker word", "Worker text", "Worker expression"));
}

TEST_F(TracedObjectTest, Say_ExpressionFails_TracesTheFailureAndGoesOn)
{
    mWorker.Failing("words ", LineShape::TextOnly).Say([]() -> std::string { Fail(); });
    EXPECT_THAT(Traced(), ElementsAre("Worker words File not found"));
}

TEST_F(TracedObjectTest, Get_ExpressionSucceeds_IsItsValue)
{
    EXPECT_EQ(mWorker.Failing("words ", LineShape::TextOnly).Get([] { return std::string("value"); }), "value");
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TracedObjectTest, Get_ExpressionFails_IsTheEmptyValueOfItsType)
{
    const auto attempt = mWorker.Failing("words ", LineShape::TextOnly);
    EXPECT_FALSE(attempt.Get([]() -> bool { Fail(); }));
    EXPECT_EQ(attempt.Get([]() -> std::int32_t { Fail(); }), 0);
    EXPECT_EQ(attempt.Get([]() -> std::string { Fail(); }), "");
    EXPECT_EQ(attempt.Get([]() -> Date { Fail(); }), Date());
    EXPECT_THAT(attempt.Get([]() -> std::vector<int> { Fail(); }), IsEmpty());
    EXPECT_FALSE(attempt.Get([]() -> Ref<Worker> { Fail(); }));
    EXPECT_EQ(Traced().size(), 6);
}

TEST_F(TracedObjectTest, Attempt_LogIsGone_FailureLeavesTheRoutine)
{
    mWorker.mLog = nullptr;
    const auto attempt = mWorker.Failing("words ", LineShape::TextOnly);
    EXPECT_EQ(FailureNumber([&] { attempt([] { Fail(); }); }), 91);
    EXPECT_EQ(FailureNumber([&] { attempt.Get([]() -> int { Fail(); }); }), 91);
    EXPECT_EQ(FailureNumber([&] { mWorker.Trace("text"); }), 91);
    EXPECT_EQ(FailureNumber([&] { attempt.Say("text"); }), 91);
    EXPECT_EQ(FailureNumber([&] { attempt.Say([] { return "text"; }); }), 91);
    // Nothing has to be traced here.
    EXPECT_TRUE(attempt([] {}));
    const auto silently = mWorker.Failing("", LineShape::Silent);
    EXPECT_FALSE(silently([] { Fail(); }));
    EXPECT_EQ(FailureNumber([&] { silently.Say("text"); }), 0);
}

}
