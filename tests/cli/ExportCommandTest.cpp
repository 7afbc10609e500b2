#include "cli/ReadBack.h"
#include "support/ProgramFixture.h"
#include "support/TestDatabase.h"

#include <fstream>
#include <sstream>
#include <sys/stat.h>
#include <thread>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class ExportCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"), WordLine(32700, 33000, "b, c.doc").Node("Project", "Plan").Text() });
        WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
};

constexpr auto Csv = "start,end,duration,project,application,description,people,subject\r\n"
                     "2006-10-10T09:00:00,2006-10-10T09:05:00,5,No Project,Microsoft Word,\"\"\"a.doc\"\"\",,"
                     "\"Microsoft Word, \"\"a.doc\"\"\"\r\n"
                     "2006-10-10T09:05:00,2006-10-10T09:10:00,5,Plan,Microsoft Word,\"\"\"b, c.doc\"\"\",,"
                     "\"[Plan] Microsoft Word, \"\"b, c.doc\"\"\"\r\n";

}

TEST_F(ExportCommandTest, Export_Json_IsThatOfList)
{
    Import();
    const auto list = Json({ "list", "--from", "yesterday" });
    EXPECT_EQ(list.size(), 3U);
    EXPECT_EQ(nlohmann::json::parse(Out({ "export", "--format", "json", "--from", "yesterday" })), list);
    EXPECT_EQ(Json({ "export", "--format", "json", "--from", "yesterday" }), list);
    EXPECT_EQ(Json({ "export", "2006-10", "--format", "json" }), list);
}

TEST_F(ExportCommandTest, Export_Csv_IsPrintedByteForByte)
{
    Import();
    EXPECT_EQ(Out({ "export", "--format", "csv" }), Csv);
    EXPECT_EQ(Json({ "export", "--format", "csv" }),
        (nlohmann::json { { "format", "csv" }, { "activities", 2 }, { "text", Csv } }));
}

TEST_F(ExportCommandTest, Export_Ics_IsReadByAnotherProgram)
{
    Import();
    const auto path = mFolder.Path("a.ics");
    EXPECT_EQ(Out({ "export", "--format", "ics", "--from", "yesterday", "--out", path }), "Written: " + path + "\n");
    const auto read = nlohmann::json::parse(ReadBack("cli/read_calendar.py", path));
    EXPECT_EQ(read.at("errors"), nlohmann::json::array());
    EXPECT_EQ(read.at("findings"), nlohmann::json::array());
    const auto list = Json({ "list", "--from", "yesterday" });
    ASSERT_EQ(read.at("events").size(), list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto& event = read.at("events").at(i);
        EXPECT_EQ(event.at("UID"), list.at(i).at("entryId").get<std::string>() + "@tempodial");
        EXPECT_EQ(event.at("SUMMARY"), list.at(i).at("subject"));
        EXPECT_EQ(event.at("DTSTART"), list.at(i).at("start"));
        EXPECT_EQ(event.at("DTEND"), list.at(i).at("end"));
    }
    EXPECT_EQ(mFolder.Read("a.ics"), Out({ "export", "--format", "ics", "--from", "yesterday" }));
}

TEST_F(ExportCommandTest, Export_Ics_TellsInUniversalTimeWhenEachWasSaved)
{
    auto environment = UsualEnvironment();
    environment.back() = "TZ=TST-5:30";
    const auto run = [&](const char* now, const Arguments& arguments) {
        mNow = now;
        const auto result = RunTempodial(Whole(arguments), environment);
        EXPECT_EQ(result.status, 0) << result.error;
        return result.out;
    };
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), WordSlot(32700, 33000, "b.doc") });
    run("2006-10-10T12:00:00", { "sync" });
    const auto before = run("2006-10-10T13:00:00", { "export", "--format", "ics", "2006-10-10" });
    EXPECT_EQ(run("2006-10-10T14:00:00", { "export", "--format", "ics", "2006-10-10" }), before);
    run("2006-10-11T03:00:00",
        { "assign", "Wish", "--from", "2006-10-10T09:05", "--to", "2006-10-10T09:10", "--overwrite" });
    const auto after = run("2006-10-11T04:00:00", { "export", "--format", "ics", "2006-10-10" });
    EXPECT_THAT(before, HasSubstr("\r\nDTSTAMP:20061010T0630"));
    EXPECT_THAT(before, testing::Not(HasSubstr("T2130")));
    EXPECT_THAT(after, HasSubstr("\r\nDTSTAMP:20061010T0630"));
    EXPECT_THAT(after, HasSubstr("\r\nDTSTAMP:20061010T2130"));
    EXPECT_THAT(after, HasSubstr("\r\nLAST-MODIFIED:20061010T2130"));
}

TEST_F(ExportCommandTest, Export_ItemFromBeforeMomentsWereKept_GoesByItsEnd)
{
    Import();
    {
        const auto mailbox = OpenTestMailbox(mProfile + "/mailbox.db");
        TestDatabase(mailbox).Execute("UPDATE item SET saved = NULL");
    }
    EXPECT_THAT(Out({ "export", "--format", "ics" }), HasSubstr("\r\nDTSTAMP:20061010T090500Z\r\n"));
}

TEST_F(ExportCommandTest, Export_NewProfile_IsEmptyInEachFormat)
{
    Json({ "projects" });
    EXPECT_EQ(Out({ "export", "--format", "json" }), "[]\n");
    EXPECT_THAT(Out({ "export", "--format", "csv" }), testing::EndsWith(",subject\r\n"));
    EXPECT_THAT(Out({ "export", "--format", "ics" }), StartsWith("BEGIN:VCALENDAR\r\n"));
}

TEST_F(ExportCommandTest, Export_File_ReplacesTheOldOneAsAWhole)
{
    Import();
    const auto path = mFolder.Write("a.csv", std::string(100'000, 'x'));
    EXPECT_EQ(Out({ "export", "--format", "csv", "--out", path, "--quiet" }), "");
    EXPECT_EQ(mFolder.Read("a.csv"), Csv);
    EXPECT_FALSE(mFolder.Has(".a.csv.new"));
    EXPECT_EQ(Out({ "export", "--format", "csv", "--out", path }), "Replaced: " + path + "\n");
}

TEST_F(ExportCommandTest, Export_EndOfTheName_SaysTheFormat)
{
    Import();
    EXPECT_EQ(Json({ "export", "--out", mFolder.Path("a.JSON") }),
        (nlohmann::json { { "format", "json" }, { "activities", 2 }, { "text", nullptr } }));
    EXPECT_EQ(nlohmann::json::parse(mFolder.Read("a.JSON")), Json({ "list" }));
    Out({ "export", "--out", mFolder.Path("a.csv") });
    EXPECT_EQ(mFolder.Read("a.csv"), Csv);
    Out({ "export", "--out", mFolder.Path("a.ics") });
    EXPECT_THAT(mFolder.Read("a.ics"), StartsWith("BEGIN:VCALENDAR\r\n"));
    Out({ "export", "--format", "csv", "--out", mFolder.Path("table") });
    EXPECT_EQ(mFolder.Read("table"), Csv);
    EXPECT_THAT(Refusal({ "export", "--format", "json", "--out", mFolder.Path("b.csv") }, 2),
        HasSubstr("--format json isn't what"));
    for (const auto& arguments :
        { Arguments { "export", "--out", mFolder.Path("b.txt") }, Arguments { "export", "--out", mFolder.Path("b") },
            Arguments { "export", "--format", "csv", "--out", mFolder.Path("b.txt") } }) {
        EXPECT_THAT(Refusal(arguments, 2), HasSubstr("give a name that ends in .ics, .csv or .json"));
    }
    EXPECT_THAT(Refusal({ "export", "--out", "-" }, 2), HasSubstr("--format is required"));
    EXPECT_FALSE(mFolder.Has("b.csv") || mFolder.Has("b.txt") || mFolder.Has("b"));
}

TEST_F(ExportCommandTest, Export_StandardOutput_GetsTheDocumentAlone)
{
    Import();
    for (const auto* name : { "-", "/dev/stdout", "/proc/self/fd/1" }) {
        EXPECT_EQ(Out({ "export", "--format", "csv", "--out", name }), Csv);
    }
}

TEST_F(ExportCommandTest, Export_Link_IsFollowedAndStays)
{
    Import();
    const auto path = mFolder.Write("a.csv", "old");
    std::filesystem::permissions(path, std::filesystem::perms(0664));
    std::filesystem::create_symlink("a.csv", mFolder.Path("link.csv"));
    EXPECT_EQ(Out({ "export", "--out", mFolder.Path("link.csv") }), "Replaced: " + mFolder.Path("link.csv") + "\n");
    EXPECT_EQ(mFolder.Read("a.csv"), Csv);
    EXPECT_TRUE(std::filesystem::is_symlink(mFolder.Path("link.csv")));
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0664));
}

TEST_F(ExportCommandTest, Export_Pipe_IsWrittenTo)
{
    Import();
    const auto pipe = mFolder.Path("pipe.csv");
    ASSERT_EQ(::mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    std::string got;
    std::thread reader([&] {
        std::ostringstream text;
        text << std::ifstream(pipe, std::ios::binary).rdbuf();
        got = text.str();
    });
    EXPECT_EQ(Out({ "export", "--out", pipe }), "Written: " + pipe + "\n");
    reader.join();
    EXPECT_EQ(got, Csv);
}

TEST_F(ExportCommandTest, Export_Project_LeavesOutTheOthers)
{
    Import();
    EXPECT_EQ(Json({ "export", "--format", "json", "--project", "plan" }), Json({ "list", "--project", "Plan" }));
    EXPECT_EQ(Json({ "export", "--format", "json", "--project", "plan" }).size(), 1U);
    EXPECT_THAT(Refusal({ "export", "--format", "csv", "--project", "Plam", "--out", mFolder.Path("a.csv") }, 1),
        HasSubstr("there is no project \"Plam\": did you mean \"Plan\"?"));
    EXPECT_FALSE(mFolder.Has("a.csv"));
}

TEST_F(ExportCommandTest, Export_FileCantBeWritten_IsTold)
{
    Json({ "projects" });
    EXPECT_THAT(Refusal({ "export", "--format", "csv", "--out", mFolder.Path("no/a.csv") }, 1),
        HasSubstr("no/a.csv couldn't be written: Path not found"));
    EXPECT_THAT(Refusal({ "export", "--format", "ics", "--out", mFolder.Path() }, 1), HasSubstr("it is a folder"));
}

TEST_F(ExportCommandTest, Export_MailboxAsTheFile_IsRefusedAndStays)
{
    Import();
    const auto before = Json({ "list" });
    EXPECT_THAT(
        Refusal({ "export", "--format", "csv", "--out", mProfile + "/mailbox.db" }, 1), HasSubstr("is a mailbox"));
    EXPECT_EQ(Json({ "list" }), before);
}

TEST_F(ExportCommandTest, Export_FileOfAProfile_IsRefusedAndStays)
{
    Import();
    std::filesystem::create_symlink(mProfile + "/registry.toml", mFolder.Path("link.csv"));
    std::filesystem::create_directory_symlink(mProfile + "/Tempodial", mFolder.Path("way"));
    const auto registry = mFolder.Read("profile/registry.toml");
    const auto history = mFolder.Read("profile/Tempodial/TempodialHistory.out");
    for (const auto& path : { mProfile + "/registry.toml", mProfile + "/mailbox.db-wal", mProfile + "/mailbox.db-shm",
             mProfile + "/.registry.toml.new", DataPath("TempodialHistory.out"), DataPath("WorkLogTrace1.out"),
             DataPath("tracker_granules20061010.out"), DataPath("new.csv"), DataPath("kept/new.csv"),
             mFolder.Path("link.csv"), mFolder.Path("way/new.csv") }) {
        for (const auto& arguments :
            { Arguments { "export", "--format", "csv", "--out", path }, Arguments { "report", "--out", path },
                Arguments { "--profile", mFolder.Path("other"), "export", "--format", "csv", "--out", path } }) {
            const auto result = RunTempodial(arguments.front() == "--profile" ? arguments : Whole(arguments));
            EXPECT_EQ(result.status, 1) << path;
            EXPECT_THAT(result.error, HasSubstr("is a file of a profile"));
        }
    }
    EXPECT_EQ(mFolder.Read("profile/registry.toml"), registry);
    EXPECT_EQ(mFolder.Read("profile/Tempodial/TempodialHistory.out"), history);
    EXPECT_FALSE(mFolder.Has("profile/Tempodial/new.csv"));
    Out({ "export", "--out", mProfile + "/mine.csv" });
    EXPECT_EQ(mFolder.Read("profile/mine.csv"), Csv);
}

TEST_F(ExportCommandTest, Export_HostileCaptions_StayTexts)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "x\nEND:VCALENDAR\r\n=1\t\",\"") });
    Run({ "sync" });
    const auto path = mFolder.Path("a.ics");
    Run({ "export", "--format", "ics", "--out", path });
    const auto read = nlohmann::json::parse(ReadBack("cli/read_calendar.py", path));
    EXPECT_EQ(read.at("findings"), nlohmann::json::array());
    ASSERT_EQ(read.at("events").size(), 1U);
    EXPECT_THAT(read.at("events").at(0).at("SUMMARY").get<std::string>(), HasSubstr("x\nEND:VCALENDAR"));
}

TEST_F(ExportCommandTest, Export_AnyTime_LeavesNoTrace)
{
    Run({ "export", "--format", "csv" });
    EXPECT_FALSE(std::filesystem::exists(DataPath("WorkLogTrace1.out")));
}

TEST_F(ExportCommandTest, Export_BadArguments_AreUsageErrors)
{
    Refusal({ "export" }, 2);
    EXPECT_THAT(Refusal({ "export", "--format", "xls" }, 2), HasSubstr("give ics, csv or json"));
    Refusal({ "export", "--format", "csv", "--out", "" }, 2);
    Refusal({ "export", "--format", "csv", "--from", "2006-10-10", "--to", "2006-10-09" }, 2);
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

}
