#include "base/Date.h"
#include "session/ProfileFolder.h"
#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using nlohmann::json;
using testing::Each;
using testing::HasSubstr;
using testing::Not;

/// A table of windows on the days before the present one.
std::string Table(int firstDay, int lastDay)
{
    std::string text = "start,end,program,title\n";
    for (int day = firstDay; day <= lastDay; ++day) {
        const auto date = "2006-10-0" + std::to_string(day);
        text += date + "T09:00," + date + "T09:32,atlas,map " + std::to_string(day) + "\n" + date + "T09:32," + date
            + "T10:00,ledger,sum\n";
    }
    return text;
}

class ImportCommandTest : public ProgramFixture
{
protected:
    std::string File(const std::string& text) const { return mFolder.Write("export", text); }
    json Import(const std::string& source, const std::string& text, Arguments more = {}) const
    {
        Arguments arguments { "import", source, File(text) };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Json(arguments);
    }
    json Sightings(int firstDay, int lastDay, Arguments more = {}) const
    {
        more.insert(more.begin(), { "--as", "sightings" });
        return Import("csv", Table(firstDay, lastDay), more);
    }
    std::string RefusalOf(const std::string& source, const std::string& text, int status = 2, Arguments more = {}) const
    {
        Arguments arguments { "import", source, File(text) };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Refusal(arguments, status);
    }
    json All() const { return Json({ "list", "--from", "2006-01-01", "--to", "2006-12-31" }); }
};

}

TEST_F(ImportCommandTest, Import_Sightings_ComeToTheLogAsActivities)
{
    const auto answer = Sightings(2, 3);
    EXPECT_EQ(answer.at("source"), "csv");
    EXPECT_EQ(answer.at("from"), "2006-10-02");
    EXPECT_EQ(answer.at("to"), "2006-10-03");
    EXPECT_EQ(answer.at("days"), json::parse(R"([{"day":"2006-10-02","slots":12,"entries":0,"taken":0,"before":0},
        {"day":"2006-10-03","slots":12,"entries":0,"taken":0,"before":0}])"));
    EXPECT_EQ(answer.at("minutes"), json::parse(R"({"present":120,"written":120})"));
    EXPECT_EQ(answer.at("skipped"), json::object());
    EXPECT_EQ(answer.at("created"), 4);
    EXPECT_FALSE(answer.contains("dryRun"));
    EXPECT_EQ(Subjects(All()),
        (std::vector<std::string> { "Atlas, \"map 2\"", "Ledger, \"sum\"", "Atlas, \"map 3\"", "Ledger, \"sum\"" }));
    EXPECT_FALSE(std::filesystem::exists(DataPath("tracker_granules20061002.out")));
}

TEST_F(ImportCommandTest, Import_SameAgainAndLonger_ComesOnce)
{
    Sightings(2, 3);
    const auto again = Sightings(2, 3);
    EXPECT_EQ(again.at("created"), 0);
    EXPECT_EQ(again.at("days").at(0).at("before"), 12);
    EXPECT_EQ(again.at("minutes").at("written"), 0);
    EXPECT_EQ(Sightings(2, 5).at("created"), 4);
    EXPECT_EQ(Sightings(3, 4).at("created"), 0);
    EXPECT_EQ(All().size(), 8U);
}

TEST_F(ImportCommandTest, Import_LedgerLost_TakesNoTimeTwice)
{
    Sightings(2, 3);
    std::filesystem::remove(DataPath("imported.toml"));
    const auto again = Sightings(2, 3);
    EXPECT_EQ(again.at("days").at(0).at("taken"), 12);
    EXPECT_EQ(again.at("created"), 0);
}

TEST_F(ImportCommandTest, Import_FinishedDay_FillsTheGaps)
{
    WriteTracker("20061002", { WordSlot(33000, 33300, "a.doc") });
    Json({ "sync" });
    const auto answer = Sightings(2, 2);
    EXPECT_EQ(answer.at("days").at(0).at("taken"), 1);
    EXPECT_EQ(answer.at("days").at(0).at("slots"), 11);
    EXPECT_EQ(All().size(), 4U);
}

TEST_F(ImportCommandTest, Import_SlotsThatWaitInTheRecorder_AreTaken)
{
    const auto midnight = Date::FromYearMonthDay(2006, 10, 2).Seconds();
    WriteData("track.state",
        "Tempodial track state 1\nslot\t" + std::to_string(midnight + 33000) + "\t300000\nempty\t"
            + std::to_string((midnight + 33300) * 1000) + "\t" + std::to_string((midnight + 33301) * 1000) + "\nline\t"
            + std::to_string(midnight) + "\t" + WordSlot(34200, 34500, "a.doc") + "\n");
    EXPECT_EQ(Sightings(2, 2, { "--dry-run" }).at("days").at(0).at("taken"), 3);
    EXPECT_EQ(Sightings(2, 2).at("days").at(0).at("taken"), 3);
}

TEST_F(ImportCommandTest, Import_DaysOfManyWeeks_LeaveNothingBehind)
{
    std::string text = "start,end,program,title\n";
    for (int month = 1; month <= 9; ++month) {
        const auto date = "2006-0" + std::to_string(month) + "-15";
        text += date + "T23:50," + date + "T23:59,atlas,night\n";
    }
    const auto answer = Import("csv", text);
    EXPECT_EQ(answer.at("created"), 9);
    EXPECT_EQ(answer.at("days").size(), 9U);
    EXPECT_EQ(answer.at("days").at(0).at("entries"), 1);
    EXPECT_EQ(All().size(), 9U);
    for (const auto& entry : std::filesystem::directory_iterator(mProfile + "/Tempodial")) {
        const auto name = entry.path().filename().string();
        EXPECT_FALSE(name.starts_with("tracker_granules2")) << name;
    }
}

TEST_F(ImportCommandTest, Import_DryRun_MakesNothingAndTellsNoTitle)
{
    const auto result = Run({ "--json", "import", "csv", File(Table(2, 3)), "--as", "sightings", "--dry-run" });
    EXPECT_EQ(result.status, 0) << result.error;
    const auto answer = json::parse(result.out);
    EXPECT_EQ(answer.at("dryRun"), true);
    EXPECT_EQ(answer.at("created"), 4);
    EXPECT_THAT(result.out, Not(HasSubstr("map")));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(ImportCommandTest, Import_Again_NeedsAWordAndDoublesNothing)
{
    Sightings(2, 2);
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 2, { "--as", "sightings", "--again" }), HasSubstr("--yes"));
    const auto answer = Sightings(2, 2, { "--again", "--yes" });
    EXPECT_EQ(answer.at("created"), 0);
    EXPECT_EQ(answer.at("days").at(0).at("taken"), 12);
}

TEST_F(ImportCommandTest, Import_IsOneStep_WhichUndoTakesBackForGood)
{
    std::string text = "start,end,program,title\n";
    for (int month = 6; month <= 9; ++month) {
        const auto date = "2006-0" + std::to_string(month) + "-15";
        text += date + "T09:00," + date + "T10:00,atlas,map\n";
    }
    const Arguments asSightings { "--as", "sightings" };
    EXPECT_EQ(Import("csv", text, asSightings).at("created"), 4);
    const auto log = Json({ "log" });
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(log[0].at("activities"), 4);
    EXPECT_EQ(log[0].at("command"), "import csv " + mFolder.Path("export") + " --as sightings");
    EXPECT_EQ(log[0].at("when"), "2006-10-10T17:00:00");
    EXPECT_EQ(Json({ "undo" }).at("restored"), 4);
    EXPECT_TRUE(All().empty());

    EXPECT_EQ(Import("csv", text, asSightings).at("created"), 0);
    Json({ "sync" });
    EXPECT_TRUE(All().empty());
    EXPECT_EQ(Json({ "log" }).size(), 2U) << "the import and its undo, and nothing of what changed nothing";

    EXPECT_EQ(Import("csv", text, { "--as", "sightings", "--again", "--yes" }).at("created"), 4);
    EXPECT_EQ(Json({ "log" }).size(), 3U);
    EXPECT_EQ(Json({ "undo" }).at("restored"), 4);
    EXPECT_TRUE(All().empty());
}

TEST_F(ImportCommandTest, Import_WhatTheTrackerWrote_IsNoPartOfItsStep)
{
    WriteTracker("20061010", { WordSlot(33000, 33300, "today.doc") });
    WriteTracker("20061004", { WordSlot(33000, 33300, "past.doc") });
    Sightings(2, 3);
    EXPECT_EQ(Json({ "log" }).at(0).at("activities"), 4);
    EXPECT_EQ(All().size(), 6U);
    EXPECT_EQ(Json({ "undo" }).at("restored"), 4);
    EXPECT_EQ(Subjects(All()),
        (std::vector<std::string> { "Microsoft Word, \"past.doc\"", "Microsoft Word, \"today.doc\"" }));
}

TEST_F(ImportCommandTest, Import_ProfileInUse_IsLeftAlone)
{
    const ProfileFolder used(mProfile);
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 3, { "--as", "sightings", "--wait", "0" }), HasSubstr(" is in use by "));
    EXPECT_FALSE(std::filesystem::exists(mProfile + "/mailbox.db"));
}

TEST_F(ImportCommandTest, Import_ActivityChangedSince_IsKeptByUndo)
{
    Sightings(2, 3);
    Json({ "edit", "@1", "--description", "by hand" });
    const auto undone = Json({ "undo", "1" });
    EXPECT_EQ(undone.at("restored"), 3);
    EXPECT_EQ(undone.at("kept"), 1);
    EXPECT_EQ(All().size(), 1U);
}

TEST_F(ImportCommandTest, Import_Today_IsLeftToTheTracker)
{
    const auto answer = Import("csv", "start,end,program\n2006-10-10T09:00,2006-10-10T10:00,atlas\n");
    EXPECT_EQ(answer.at("days"), json::array());
    EXPECT_EQ(answer.at("from"), nullptr);
    EXPECT_EQ(answer.at("skipped"), json::parse(R"({"today":1})"));
}

TEST_F(ImportCommandTest, Import_Entries_KeepProjectAndMinutes)
{
    const auto answer = Import("toggl",
        "Project,Description,Start date,Start time,End date,End "
        "time\nRiverside,call,2006-10-02,09:00:00,2006-10-02,09:07:00\n");
    EXPECT_EQ(answer.at("minutes").at("written"), 7);
    const auto items = All();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].at("subject"), "[Riverside] Toggl, \"call\"");
    EXPECT_EQ(items[0].at("duration"), 7);
}

TEST_F(ImportCommandTest, Import_PrivacyRules_HoldHereToo)
{
    std::filesystem::create_directories(mProfile);
    mFolder.Write("profile/track.toml", "[[rule]]\ntitle = \"map*\"\ndo = \"replace\"\ntext = \"Hidden\"\n");
    Sightings(2, 2);
    EXPECT_THAT(Subjects(All()), Each(Not(HasSubstr("map"))));
    mFolder.Write("profile/track.toml", "[[rule]]\ndo = \"hide\"\n");
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 1), HasSubstr("track.toml, line 2"));
}

TEST_F(ImportCommandTest, Import_UnreadableRows_AreCountedAndTheOthersTaken)
{
    const auto result = Run(
        { "--json", "import", "csv", File("start,end,program\nx,y,z\n2006-10-02T09:00,2006-10-02T10:00,atlas\n") });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(json::parse(result.out).at("created"), 1);
    EXPECT_EQ(result.error,
        "tempodial: 1 record couldn't be read (line 2): correct it in the file, with times such as 2026-11-21 10:00, "
        "and import it again; nothing comes twice\n");
    EXPECT_THAT(Run({ "import", "activitywatch",
                        File(R"({"buckets":{"a":{"type":"currentwindow","events":[{"timestamp":"x"},{}]}}})") })
                    .error,
        HasSubstr("2 records couldn't be read: all others were taken\n"));
}

TEST_F(ImportCommandTest, Import_UnreadableRows_AreNamedByTheirLines)
{
    const std::string good = "2006-10-02T09:00,2006-10-02T10:00,\"two\nlines\"\r\n";
    const std::string backward = "2006-10-02T12:00,2006-10-02T11:00,z\r\n";
    EXPECT_THAT(
        Run({ "import", "csv", File("start,end,program\r\n" + good + "\r\n" + backward + good + "x,y,z\n") }).error,
        HasSubstr("2 records couldn't be read (lines 5, 8): correct them"));
    std::string many = "start,end,program\r";
    for (int i = 0; i < 12; ++i) {
        many += "\n";
        many += "x,y,z\r";
    }
    EXPECT_THAT(Run({ "import", "csv", File(many) }).error, HasSubstr("(lines 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, …)"));
    EXPECT_THAT(Run({ "import", "toggl",
                        File("Start date,Start time,End date,End time\n"
                             "2006-10-33,09:00:00,2006-10-03,10:00:00\n2006-10-03,x,2006-10-03,10:00:00\n"
                             "2006-10-03,11:00:00,2006-10-03,10:00:00\n") })
                    .error,
        HasSubstr("3 records couldn't be read (lines 2, 3, 4): correct them in the file and import it again"));
    EXPECT_THAT(Run({ "import", "csv", File("start,end,program\n" + good + "2006-10-02T12:00,\"x\n\n") }).error,
        HasSubstr("(line 4)"));
}

TEST_F(ImportCommandTest, Import_Quiet_PrintsWhatWasAskedForAlone)
{
    const auto file = File(Table(2, 3) + "x,y,z,\n");
    const Arguments import { "import", "csv", file, "--as", "sightings" };
    const auto quiet = [&import](Arguments more) {
        more.insert(more.begin(), import.begin(), import.end());
        more.emplace_back("--quiet");
        return more;
    };
    const std::string days = "2006-10-02  60 min\n2006-10-03  60 min\nleft out: 1 unreadable\n";
    EXPECT_EQ(Run(quiet({ "--dry-run" })).out, days);
    const auto result = Run(quiet({}));
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, HasSubstr("1 record couldn't be read"));
    EXPECT_EQ(Run(import).out,
        "2006-10-02  0 min, 12 imported before\n2006-10-03  0 min, 12 imported before\nleft out: 1 unreadable\n"
        "Imported 0 min of 120, on 2 days\n");
}

TEST_F(ImportCommandTest, Import_DatesOfATable_AreReadInTheOrderThatIsTold)
{
    const auto table = "start;end;program\n03.10.2006 09:00;03.10.2006 10:00;atlas\n";
    EXPECT_THAT(RefusalOf("csv", table), HasSubstr("--dates mdy or --dates dmy"));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
    EXPECT_EQ(Import("csv", table, { "--dates", "dmy" }).at("from"), "2006-10-03");
    EXPECT_EQ(Import("csv", table, { "--dates", "mdy" }).at("from"), "2006-03-10");
}

TEST_F(ImportCommandTest, Import_UnknownZone_NamesTheOneThatIsMeant)
{
    const auto said = [this](const std::string& zone) { return RefusalOf("csv", Table(2, 2), 2, { "--zone", zone }); };
    EXPECT_THAT(said("Europe/Zurik"), HasSubstr("did you mean \"Europe/Zurich\"?"));
    EXPECT_THAT(said("Europe/Wien"), HasSubstr("did you mean \"Europe/Vienna\"?"));
    EXPECT_THAT(said("Wien"), HasSubstr("did you mean \"Europe/Vienna\"?"));
    EXPECT_THAT(said("America/new_yrok"), HasSubstr("did you mean \"America/New_York\"?"));
    EXPECT_THAT(said("Asia/Zurich"), HasSubstr("did you mean \"Europe/Zurich\"?"));
    for (const auto* none : { "Europe/Bonn-Beuel", "xyzzy", "", "Europe/" }) {
        EXPECT_THAT(said(none), HasSubstr("\": name one such as Europe/Zurich")) << none;
    }
}

TEST_F(ImportCommandTest, Import_WrongArguments_AreUsageErrors)
{
    EXPECT_THAT(RefusalOf("togl", ""), HasSubstr("there is no source \"togl\": did you mean \"toggl\"?"));
    EXPECT_THAT(RefusalOf("other", ""), HasSubstr("there is no source \"other\": see \"tempodial import --list\""));
    EXPECT_THAT(RefusalOf("manictime", ""), HasSubstr("csv"));
    EXPECT_THAT(RefusalOf("csv", ""), HasSubstr("empty"));
    EXPECT_THAT(RefusalOf("csv", "{\"buckets\":{}}"), HasSubstr("activitywatch"));
    EXPECT_THAT(RefusalOf("activitywatch", "id,timestamp,duration,data,app\n"), HasSubstr("csv --as sightings"));
    EXPECT_THAT(RefusalOf("arbtt", "BEGIN:VCALENDAR\n"), HasSubstr("tempodial import ics"));
    EXPECT_THAT(RefusalOf("csv", "Start Date,Start Time,End Date,End Time\n"), HasSubstr("tempodial import clockify"));
    EXPECT_THAT(RefusalOf("csv", "Start date,Start time,End date,End time\n"), HasSubstr("tempodial import toggl"));
    EXPECT_THAT(RefusalOf("toggl", Table(2, 2), 2, { "--as", "sightings" }), HasSubstr("--as"));
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 2, { "--dates", "ymd" }), HasSubstr("mdy"));
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 2, { "--from", "today", "--to", "yesterday" }), HasSubstr("later"));
    EXPECT_THAT(Refusal({ "import", "csv" }, 2), HasSubstr("source and a file"));
}

TEST_F(ImportCommandTest, Import_FilesThatCanNotBeTaken_ChangeNothing)
{
    EXPECT_THAT(Refusal({ "import", "csv", mFolder.Path("none") }, 1), HasSubstr("can't be read"));
    EXPECT_THAT(Refusal({ "import", "csv", mFolder.Path() }, 1), HasSubstr("can't be read"));
    EXPECT_THAT(RefusalOf("activitywatch", "{\"buckets\":{\"a\":", 1), HasSubstr("cut off"));
    const auto large = File("start,end,program\n");
    std::filesystem::resize_file(large, (std::uintmax_t { 2 } << 30) + 1);
    EXPECT_THAT(Refusal({ "import", "csv", large }, 1), HasSubstr("2 GiB"));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
    WriteData("imported.toml", "[[day]]\nday = \"x\"\n");
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 1), HasSubstr("imported.toml"));
    EXPECT_TRUE(All().empty());
}

TEST_F(ImportCommandTest, Import_NothingInTheFile_IsDone)
{
    EXPECT_EQ(Import("csv", "start,end,program\n").at("days"), json::array());
    EXPECT_EQ(Import("activitywatch", "{\"buckets\":{}}").at("created"), 0);
    EXPECT_EQ(Import("arbtt", "[]").at("created"), 0);
}

TEST_F(ImportCommandTest, Import_Calendar_FillsFreeTimeWithMeetings)
{
    const auto event = [](const std::string& lines) { return "BEGIN:VEVENT\r\n" + lines + "\r\nEND:VEVENT\r\n"; };
    const auto calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n"
        + event("UID:1\r\nDTSTART:20061002T090000Z\r\nDTEND:20061002T093000Z\r\nSUMMARY:Weekly\r\n"
                "RRULE:FREQ=DAILY;COUNT=4\r\nEXDATE:20061003T090000Z")
        + event("UID:1\r\nRECURRENCE-ID:20061004T090000Z\r\nDTSTART:20061004T140000Z\r\nDURATION:PT45M\r\n"
                "SUMMARY:Weekly\\, moved")
        + event("UID:2\r\nDTSTART;VALUE=DATE:20061002\r\nSUMMARY:Holiday")
        + event("UID:3\r\nDTSTART:20061002T100000\r\nDTEND:20061002T110000\r\nTRANSP:TRANSPARENT")
        + event("UID:4\r\nDTSTART:20061002T100000\r\nDTEND:20061002T110000\r\nSTATUS:CANCELLED")
        + event("UID:5\r\nDTSTART:20061002T100000\r\nDTEND:20061002T110000\r\n"
                "ATTENDEE;PARTSTAT=DECLINED:mailto:ann@example.com")
        + event("UID:6\r\nDTSTART:20061002T120000\r\nDTEND:20061002T123000\r\nSUMMARY:Lunch\r\n  talk")
        + "END:VCALENDAR\r\n";
    const auto answer = Import("ics", calendar, { "--zone", "Europe/Zurich" });
    EXPECT_EQ(answer.at("skipped"), json::parse(R"({"allDay":1,"cancelled":1,"declined":1,"transparent":1})"));
    std::vector<std::string> told;
    for (const auto& item : All()) {
        told.push_back(item.at("start").get<std::string>() + " " + item.at("subject").get<std::string>());
    }
    EXPECT_EQ(told,
        (std::vector<std::string> { "2006-10-02T11:00:00 Meeting, \"Weekly\"",
            "2006-10-02T12:00:00 Meeting, \"Lunch talk\"", "2006-10-04T16:00:00 Meeting, \"Weekly, moved\"",
            "2006-10-05T11:00:00 Meeting, \"Weekly\"" }));
    EXPECT_THAT(RefusalOf("ics", "x"), HasSubstr("BEGIN:VCALENDAR"));
}

TEST_F(ImportCommandTest, Import_EventsBefore1990_AreCounted)
{
    std::string calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
    for (const auto* start : { "19891231T093000", "18700101T090000Z", "19891231T233000", "19900101T090000" }) {
        calendar += std::string("BEGIN:VEVENT\r\nUID:") + start + "\r\nDTSTART:" + start
            + "\r\nDURATION:PT30M\r\nSUMMARY:x\r\nEND:VEVENT\r\n";
    }
    const auto answer = Import("ics", calendar + "END:VCALENDAR\r\n");
    EXPECT_EQ(answer.at("skipped"), json::parse(R"({"before1990":3})"));
    EXPECT_EQ(answer.at("days"), json::parse(R"([{"day":"1990-01-01","slots":0,"entries":1,"taken":0,"before":0}])"));
    EXPECT_EQ(answer.at("created"), 1);
}

TEST_F(ImportCommandTest, Import_EventsThatRepeatWithoutMeasure_AreRefusedWithTheLimit)
{
    std::string calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
    for (int i = 0; i < 40; ++i) {
        calendar += "BEGIN:VEVENT\r\nUID:" + std::to_string(i)
            + "\r\nDTSTART:20060101T090000\r\nDURATION:PT1S\r\nSUMMARY:x\r\nRRULE:FREQ=SECONDLY\r\nEND:VEVENT\r\n";
    }
    EXPECT_THAT(RefusalOf("ics", calendar + "END:VCALENDAR\r\n", 1), HasSubstr("500000"));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(ImportCommandTest, Import_EventByTheHourForManyYears_ComesToTheDaysAskedFor)
{
    const auto calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTART:19950101T000000\r\n"
                          "DURATION:PT10M\r\nSUMMARY:Round\r\nRRULE:FREQ=HOURLY\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    const auto answer = Import("ics", calendar, { "--from", "2006-10-02", "--to", "2006-10-02" });
    EXPECT_EQ(answer.at("days"), json::parse(R"([{"day":"2006-10-02","slots":0,"entries":24,"taken":0,"before":0}])"));
    EXPECT_EQ(answer.at("created"), 24);
}

TEST_F(ImportCommandTest, Import_FoldedInTheMiddleOfALetter_KeepsTheLetter)
{
    const auto calendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTART:20061002T090000\r\n"
                          "DURATION:PT10M\r\nSUMMARY:B\xc3\r\n \xbcro\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    Import("ics", calendar);
    EXPECT_EQ(Subjects(All()), (std::vector<std::string> { "Meeting, \"B\u00fcro\"" }));
}

TEST_F(ImportCommandTest, Import_ProjectOfASighting_ComesToTheLog)
{
    const auto table = "start,end,program,title,project\n2006-10-02T09:00,2006-10-02T09:30,atlas,map,Riverside\n";
    Import("csv", table, { "--as", "sightings" });
    ASSERT_EQ(All().size(), 1U);
    EXPECT_EQ(All()[0].at("subject"), "[Riverside] Atlas, \"map\"");
    std::filesystem::remove_all(mProfile);
    Import("csv", table, { "--as", "sightings", "--no-projects" });
    EXPECT_EQ(Subjects(All()), (std::vector<std::string> { "Atlas, \"map\"" }));
}

TEST_F(ImportCommandTest, Import_RulesBehindALinkToNothing_AreMissedByName)
{
    std::filesystem::create_directories(mProfile);
    std::filesystem::create_symlink(mFolder.Path("none"), mProfile + "/track.toml");
    EXPECT_THAT(RefusalOf("csv", Table(2, 2), 1), HasSubstr("track.toml"));
    EXPECT_FALSE(std::filesystem::exists(mProfile + "/Tempodial"));
}

TEST_F(ImportCommandTest, Import_DayThatCanNotBeWritten_IsAnsweredWithWhatWas)
{
    std::filesystem::create_directories(DataPath("imported-day.tmp"));
    const auto result = Run({ "--json", "import", "csv", File(Table(2, 3)), "--as", "sightings" });
    EXPECT_EQ(result.status, 1);
    const auto answer = json::parse(result.out);
    EXPECT_EQ(answer.at("days")[0].at("slots"), 0);
    EXPECT_EQ(answer.at("minutes"), json::parse(R"({"present":120,"written":0})"));
    EXPECT_EQ(answer.at("created"), 0);
    EXPECT_THAT(result.error, HasSubstr("20061002 couldn't be written"));
    std::filesystem::remove_all(DataPath("imported-day.tmp"));
    EXPECT_EQ(Sightings(2, 3).at("created"), 4);
}

TEST_F(ImportCommandTest, Import_BucketsOfNoUse_AreNamed)
{
    const auto file = File(R"({"buckets":{"aw-watcher-vim_box":{"type":"app.editor.activity","events":[]}}})");
    for (const Arguments& more : { Arguments {}, Arguments { "--dry-run" } }) {
        Arguments arguments { "--json", "import", "activitywatch", file };
        arguments.insert(arguments.end(), more.begin(), more.end());
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(json::parse(result.out).at("skipped"), json::parse(R"({"bucket":1})"));
        EXPECT_THAT(result.error, HasSubstr("left out the bucket \"aw-watcher-vim_box\""));
    }
}

TEST_F(ImportCommandTest, Import_List_NamesTheSources)
{
    const auto sources = Json({ "import", "--list" });
    EXPECT_EQ(sources.at(0).at("source"), "activitywatch");
    EXPECT_EQ(sources.at(0).at("as"), json::array({ "sightings" }));
    for (const auto& source : sources) {
        EXPECT_FALSE(source.at("reads").get<std::string>().empty());
    }
}

}
