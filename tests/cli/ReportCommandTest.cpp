#include "base/Text.h"
#include "cli/ReadBack.h"
#include "cli/StartedProgram.h"
#include "support/ProgramFixture.h"

#include <regex>

namespace tempodial {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ReportCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33000, "b.doc").Node("Project", "Plan").Text(),
                WordSlot(68400, 68700, "late.doc") });
        WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    /// True when a report left a table behind.
    bool HasCsvFile() const
    {
        const std::filesystem::directory_iterator files(mProfile + "/Tempodial");
        return std::any_of(
            begin(files), end(files), [](const auto& file) { return file.path().extension() == ".csv"; });
    }
    /// The sum of what an expression finds, as hours and minutes or as minutes alone.
    static int Minutes(const std::string& text, const std::string& expression)
    {
        int sum = 0;
        const std::regex regex(expression);
        for (std::sregex_iterator found(text.begin(), text.end(), regex); found != std::sregex_iterator(); ++found) {
            const auto& match = *found;
            sum += match.size() == 3 ? std::stoi(match[1]) * 60 + std::stoi(match[2]) : std::stoi(match[1]);
        }
        return sum;
    }
};

constexpr auto HoursAndMinutes = R"((\d+) hours? (\d+) minutes)";

}

TEST_F(ReportCommandTest, Report_Text_IsPrintedAsItIs)
{
    Import();
    EXPECT_EQ(Out({ "report", "--text" }),
        "Microsoft Word - 0 hours 15 minutes (100%)\r\n"
        "\r\n***Total time at PC: 0 hours 15 minutes ***\r\n"
        "\r\n\r\nMicrosoft Word Activity List\r\n"
        "10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    \"a.doc\"\r\n"
        "10-Oct-06  9:05 AM - 9:10 AM  (05 mins)    [Plan] \"b.doc\"\r\n"
        "10-Oct-06  7:00 PM - 7:05 PM  (05 mins)    \"late.doc\"\r\n");
    EXPECT_EQ(Out({ "report", "--text", "--no-details" }),
        "Microsoft Word - 0 hours 15 minutes (100%)\r\n\r\n***Total time at PC: 0 hours 15 minutes ***\r\n");
}

TEST_F(ReportCommandTest, Report_Html_IsPrintedAsItIs)
{
    Import();
    const auto page = Out({ "report" });
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>"));
    EXPECT_TRUE(page.ends_with("</body></html>"));
    EXPECT_THAT(page, HasSubstr("late.doc"));
    EXPECT_THAT(Out({ "report", "--no-details" }), Not(HasSubstr("late.doc")));
}

TEST_F(ReportCommandTest, Report_Json_HasItsFields)
{
    Import();
    const auto html = Json({ "report" });
    EXPECT_EQ(html.size(), 4U);
    EXPECT_EQ(html.at("subject"), "Tempodial Report (By Application) Tuesday, October 10, 2006");
    EXPECT_EQ(html.at("html"), true);
    EXPECT_EQ(html.at("body"), Out({ "report" }));
    EXPECT_THAT(html.at("csv").get<std::string>(),
        StartsWith("Project,Application,Description,People,Day,Start time,End time,Duration (minutes)\r\n"
                   "\"No Project\",\"Microsoft Word\",\"'a.doc'\",\"\",\"Tuesday, October 10, 2006\",\"9:00 AM\","
                   "\"9:05 AM\",5\r\n"));
    const auto text = Json({ "report", "--text", "--no-csv" });
    EXPECT_EQ(text.at("html"), false);
    EXPECT_EQ(text.at("csv"), nullptr);
    EXPECT_EQ(text.at("body"), Out({ "report", "--text" }));
}

TEST_F(ReportCommandTest, Report_By_GroupsAndNamesTheSubject)
{
    Import();
    const auto report = [this](const char* by) {
        return Json({ "report", "--text", "--no-details", "--from", "yesterday", "--by", by });
    };
    for (const auto& [by, label, line] : std::vector<std::tuple<const char*, std::string, std::string>> {
             { "project", "Project", "No Project - 0 hours 15 minutes (75%)\r\nPlan - 0 hours 05 minutes (25%)\r\n" },
             { "application", "Application", "Microsoft Word - 0 hours 20 minutes (100%)\r\n" },
             { "description", "Description", "Microsoft Word, \"y.doc\" - 0 hours 05 minutes (25%)\r\n" },
             { "date", "Date",
                 "Monday, October 9, 2006 - 0 hours 05 minutes (25%)\r\n"
                 "Tuesday, October 10, 2006 - 0 hours 15 minutes (75%)\r\n" } }) {
        const auto answer = report(by);
        EXPECT_EQ(answer.at("subject"),
            "Tempodial Report (By " + label + ") Monday, October 9, 2006 - Tuesday, October 10, 2006");
        EXPECT_THAT(answer.at("body").get<std::string>(), StartsWith(line));
    }
}

TEST_F(ReportCommandTest, Report_WorkWeek_LeavesOutTheEvening)
{
    Import();
    EXPECT_THAT(Out({ "report", "--text", "--work-week" }), HasSubstr("Total time at PC: 0 hours 10 minutes"));
    EXPECT_THAT(Out({ "report", "--text", "--work-week", "--to", "2006-10-08", "--from", "2006-10-07" }),
        HasSubstr("Total time at PC: 0 hours 00 minutes"));
}

TEST_F(ReportCommandTest, Report_Ranges_AreThoseOfList)
{
    Import();
    const auto total = [this](Arguments range) {
        range.insert(range.begin(), { "report", "--text", "--no-details" });
        return Minutes(Out(range), "Total time at PC: " + std::string(HoursAndMinutes));
    };
    EXPECT_EQ(total({}), 15);
    EXPECT_EQ(total({ "--from", "yesterday" }), 20);
    EXPECT_EQ(total({ "--to", "yesterday" }), 5);
    EXPECT_EQ(total({ "--from", "2006-10-11" }), 0);
    EXPECT_EQ(total({ "yesterday" }), 5);
    EXPECT_EQ(total({ "-2d" }), 20);
}

TEST_F(ReportCommandTest, Report_Demo_AgreesWithItselfAndWithTheList)
{
    Json({ "demo", "--days", "7", "--seed", "3" });
    Json({ "sync" });
    int listed = 0;
    for (const auto& item : Json({ "list", "--from", "2006-10-04" })) {
        listed += item.at("duration").get<int>();
    }
    ASSERT_GT(listed, 0);
    for (const auto* by : { "project", "application", "description", "date" }) {
        const auto text = Json({ "report", "--text", "--by", by, "--from", "2006-10-04" });
        const auto body = text.at("body").get<std::string>();
        const auto tail = body.find("\r\n***");
        ASSERT_NE(tail, std::string::npos);
        EXPECT_EQ(Minutes(body.substr(0, tail), HoursAndMinutes), listed) << by;
        EXPECT_EQ(Minutes(body, "Total time at PC: " + std::string(HoursAndMinutes)), listed) << by;
        EXPECT_EQ(Minutes(body, R"(\((\d+) mins\)    )"), listed) << by;
        EXPECT_EQ(Minutes(text.at("csv"), R"(",(\d+)\r\n)"), listed) << by;
        const auto html = Json({ "report", "--by", by, "--from", "2006-10-04" });
        EXPECT_EQ(html.at("csv"), text.at("csv")) << by;
        EXPECT_EQ(Minutes(html.at("body"), R"(\((\d+) mins\)&nbsp;)"), listed) << by;
    }
}

TEST_F(ReportCommandTest, Report_HostileCaptions_StayTexts)
{
    WriteTracker("20061010",
        { WordLine(32400, 32700, "<script>alert(1)</script>#DETAILS#<img src=x onerror=alert(1)>.doc")
                .Node("Project", "<u>\"P\"")
                .Text() });
    ASSERT_EQ(Run({ "sync" }).status, 0);
    for (const auto* by : { "project", "application", "description", "date" }) {
        const auto report = Json({ "report", "--by", by });
        EXPECT_THAT(report.at("body").get<std::string>(), Not(HasSubstr("<script"))) << by;
        EXPECT_THAT(report.at("body").get<std::string>(), Not(HasSubstr("<img"))) << by;
        EXPECT_THAT(report.at("body").get<std::string>(), Not(HasSubstr("<u>"))) << by;
        EXPECT_THAT(report.at("csv").get<std::string>(), HasSubstr("\r\n\"<u>'P'\",")) << by;
    }
}

TEST_F(ReportCommandTest, Report_Mail_IsReadBackWithoutDefects)
{
    Import();
    const auto path = mFolder.Path("a.eml");
    EXPECT_EQ(Out({ "report", "--out", path }), "Written: " + path + "\n");
    EXPECT_EQ(Out({ "report", "--out", path }), "Replaced: " + path + "\n");
    const auto lines = Split(ReadBack("host/system/read_mail.py", path), "\n");
    EXPECT_THAT(lines, Contains("subject: Tempodial Report (By Application) Tuesday, October 10, 2006"));
    EXPECT_THAT(lines, Contains("to: None"));
    EXPECT_THAT(lines, Contains("alternatives: text/plain, text/html")) << "readers prefer the last";
    EXPECT_THAT(lines, Contains("part: text/html utf-8 None None"));
    EXPECT_THAT(lines, Contains("part: text/plain utf-8 None None"));
    EXPECT_THAT(lines, Contains("part: text/csv utf-8 attachment Tempodial Tuesday, October 10, 2006.csv"));
    EXPECT_THAT(lines, Contains("bare line ends: 0"));
    EXPECT_THAT(lines, Contains("defects: []"));

    const auto before = mFolder.Read("a.eml");
    Json({ "report", "--out", path, "--text", "--no-csv" });
    EXPECT_NE(mFolder.Read("a.eml"), before);
    const auto plain = Split(ReadBack("host/system/read_mail.py", path), "\n");
    EXPECT_THAT(plain, Contains("part: text/plain utf-8 None None"));
    EXPECT_THAT(plain, Contains("headers: X-Unsent, Subject, MIME-Version, Content-Type, Content-Transfer-Encoding"));
}

TEST_F(ReportCommandTest, Report_EndOfTheName_SaysTheForm)
{
    Import();
    const auto written = [this](const std::string& name, const Arguments& more = {}) {
        Arguments arguments { "report", "--out", mFolder.Path(name) };
        arguments.insert(arguments.end(), more.begin(), more.end());
        EXPECT_EQ(Out(arguments), "Written: " + mFolder.Path(name) + "\n");
        return mFolder.Read(name);
    };
    const auto page = Out({ "report" });
    const auto begin = page.find("<title>") + 7;
    EXPECT_EQ(written("a.html"),
        std::string(page).replace(
            begin, page.find("</title>") - begin, "Tempodial Report (By Application) Tuesday, October 10, 2006"));
    EXPECT_EQ(written("b.txt"), Out({ "report", "--text" }));
    EXPECT_EQ(written("c.TXT", { "--text", "--by", "project" }), Out({ "report", "--text", "--by", "project" }));
    EXPECT_EQ(written("d.csv"), Json({ "report" }).at("csv"));
    EXPECT_THAT(written("e.Eml"), HasSubstr("\r\nMIME-Version: 1.0\r\n"));
    EXPECT_FALSE(HasCsvFile());
}

TEST_F(ReportCommandTest, Report_OtherEnds_AreUsageErrors)
{
    for (const auto* name : { "a", "a.pdf", "a.html.gz", "html", ".", "a.ics" }) {
        const auto result = Run({ "report", "--out", mFolder.Path("x") + name });
        EXPECT_EQ(result.status, 2);
        EXPECT_THAT(result.error, HasSubstr("give a name that ends in .html, .txt, .csv or .eml\n"));
    }
    EXPECT_THAT(
        Refusal({ "report", "--text", "--out", mFolder.Path("a.html") }, 2), HasSubstr("--text leaves nothing"));
    EXPECT_THAT(
        Refusal({ "report", "--no-csv", "--out", mFolder.Path("a.csv") }, 2), HasSubstr("--no-csv leaves nothing"));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(ReportCommandTest, Report_StandardOutputAndDevices_GetWhatIsPrinted)
{
    Import();
    for (const auto* name : { "-", "/dev/stdout" }) {
        EXPECT_EQ(Out({ "report", "--out", name }), Out({ "report" }));
        EXPECT_EQ(Out({ "report", "--text", "--out", name }), Out({ "report", "--text" }));
        EXPECT_EQ(Json({ "report", "--out", name }), Json({ "report" }));
    }
    EXPECT_EQ(Out({ "report", "--out", "/dev/null" }), "Written: /dev/null\n");
    EXPECT_THAT(Refusal({ "report", "--out", "/dev/full" }, 1), HasSubstr("/dev/full couldn't be written: Disk full"));
}

TEST_F(ReportCommandTest, Report_AnyTime_LeavesNothingBehind)
{
    Import();
    WriteTracker("20061010",
        { WordSlot(32400, 32700, "a.doc"), WordSlot(32700, 33000, "b.doc"), WordSlot(68400, 68700, "late.doc"),
            WordSlot(68700, 69000, "new.doc") });
    const auto list = Json({ "list", "--from", "yesterday" });
    EXPECT_THAT(Json({ "report" }).at("body").get<std::string>(), Not(HasSubstr("new.doc")));
    EXPECT_EQ(Json({ "list", "--from", "yesterday" }), list);
    EXPECT_FALSE(HasCsvFile());
}

TEST_F(ReportCommandTest, Report_TableCantBeWritten_GivesNoReport)
{
    Import();
    std::filesystem::create_directories(DataPath("Tempodial Tuesday, October 10, 2006.csv/x"));
    const auto path = mFolder.Path("a.eml");
    for (const auto& more : { Arguments {}, Arguments { "--out", path }, Arguments { "--json" } }) {
        Arguments arguments { "report" };
        arguments.insert(arguments.end(), more.begin(), more.end());
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.error, HasSubstr("2006.csv couldn't be written: "));
        EXPECT_THAT(result.error, HasSubstr("the report isn't whole"));
    }
    EXPECT_FALSE(mFolder.Has("a.eml"));
    EXPECT_EQ(Run({ "report", "--no-csv" }).status, 0);
}

TEST_F(ReportCommandTest, Report_NoTemplates_GivesNoReport)
{
    Run({ "registry", "set", "HKLM", "", "Install Directory", mFolder.Path("nowhere") });
    const auto result = Run({ "report" });
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, HasSubstr("the report isn't whole"));
    EXPECT_EQ(Run({ "report", "--text" }).status, 0);
}

TEST_F(ReportCommandTest, Report_FileCantBeWritten_IsTold)
{
    Import();
    EXPECT_THAT(Refusal({ "report", "--out", mFolder.Path("no/a.eml") }, 1),
        HasSubstr("a.eml couldn't be written: Path not found"));
    EXPECT_FALSE(HasCsvFile());
}

TEST_F(ReportCommandTest, Report_ControlC_WritesNothing)
{
    std::vector<std::string> slots;
    for (int i = 1; i <= 6000; ++i) {
        slots.push_back(WordSlot(i * 10, i * 10 + 10, std::to_string(i) + ".doc"));
    }
    WriteTracker("20061010", slots);
    Json({ "sync" });
    const auto path = mFolder.Path("a.eml");
    StartedProgram program(Whole({ "report", "--out", path }), { .output = mFolder.Path("output") });
    ASSERT_TRUE(program.WaitFor("["));
    EXPECT_THAT(program.Shown(), HasSubstr("Gathering data for: Tuesday, October 10"));
    program.Send(SIGINT);
    EXPECT_EQ(program.End(), 130);
    EXPECT_EQ(mFolder.Read("output"), "");
    EXPECT_FALSE(mFolder.Has("a.eml"));
    EXPECT_FALSE(HasCsvFile());
}

TEST_F(ReportCommandTest, Report_BadArguments_AreUsageErrors)
{
    EXPECT_THAT(Refusal({ "report", "--by", "people" }, 2), HasSubstr("project, application, description or date"));
    Refusal({ "report", "--from", "2006-10-10", "--to", "2006-10-09" }, 2);
    Refusal({ "report", "--out", "" }, 2);
    Refusal({ "report", "tomorrow" }, 2);
    Refusal({ "report", "today", "--to", "today" }, 2);
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

}
