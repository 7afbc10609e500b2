#include "engine/import/TempodialDataHandler.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"
#include "support/AddInFixture.h"

#include <algorithm>

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr auto Today = "20061010";

}

/// What the lines of one day's file do to the work log.
class TempodialDataHandlerParseTest : public AddInFixture
{
protected:
    /// Imports today's file, which holds these lines behind its first.
    void Import(const std::vector<std::string>& lines)
    {
        mAddIn.WriteTracker(Today, lines);
        mAddIn.main->SyncData(0, true);
    }
    /// The same on top of a last count.
    void ImportAfter(std::int32_t lastCount, const std::vector<std::string>& lines)
    {
        mAddIn.WriteHistory("20061010_" + std::string(lastCount < 10 ? "0000" : "0") + std::to_string(lastCount));
        Import(lines);
    }
    std::vector<std::int32_t> Durations() const
    {
        std::vector<std::int32_t> durations;
        for (const auto& item : mAddIn.Items()) {
            durations.push_back(item->Duration());
        }
        return durations;
    }
    /// How often a line of the trace begins so.
    static std::ptrdiff_t Count(const std::vector<std::string>& lines, const std::string& begin)
    {
        return std::count_if(lines.begin(), lines.end(), [&](const auto& line) { return line.starts_with(begin); });
    }
};

TEST_F(TempodialDataHandlerParseTest, ParseFile_FirstLineAlone_LoadsNothingAndShowsNothing)
{
    Import({});
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "File error"), 1);
    EXPECT_THAT(lines, Contains("File error Input past end of file ReadLine"));
    EXPECT_THAT(lines, Not(Contains("show progress")));
    EXPECT_THAT(mAddIn.Items(), IsEmpty());
    EXPECT_EQ(mAddIn.HistoryText(), "");
}

TEST_F(TempodialDataHandlerParseTest, ParseFile_EmptyFile_CostsTwoLines)
{
    mFolder.Write("Tempodial/tracker_granules20061010.out", "");
    mAddIn.main->SyncData(0, true);
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "File error Input past end of file ReadLine"), 2);
}

TEST_F(TempodialDataHandlerParseTest, ParseFile_FirstLineIsASlot_IsDroppedAllTheSame)
{
    mFolder.Write("Tempodial/tracker_granules20061010.out",
        WordSlot(32400, 32700, "a") + "\r\n" + WordSlot(32700, 33000, "b") + "\r\n");
    mAddIn.main->SyncData(0, true);
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:05-09:10 Microsoft Word, \"b\""));
}

TEST_F(TempodialDataHandlerParseTest, ParseFile_LastLineWithoutItsEnd_IsReadOnceItIsWhole)
{
    mFolder.Write("Tempodial/tracker_granules20061010.out",
        "tracker\r\n" + WordSlot(32400, 32700, "a") + "\r\n<slot><StartTime>327");
    mAddIn.main->SyncData(0, true);
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:00-09:05 Microsoft Word, \"a\""));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_32700");
    Import({ WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b") });
    EXPECT_THAT(
        mAddIn.ItemTexts(), ElementsAre("09:00-09:05 Microsoft Word, \"a\"", "09:05-09:10 Microsoft Word, \"b\""));
}

TEST_F(TempodialDataHandlerParseTest, ParseFile_Progress_IsPreparedForTheDayAndShownAtTheFirstLoadedLine)
{
    std::vector<std::string> shown;
    mAddIn.journal->hook = [&](const std::string&) {
        const auto form = mAddIn.forms->NewestVisible("ProgressBarForm");
        shown.push_back(form ? form->Caption() + "|" + form->Control("Label1").As<Label>()->Caption() + "|"
                    + form->Control("Label2").As<Label>()->Caption()
                             : "hidden");
    };
    mAddIn.WriteTracker(Today, { WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b") });
    mAddIn.main->SyncData(21, true);
    const std::string text = "Tempodial|Loading activities for past 21 days...|loading Tuesday, October 10, 2006";
    // Begin, the two lines, the commit, the end of the sync.
    EXPECT_THAT(shown, ElementsAre("hidden", "hidden", text, text, text, text));
    EXPECT_FALSE(mAddIn.forms->NewestVisible("ProgressBarForm"));
}

TEST_F(TempodialDataHandlerParseTest, ParseFile_SeveralFilesWithNewLines_ShowsTheFormForEach)
{
    mAddIn.WriteTracker(Today, { WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b") });
    mAddIn.WriteTracker("20061009", {});
    mAddIn.WriteTracker("20061008", { WordSlot(32400, 32700, "c") });
    mAddIn.main->SyncData(21, true);
    EXPECT_EQ(Count(mAddIn.TraceTexts(), "show progress"), 2);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_NotWellFormed_IsIgnored)
{
    const std::string slot = WordSlot(32400, 32700, "x");
    const std::string inner = slot.substr(6, slot.size() - 13);
    const std::string lines[] = {
        "",
        "   ",
        slot.substr(0, slot.size() - 3),
        "<slot>" + inner,
        slot + slot,
        slot + "text",
        "text" + slot,
        R"(<slot a="1" a="2">)" + inner + "</slot>",
        "<slot>" + inner + "&unknown;</slot>",
        "<slot>" + inner + "& </slot>",
        "<slot a=\"<\">" + inner + "</slot>",
        "<slot a=1>" + inner + "</slot>",
        "<slot>" + inner + "</slt>",
        "<slot>" + inner + "\x01</slot>",
        "<slot>" + inner + "&#1;</slot>",
        "<slot>" + inner + std::string(1, '\0') + "</slot>",
        R"(<slot a="1"b="2">)" + inner + "</slot>",
        "<slot>" + inner + "]]></slot>",
        "<1slot>" + inner + "</1slot>",
        " <?xml version=\"1.0\"?>" + slot,
        "<!DOCTYPE slot [<!ENTITY e \"x\">]>" + slot,
        "<!DOCTYPE slot>" + slot,
    };
    std::vector<std::string> all(std::begin(lines), std::end(lines));
    all.push_back(WordSlot(32700, 33000, "good"));
    Import(all);
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:05-09:10 Microsoft Word, \"good\""));
    EXPECT_EQ(Count(mAddIn.TraceTexts(), "load line: "), 1);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DocumentWithItsTrimmings_IsTaken)
{
    Import({ "\xEF\xBB\xBF" + WordSlot(32400, 32700, "a"), "  " + WordSlot(32700, 33000, "b") + "  ",
        R"(<?xml version="1.0" encoding="UTF-16"?>)" + WordSlot(33000, 33300, "c") });
    EXPECT_EQ(mAddIn.Items().size(), 3);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_CountAndDetail_DecideWhatIsTaken)
{
    struct Row
    {
        std::int32_t lastCount;
        std::string line;
        bool taken;
    };
    const std::string noEnd = "<slot><StartTime>1</StartTime>";
    const Row rows[] = {
        { 4000, WordSlot(3900, 4000, "x"), false },
        { 4000, WordLine(3900, 4000, "x").Detail().Text(), true },
        { 4000, WordLine(3900, 3999, "x").Detail().Text(), false },
        { 4000, WordSlot(3900, 4001, "x"), true },
        { -1, WordSlot(0, 0, "x"), true },
        { -1, noEnd + "</slot>", true },
        { 0, noEnd + "<Detail>1</Detail></slot>", true },
        { 0, noEnd + "</slot>", false },
        { 4000, "<slot><EndTime>x</EndTime></slot>", false },
    };
    for (const auto& row : rows) {
        mAddIn.Trace();
        if (row.lastCount < 0) {
            mAddIn.WriteHistory("");
            Import({ row.line });
        } else {
            ImportAfter(row.lastCount, { row.line });
        }
        EXPECT_EQ(Count(mAddIn.TraceTexts(), "load line: "), row.taken ? 1 : 0) << row.lastCount << row.line;
    }
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_NoEndTimeOnAFirstLoad_TakesTheCountBackToZero)
{
    Import({ WordSlot(32400, 32700, "a"), "<slot><StartTime>32700</StartTime></slot>" });
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("ParseLine error Type mismatch ReadLine 2"));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_00000");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_Continuations_StretchTheItem)
{
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Continuation().Text(),
        WordLine(33000, 33300, "c").Continuation().Text(), WordLine(33300, 33600, "d").Continuation().Text() });
    // The text of the last continuation stands in the place of the others.
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:00-09:20 Microsoft Word, \"d\""));
    EXPECT_THAT(Durations(), ElementsAre(20));
    const auto lines = mAddIn.TraceTexts();
    EXPECT_THAT(lines, Contains("continuation of Microsoft Word, \"a\""));
    EXPECT_EQ(Count(lines, "ReturnItem by"), 0);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ContinuationWithoutAnItem_MakesOneOfOneSlot)
{
    Import({ WordLine(36000, 36600, "a").Continuation().Text() });
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("10:05-10:10 Microsoft Word, \"a\""));
    const auto lines = mAddIn.TraceTexts();
    const auto from
        = std::find_if(lines.begin(), lines.end(), [](const auto& line) { return line.starts_with("start: "); });
    EXPECT_THAT(std::vector<std::string>(from, from + 11),
        ElementsAre("start: 10/10/2006 10:00:00 AM End: 10/10/2006 10:10:00 AM Override: ", "Get log",
            "GetSyncedWorkLog called",
            "ReturnItem by End: 10/10/2006 10:05:00 AM search on: [End] = \"10/10/2006 10:05 AM\"", "didn't find one",
            "GetBody", "security exception on getbodyObject variable or With block variable not set",
            "ParseLine error Object variable or With block variable not set .text", "create item", "Create item",
            "CreateCalendarItem - \"a\""));
    EXPECT_FALSE(mAddIn.main->mSecurityPopups);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ContinuationOfAnItemOfAnEarlierSync_FindsIt)
{
    Import({ WordSlot(32400, 32700, "a") });
    mAddIn.Disconnect();
    mAddIn.Connect();
    mAddIn.Trace();
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Continuation().Text() });
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:00-09:10 Microsoft Word, \"b\""));
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("found one"));
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ContinuationASecondOff_IsSearchedByTheMinute)
{
    // Ends 10:05:00; expected 10:04:59, which is another minute.
    Import({ WordSlot(36000, 36300, "a"), WordLine(36300, 36599, "b").Continuation().Text() });
    EXPECT_THAT(mAddIn.TraceTexts(),
        testing::AllOf(Contains("unmatched last item against: 10/10/2006 10:04:59 AM"), Contains("didn't find one")));
    EXPECT_EQ(mAddIn.Items().size(), 2);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ContinuationASecondOffInTheSameMinute_ExtendsTheItem)
{
    Import({ WordSlot(36000, 36300, "a"), WordLine(36300, 36601, "b").Continuation().Text() });
    EXPECT_THAT(mAddIn.TraceTexts(),
        testing::AllOf(Contains("unmatched last item against: 10/10/2006 10:05:01 AM"), Contains("found one")));
    ASSERT_EQ(mAddIn.Items().size(), 1);
    EXPECT_EQ(mAddIn.Items()[0]->End(), Date::FromParts({ 2006, 10, 10, 10, 10, 1 }));
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ContinuationOfAnOpenItem_CountsAndLeavesIt)
{
    Import({ WordSlot(32400, 32700, "a") });
    mAddIn.Items()[0]->Display();
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Continuation().Text() });
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:00-09:05 Microsoft Word, \"a\""));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_33000");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_UpdateFails_MakesANewItem)
{
    Subscription refusing;
    mAddIn.journal->hook = [&](const std::string& call) {
        if (call == "Loaded 20061010 32700 1") {
            refusing = mAddIn.Items()[0]->Subscribe({ .Write = [](bool& cancel) { cancel = true; } });
        }
    };
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Continuation().Text() });
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("update failed with error: 1"));
    EXPECT_THAT(
        mAddIn.ItemTexts(), ElementsAre("09:00-09:05 Microsoft Word, \"a\"", "09:05-09:10 Microsoft Word, \"b\""));
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_33000");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_LastItemWasDeleted_IsNotWrittenAnyMore)
{
    Import({ WordSlot(32400, 32700, "a") });
    mAddIn.Items()[0]->Delete();
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Continuation().Text() });
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("unmatched last item against: 10/10/2006 9:05:00 AM"));
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:05-09:10 Microsoft Word, \"b\""));
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_Details_GrowTheBody)
{
    Import({ WordSlot(32400, 32700, "a"), WordLine(32450, 32700, "A").Detail().Text() });
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\n\r\n\"A\"\r\n");
    Import({ WordSlot(32400, 32700, "a"), WordLine(32450, 32700, "A").Detail().Text(),
        WordLine(32500, 32700, "B").Detail().Text(), WordLine(32550, 32700, "A").Detail().Text() });
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\n\r\n\"A\"\r\n\"B\"\r\n");
    EXPECT_EQ(mAddIn.Items().size(), 1);
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_32700");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DetailTwice_IsListedOnceAndCalledTwice)
{
    Import({ WordSlot(32400, 32700, "a"), WordLine(32450, 32700, "A").Detail().Text(),
        WordLine(32500, 32700, "A").Detail().Text() });
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\n\r\n\"A\"\r\n");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "add xtra info to"), 2);
    EXPECT_EQ(Count(lines, "detail of "), 2);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "detail"), 2);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DetailsOfAnItemWithAUrl_AreGluedToIt)
{
    const auto detail = WordLine(32450, 32700, "B").Detail().Text();
    std::vector<std::string> lines { SlotLine(32400, 32700).Application(6).Node("URL", "http://u").Text(), detail };
    Import(lines);
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\nhttp://u\"B\"\r\n");
    // The first repeat isn't recognised, the next ones are; the detail at the last count is taken again each time.
    Import(lines);
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\nhttp://u\"B\"\r\n\"B\"\r\n");
    Import(lines);
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\nhttp://u\"B\"\r\n\"B\"\r\n");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DetailOfAnItemFoundBySearch_PutsAnotherHeadingInFront)
{
    const auto lines = std::vector { WordSlot(32400, 32700, "a"), WordLine(32450, 32700, "A").Detail().Text() };
    Import(lines);
    mAddIn.Disconnect();
    mAddIn.Connect();
    Import(lines);
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\nYour activities include: \r\n\r\n\"A\"\r\n");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DetailAtTheLastCount_IsTakenAtEachSync)
{
    const auto lines = std::vector { WordSlot(32400, 32700, "a"), WordLine(32450, 32700, "A").Detail().Text() };
    Import(lines);
    mAddIn.Trace();
    Import(lines);
    const auto trace = mAddIn.TraceTexts();
    EXPECT_EQ(Count(trace, "load line: "), 1);
    EXPECT_EQ(Count(trace, "show progress"), 1);
    EXPECT_EQ(mAddIn.Items()[0]->Body(), "Your activities include: \r\n\r\n\"A\"\r\n");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DetailOfAnotherSlot_FindsItsItem)
{
    Import({ WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b"), WordSlot(33000, 33300, "c"),
        WordLine(33000, 33300, "C").Detail().Text() });
    mAddIn.Trace();
    // The end lies in the minute of the second item.
    Import({ WordSlot(32400, 33300, "c"), WordLine(33000, 33301, "late").Detail().Text() });
    EXPECT_EQ(mAddIn.Items()[2]->Body(),
        "Your activities include: \r\nYour activities include: \r\n\r\n\"C\"\r\n\"late\"\r\n");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "unmatched"), 0);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_DetailWithoutAnItem_IsDroppedAndCounts)
{
    Import({ WordLine(32400, 32700, "A").Detail().Text() });
    EXPECT_THAT(mAddIn.Items(), IsEmpty());
    EXPECT_EQ(mAddIn.HistoryText(), "20061010_32700");
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "detail of"), 0);
    EXPECT_EQ(Count(lines, "ParseLine error"), 0);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ContinuationAndDetail_IsAContinuation)
{
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Continuation().Detail().Text() });
    EXPECT_THAT(mAddIn.ItemTexts(), ElementsAre("09:00-09:10 Microsoft Word, \"b\""));
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_MarkerThatReadsNone_IsNoMarker)
{
    Import({ WordSlot(32400, 32700, "a"), WordLine(32700, 33000, "b").Node("Continuation", "None").Text(),
        WordLine(33000, 33300, "c").Node("Continuation", "").Text() });
    EXPECT_THAT(
        mAddIn.ItemTexts(), ElementsAre("09:00-09:05 Microsoft Word, \"a\"", "09:05-09:15 Microsoft Word, \"c\""));
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_ItemCannotBeMade_StopsWithoutCountingTheLine)
{
    mAddIn.journal->hook = [&](const std::string& call) {
        if (call == "Loaded 20061010 32700 1") {
            mAddIn.mailbox->DeleteFolder(mAddIn.mailbox->FolderByPath("Calendar/Tempodial"));
        }
    };
    Import({ WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b"), WordSlot(33000, 33300, "c") });
    const auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(Count(lines, "Item save attempt failed"), 1);
    EXPECT_EQ(Count(lines, "load line: "), 2);
    EXPECT_EQ(mAddIn.HistoryText(), "|20061010_32700");
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_EveryFourthCount_MovesTheBar)
{
    std::vector<std::string> lines;
    for (int i = 0; i < 203; ++i) {
        lines.push_back(WordSlot(i * 60, i * 60 + 60, "x"));
        lines.emplace_back("ignored");
    }
    std::vector<std::int32_t> values;
    std::vector<std::size_t> loaded;
    mAddIn.eventPump->hook = [&] {
        values.push_back(
            mAddIn.forms->NewestVisible("ProgressBarForm")->Control("ProgressBar1").As<ProgressBar>()->Value());
        loaded.push_back(mAddIn.Items().size());
    };
    Import(lines);
    ASSERT_EQ(values.size(), 51);
    EXPECT_EQ(loaded[0], 3);
    EXPECT_EQ(loaded[1], 7);
    EXPECT_EQ(loaded[49], 199);
    EXPECT_EQ(values[0], 1);
    EXPECT_EQ(values[1], 2);
    EXPECT_EQ(values[49], 50);
    EXPECT_EQ(values[50], 50);
    EXPECT_EQ(Count(mAddIn.TraceTexts(), "update progress"), 51);
}

TEST_F(TempodialDataHandlerParseTest, ParseLine_Cancelled_TheLineInHandIsWholeAndCounts)
{
    mAddIn.eventPump->hook = [&] { mAddIn.ClickCancel(); };
    Import({ WordSlot(32400, 32700, "a"), WordSlot(32700, 33000, "b"), WordSlot(33000, 33300, "c"),
        WordSlot(33300, 33600, "d") });
    EXPECT_EQ(mAddIn.Items().size(), 3);
    EXPECT_EQ(mAddIn.HistoryText(), "|20061010_33300");
    EXPECT_EQ(Count(mAddIn.TraceTexts(), "File error"), 0);
}

}
