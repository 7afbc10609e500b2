#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ListCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33000, "b.doc").Node("Project", "Plan").Text() });
        WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
        WriteTracker("20061007", { WordSlot(32400, 32700, "s\xc3\xbc\xc3\x9f.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
};

constexpr auto A = "Microsoft Word, \"a.doc\"";
constexpr auto B = "[Plan] Microsoft Word, \"b.doc\"";
constexpr auto Y = "Microsoft Word, \"y.doc\"";
constexpr auto S = "Microsoft Word, \"s\xc3\xbc\xc3\x9f.doc\"";

}

TEST_F(ListCommandTest, List_NewProfile_IsEmpty)
{
    Json({ "projects" });
    EXPECT_EQ(Json({ "list" }), nlohmann::json::array());
    EXPECT_EQ(Run({ "list" }).out, "No activities.\n");
    EXPECT_EQ(Run({ "list", "--quiet" }).out, "");
}

TEST_F(ListCommandTest, List_Ranges_TakeBothDays)
{
    Import();
    EXPECT_THAT(Subjects(Json({ "list" })), ElementsAre(A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "today", "--to", "today" })), ElementsAre(A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "yesterday" })), ElementsAre(Y, A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--to", "yesterday" })), ElementsAre(Y));
    EXPECT_THAT(Subjects(Json({ "list", "--to", "2006-10-12" })), ElementsAre(A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "2006-10-07", "--to", "2006-10-09" })), ElementsAre(S, Y));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "0100-01-01", "--to", "9999-12-31" })), ElementsAre(S, Y, A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "2006-10-11" })), ElementsAre());
}

TEST_F(ListCommandTest, List_Words_AreSpans)
{
    Import();
    EXPECT_THAT(Subjects(Json({ "list", "yesterday" })), ElementsAre(Y));
    EXPECT_THAT(Subjects(Json({ "list", "2006-10-09" })), ElementsAre(Y));
    EXPECT_THAT(Subjects(Json({ "list", "-4d" })), ElementsAre(S, Y, A, B));
    EXPECT_THAT(Subjects(Json({ "list", "week" })), ElementsAre(Y, A, B));
    EXPECT_THAT(Subjects(Json({ "list", "last-week" })), ElementsAre(S));
    EXPECT_THAT(Subjects(Json({ "list", "2006-W40" })), ElementsAre(S));
    EXPECT_THAT(Subjects(Json({ "list", "month" })), ElementsAre(S, Y, A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "monday" })), ElementsAre(Y, A, B));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "last-week", "--to", "last-week" })), ElementsAre(S));
    EXPECT_THAT(Subjects(Json({ "list", "--from", "-2d" })), ElementsAre(Y, A, B));
}

TEST_F(ListCommandTest, List_Week_BeginsAsTheLocaleHasIt)
{
    Import();
    for (const auto& [locale, count] :
        std::vector<std::pair<const char*, std::size_t>> { { "en_US", 3 }, { "de_DE", 3 }, { "ar_EG", 4 } }) {
        // Saturday's activity is of the week that begins on that day, or of the week before.
        const auto result = RunTempodial(
            { "--profile", mProfile, "--locale", locale, "--now", mNow, "--json", "list", "--from", "week" });
        EXPECT_EQ(result.status, 0) << locale << result.error;
        EXPECT_EQ(nlohmann::json::parse(result.out).size(), count) << locale;
    }
}

TEST_F(ListCommandTest, List_OtherLocales_FindTheSame)
{
    Import();
    for (const auto* locale : { "de_DE", "ja_JP", "ar_EG", "th_TH", "fa_IR", "en_GB" }) {
        const auto result = RunTempodial({ "--profile", mProfile, "--locale", locale, "--now", mNow, "--json", "list",
            "--from", "2006-10-07", "--to", "2006-10-10" });
        EXPECT_EQ(result.status, 0) << locale << result.error;
        EXPECT_THAT(Subjects(nlohmann::json::parse(result.out)), ElementsAre(S, Y, A, B)) << locale;
    }
}

TEST_F(ListCommandTest, List_Project_IsFoundInAnyCase)
{
    Import();
    for (const auto* name : { "Plan", "plan", "PLAN" }) {
        EXPECT_THAT(Subjects(Json({ "list", "--project", name })), ElementsAre(B));
    }
    EXPECT_THAT(Subjects(Json({ "list", "--project", "no project" })), ElementsAre(A));
}

TEST_F(ListCommandTest, List_ProjectWithoutActivities_IsKnownByTheListOrByOtherDays)
{
    Import();
    EXPECT_THAT(Subjects(Json({ "list", "--project", "wish" })), ElementsAre());
    EXPECT_THAT(Subjects(Json({ "list", "--project", "plan", "--to", "yesterday" })), ElementsAre());
    EXPECT_THAT(Subjects(Json({ "list", "--project", "No Project", "--to", "2006-10-01" })), ElementsAre());
}

TEST_F(ListCommandTest, List_UnknownProject_IsRefusedWithTheNearest)
{
    Import();
    EXPECT_EQ(Refusal({ "list", "--project", "Whish" }, 1),
        "tempodial: there is no project \"Whish\": did you mean \"Wish\"? Else see \"tempodial projects\" for those "
        "there are\n");
    EXPECT_THAT(Refusal({ "list", "--project", "Plam", "--to", "yesterday" }, 1), HasSubstr("did you mean \"Plan\"?"));
    EXPECT_EQ(Refusal({ "list", "--project", "Zebra" }, 1),
        "tempodial: there is no project \"Zebra\": see \"tempodial projects\" for those there are\n");
    for (const auto* name : { "", " ", "a\nb" }) {
        EXPECT_THAT(Refusal({ "list", "--project", name }, 2), HasSubstr("the name of a project can't"));
    }
}

TEST_F(ListCommandTest, List_Item_HasItsFields)
{
    WriteTracker("20061010",
        { WordLine(36000, 36300, "plan.doc").Node("Project", "Plan").Text(),
            WordLine(36300, 36600, "plan.doc").Continuation().Node("Project", "Plan").Text() });
    Run({ "sync" });
    auto item = Json({ "list" }).at(0);
    EXPECT_GE(item.at("entryId").get<std::string>().size(), 1U);
    item.erase("entryId");
    EXPECT_EQ(item, nlohmann::json::parse(R"({
        "id": 1, "messageClass": "IPM.Appointment.TDActivity1", "subject": "[Plan] Microsoft Word, \"plan.doc\"",
        "start": "2006-10-10T10:00:00", "end": "2006-10-10T10:10:00", "duration": 10, "body": "",
        "mileage": "Plan", "billingInformation": "\"plan.doc\"",
        "properties": { "Type": "Microsoft Word", "Day": "2006-10-10T00:00:00", "StartTime": "10:00",
            "Project": "Plan", "Description": "\"plan.doc\"", "People": "",
            "Keyword": "<word or phrase to match an activity to this project>", "ApplyPast": false } })"));
}

TEST_F(ListCommandTest, List_ForPeople_IsATable)
{
    Import();
    EXPECT_EQ(Run({ "list" }).out,
        "09:00–09:05  5 min  Microsoft Word, \"a.doc\"\n"
        "09:05–09:10  5 min  [Plan] Microsoft Word, \"b.doc\"\n"
        "\n"
        "2 activities, 10 min\n");
    EXPECT_THAT(Run({ "list", "--from", "yesterday" }).out,
        testing::StartsWith("Monday, October 9, 2006\n09:00–09:05  5 min  Microsoft Word, \"y.doc\"\n\nTuesday, "));
}

TEST_F(ListCommandTest, List_Ids_StandBeforeTheLines)
{
    Import();
    EXPECT_EQ(Run({ "list", "--ids" }).out,
        "@1 09:00–09:05  5 min  Microsoft Word, \"a.doc\"\n"
        "@2 09:05–09:10  5 min  [Plan] Microsoft Word, \"b.doc\"\n"
        "\n"
        "2 activities, 10 min\n");
    const auto items = Json({ "list", "--from", "2006-10-07" });
    std::vector<std::string> numbers;
    for (const auto& item : items) {
        numbers.push_back(item.at("id").dump() + " " + item.at("subject").get<std::string>());
    }
    EXPECT_THAT(numbers,
        ElementsAre(std::string("4 ") + S, std::string("3 ") + Y, std::string("1 ") + A, std::string("2 ") + B));
    EXPECT_EQ(Json({ "export", "--format", "json", "--from", "2006-10-07" }), items);
}

TEST_F(ListCommandTest, List_CaptionWithControlCharacters_IsHarmlessForPeopleAndWholeInJson)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a\t\xe2\x80\xae.doc") });
    Run({ "sync" });
    EXPECT_THAT(Run({ "list" }).out, HasSubstr("  \u2068Microsoft Word, \"a .doc\"\u2069\n"));
    EXPECT_THAT(Subjects(Json({ "list" })), ElementsAre("Microsoft Word, \"a\t\xe2\x80\xae.doc\""));
}

TEST_F(ListCommandTest, List_NoIdentityInTheRegistry_FindsTheCalendarsFolder)
{
    Import();
    EXPECT_EQ(Run({ "registry", "delete", "HKCU", "", "Outlook Folder Unique ID" }).status, 0);
    EXPECT_THAT(Subjects(Json({ "list" })), ElementsAre(A, B));
}

TEST_F(ListCommandTest, List_BadRanges_AreUsageErrors)
{
    EXPECT_THAT(Refusal({ "list", "--from", "2006-10-10", "--to", "2006-10-09" }, 2), HasSubstr("is later than --to"));
    EXPECT_THAT(Refusal({ "list", "--from", "tomorrow" }, 2), HasSubstr("--from can't be \"tomorrow\""));
    EXPECT_THAT(Refusal({ "list", "--to", "2006-02-29" }, 2), HasSubstr("YYYY-MM-DD"));
    EXPECT_THAT(Refusal({ "list", "2006-13" }, 2), HasSubstr("RANGE can't be \"2006-13\""));
    EXPECT_THAT(Refusal({ "list", "week", "--from", "today" }, 2), HasSubstr("leave one of them out"));
    EXPECT_THAT(Refusal({ "list", "tomorrow" }, 2), HasSubstr(", yesterday, monday to sunday for the last such day, "));
    EXPECT_EQ(
        Refusal({ "list", "Friday" }, 2), "tempodial: RANGE can't be \"Friday\": give friday, in small letters\n");
    EXPECT_THAT(Refusal({ "list", "Tomorrow" }, 2), HasSubstr("give a day as YYYY-MM-DD"));
    Refusal({ "list", "2025-W53" }, 2);
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(ListCommandTest, List_AnyTime_LeavesNoTrace)
{
    Import();
    const auto before = std::filesystem::file_size(DataPath("WorkLogTrace1.out"));
    Run({ "list" });
    Run({ "trace" });
    Run({ "registry", "get", "HKCU", "", "CurrentVersion" });
    EXPECT_EQ(std::filesystem::file_size(DataPath("WorkLogTrace1.out")), before);
}

}
