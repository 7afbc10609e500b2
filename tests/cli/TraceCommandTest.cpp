#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

class TraceCommandTest : public ProgramFixture
{
protected:
    using Lines = std::vector<std::string>;

    Lines Last(const std::string& count) const { return Json({ "trace", "--lines", count }).at("lines").get<Lines>(); }
};

}

TEST_F(TraceCommandTest, Trace_NoTrace_IsEmpty)
{
    Json({ "registry", "set", "HKCU", "", "A", "b" });
    EXPECT_EQ(Json({ "trace" }), (nlohmann::json { { "lines", nlohmann::json::array() } }));
    EXPECT_EQ(Run({ "trace" }).out, "");
}

TEST_F(TraceCommandTest, Trace_TwoFiles_AreReadInOrder)
{
    WriteData("WorkLogTrace2.out", "a\r\nb\r\n");
    WriteData("WorkLogTrace1.out", "c\r\nd\r\n");
    EXPECT_EQ(Last("10"), (Lines { "a", "b", "c", "d" }));
    EXPECT_EQ(Last("3"), (Lines { "b", "c", "d" }));
    EXPECT_EQ(Last("1"), (Lines { "d" }));
    EXPECT_EQ(Run({ "trace", "--lines", "2" }).out, "c\nd\n");
}

TEST_F(TraceCommandTest, Trace_ManyLines_AreTheLastTwenty)
{
    std::string text;
    for (int i = 1; i <= 50; ++i) {
        text += std::to_string(i) + "\r\n";
    }
    WriteData("WorkLogTrace1.out", text);
    const auto lines = Json({ "trace" }).at("lines").get<Lines>();
    ASSERT_EQ(lines.size(), 20U);
    EXPECT_EQ(lines.front(), "31");
    EXPECT_EQ(lines.back(), "50");
}

TEST_F(TraceCommandTest, Trace_BytesThatAreNoUtf8_AreReadAsWindows1252)
{
    WriteData("WorkLogTrace1.out", "M\xfcller\x1b\r\n");
    EXPECT_EQ(Last("1"), (Lines { "Müller\x1b" }));
    EXPECT_EQ(Run({ "trace" }).out, "Müller␛\n");
}

TEST_F(TraceCommandTest, Trace_LineEndsInATracedText_AreShownAsBlanks)
{
    WriteData("WorkLogTrace2.out", "Tempodial Version: 1\r\n\r\n12 10/10/2006 5:00:00 PM: a b\nc\r\n\rd\r\n");
    WriteData("WorkLogTrace1.out",
        "Tempodial Version: 1\r\n\r\n12 10/10/2006 5:00:00 PM: e\r\n12 10/10/2006 5:00:00 PM: f\n\n12 x\r\n");
    EXPECT_EQ(Run({ "trace" }).out,
        "Tempodial Version: 1\n\n12 10/10/2006 5:00:00 PM: a b c  d\n"
        "Tempodial Version: 1\n\n12 10/10/2006 5:00:00 PM: e\n12 10/10/2006 5:00:00 PM: f  12 x\n");
    EXPECT_EQ(Last("2"), (Lines { "", "12 x" })) << "as they stand there";
    EXPECT_EQ(Run({ "trace", "--lines", "1" }).out, "12 x\n");
}

TEST_F(TraceCommandTest, Trace_CaptionWithLineEnds_IsShownInItsLine)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "one\ntwo\nthree") });
    Run({ "sync" });
    EXPECT_THAT(Run({ "trace", "--lines", "1000" }).out, testing::HasSubstr("one two three"));
    EXPECT_THAT(Run({ "trace", "--lines", "1000" }).out, testing::Not(testing::HasSubstr("\ntwo")));
}

TEST_F(TraceCommandTest, Trace_AfterACommand_EndsWithItsStop)
{
    Run({ "projects" });
    std::string all;
    for (const auto& line : Last("5")) {
        all += line + "\n";
    }
    EXPECT_THAT(all, testing::HasSubstr("TDDebugLog TRACE SESSION STOP\n"));
}

TEST_F(TraceCommandTest, Trace_BadCount_IsAUsageError)
{
    Refusal({ "trace", "--lines", "0" }, 2);
    Refusal({ "trace", "--lines", "x" }, 2);
}

}
