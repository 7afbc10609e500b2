#include "engine/reports/ReportText.h"

#include "engine/reports/ReportsFixture.h"

using testing::ElementsAre;

namespace tempodial {

namespace {

constexpr auto PlainLine = "#CONTENT# (#PERCENT#%)";
constexpr auto PlainGroup = "#DETAILTITLE# Activity List\r\n#DETAILLIST#";

class ReportTextTest : public ReportsFixture
{
protected:
    std::string Line(std::int32_t total, const std::string& text, std::int32_t minutes, const std::string& line)
    {
        std::string lines;
        mText.BuildLine(total, lines, text, minutes, line);
        return lines;
    }
    /// A group of the activity list: its name and its details.
    struct Group
    {
        std::string name;
        std::vector<std::string> details;
    };

    std::string Detail(const std::vector<Group>& groups, bool html, const std::string& groupTemplate)
    {
        ReportData data;
        data.groups.clear();
        for (const auto& group : groups) {
            auto& added = data.groups.emplace_back();
            added.name = group.name;
            for (const auto& text : group.details) {
                data.details.Append(added.details, text);
            }
        }
        return mText.BuildDetail(data, html, groupTemplate);
    }

    ReportText mText { mPlatform, mLog, mStrings };
};

struct TimeCase
{
    std::int32_t minutes;
    const char* text;
};

class ReportTextTimeTest : public ReportTextTest, public testing::WithParamInterface<TimeCase>
{
};

TEST_P(ReportTextTimeTest, ToTimeString_Minutes_AreHoursAndMinutes)
{
    EXPECT_EQ(mText.ToTimeString(GetParam().minutes), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Times, ReportTextTimeTest,
    testing::Values(TimeCase { 0, "0 hours 00 minutes" }, TimeCase { 5, "0 hours 05 minutes" },
        TimeCase { 59, "0 hours 59 minutes" }, TimeCase { 60, "1 hour 00 minutes" },
        TimeCase { 61, "1 hour 01 minutes" }, TimeCase { 65, "1 hour 05 minutes" },
        TimeCase { 125, "2 hours 05 minutes" }, TimeCase { 6000, "100 hours 00 minutes" },
        TimeCase { -65, "-1 hours -05 minutes" }));

struct PercentCase
{
    std::int32_t minutes;
    std::int32_t total;
    const char* percent;
};

class ReportTextPercentTest : public ReportTextTest, public testing::WithParamInterface<PercentCase>
{
};

TEST_P(ReportTextPercentTest, BuildLine_Share_IsRoundedHalfToEven)
{
    EXPECT_EQ(Line(GetParam().total, "", GetParam().minutes, "#PERCENT#"), std::string(GetParam().percent) + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(Percents, ReportTextPercentTest,
    testing::Values(PercentCase { 1, 3, "33" }, PercentCase { 2, 3, "67" }, PercentCase { 1, 8, "12" },
        PercentCase { 3, 8, "38" }, PercentCase { 5, 8, "62" }, PercentCase { 7, 8, "88" }, PercentCase { 1, 200, "0" },
        PercentCase { 3, 200, "2" }, PercentCase { 5, 200, "2" }, PercentCase { 23, 40, "57" },
        PercentCase { 3, 40, "8" }, PercentCase { 40, 40, "100" }));

TEST_F(ReportTextTest, BuildLine_SomeMinutes_AppendsNameTimeAndShare)
{
    std::string lines = "first\r\n";
    mText.BuildLine(70, lines, "A", 65, PlainLine);
    EXPECT_EQ(lines, "first\r\nA - 1 hour 05 minutes (93%)\r\n");
}

TEST_F(ReportTextTest, BuildLine_NoMinutes_AddsNothing)
{
    EXPECT_EQ(Line(70, "A", 0, PlainLine), "");
    EXPECT_EQ(Line(0, "", 0, PlainLine), "");
}

TEST_F(ReportTextTest, BuildLine_EmptyName_ShowsTheTimeAlone)
{
    EXPECT_EQ(Line(5, "", 5, PlainLine), " - 0 hours 05 minutes (100%)\r\n");
}

TEST_F(ReportTextTest, BuildLine_NameIsToken_IsReplacedInTurn)
{
    EXPECT_EQ(Line(70, "#PERCENT#", 7, PlainLine), "10 - 0 hours 07 minutes (10%)\r\n");
}

TEST_F(ReportTextTest, BuildLine_TotalIsNothing_TracesTheDivisionAndGoesOn)
{
    EXPECT_EQ(Line(0, "A", 5, PlainLine), "A - 0 hours 05 minutes (0%)\r\n");
    EXPECT_THAT(Traced(), ElementsAre("TDReport BuildLine :Division by zero"));
}

TEST_F(ReportTextTest, BuildTail_Total_StandsBetweenStars)
{
    EXPECT_EQ(mText.BuildTail(70), "\r\n***Total time at PC: 1 hour 10 minutes ***\r\n");
    EXPECT_EQ(mText.BuildTail(0), "\r\n***Total time at PC: 0 hours 00 minutes ***\r\n");
}

TEST_F(ReportTextTest, BuildDetail_OneGroup_IsSetApartByLineEnds)
{
    EXPECT_EQ(Detail({ {}, { "A", { "d" } } }, false, PlainGroup), "\r\n\r\nA Activity List\r\nd\r\n");
    EXPECT_THAT(Traced(), ElementsAre("TDReport build detail"));
}

TEST_F(ReportTextTest, BuildDetail_GroupWithoutName_IsCalledNone)
{
    EXPECT_EQ(Detail({ { "", { "\r\nd1", "\r\nd2" } } }, false, PlainGroup),
        "\r\n\r\n(None) Activity List\r\n\r\nd1\r\nd2\r\n");
}

TEST_F(ReportTextTest, BuildDetail_GroupWithoutDetails_IsLeftOut)
{
    EXPECT_EQ(
        Detail({ {}, { "A", { "" } }, { "B", { "d" } } }, false, "[#DETAILTITLE#|#DETAILLIST#]"), "\r\n\r\n[B|d]\r\n");
    EXPECT_EQ(Detail({ {} }, false, PlainGroup), "\r\n");
}

TEST_F(ReportTextTest, BuildDetail_Html_EscapesTheTitleAlone)
{
    EXPECT_EQ(Detail({ { "R&D <x>", { "a&nbsp;b<br>" } } }, true, "#DETAILTITLE#:#DETAILLIST#"),
        "\r\n\r\nR&amp;D &lt;x&gt;:a&nbsp;b<br>\r\n");
    EXPECT_EQ(Detail({ { "R&D", { "d" } } }, false, "#DETAILTITLE#"), "\r\n\r\nR&D\r\n");
}

TEST_F(ReportTextTest, BuildDetail_TokenTwiceOrNever_IsReplacedEachTime)
{
    EXPECT_EQ(Detail({ { "A", { "d" } } }, false, "#DETAILLIST##DETAILLIST#"), "\r\n\r\ndd\r\n");
    EXPECT_EQ(Detail({ { "A", { "d" } } }, false, "x"), "\r\n\r\nx\r\n");
    EXPECT_EQ(Detail({ { "A", { "d" } } }, false, ""), "\r\n\r\n\r\n");
}

TEST_F(ReportTextTest, BuildDetail_GroupsThatGrewSideBySide_KeepTheirLines)
{
    ReportData data;
    data.groups = { { "A" }, { "B" } };
    std::string expected[2];
    for (int line = 0; line < 40000; ++line) {
        const auto index = static_cast<std::size_t>(line % 2);
        const auto text = "\r\nline " + std::to_string(line) + std::string(line == 77 ? 2000000 : 40, 'x');
        data.details.Append(data.groups[index].details, text);
        expected[index] += text;
    }
    EXPECT_EQ(mText.BuildDetail(data, false, "#DETAILTITLE##DETAILLIST#"),
        "\r\n\r\nA" + expected[0] + "\r\n\r\nB" + expected[1] + "\r\n");
}

TEST_F(ReportTextTest, BuildDetail_TitleIsToken_IsReplacedInTurn)
{
    EXPECT_EQ(Detail({ { "#DETAILLIST#", { "d" } } }, false, "#DETAILTITLE# #DETAILLIST#"), "\r\n\r\nd d\r\n");
}

}

}
