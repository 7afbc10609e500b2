#include "cli/ReadBack.h"
#include "support/ProgramFixture.h"

#include <sys/stat.h>

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
    /// What a run that succeeds prints.
    std::string Out(const Arguments& arguments) const
    {
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.error, "");
        return result.out;
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

TEST_F(ExportCommandTest, Export_NewProfile_IsEmptyInEachFormat)
{
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
    EXPECT_EQ(Json({ "export", "--format", "json", "--out", path }),
        (nlohmann::json { { "format", "json" }, { "activities", 2 }, { "text", nullptr } }));
    EXPECT_EQ(nlohmann::json::parse(mFolder.Read("a.csv")), Json({ "list" }));
    EXPECT_FALSE(mFolder.Has(".a.csv.new"));
}

TEST_F(ExportCommandTest, Export_FileCantBeWritten_IsTold)
{
    EXPECT_THAT(Refusal({ "export", "--format", "csv", "--out", mFolder.Path("no/a.csv") }, 1),
        HasSubstr("no/a.csv couldn't be written: Path not found"));
    EXPECT_THAT(Refusal({ "export", "--format", "ics", "--out", mFolder.Path() }, 1), HasSubstr("couldn't be written"));
    const auto pipe = mFolder.Path("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), S_IRUSR | S_IWUSR), 0);
    EXPECT_THAT(Refusal({ "export", "--format", "csv", "--out", pipe }, 1), HasSubstr("couldn't be written"))
        << "it doesn't wait for a reader";
}

TEST_F(ExportCommandTest, Export_MailboxAsTheFile_IsRefusedAndStays)
{
    const auto before = Json({ "list" });
    EXPECT_THAT(
        Refusal({ "export", "--format", "csv", "--out", mProfile + "/mailbox.db" }, 1), HasSubstr("is a mailbox"));
    EXPECT_EQ(Json({ "list" }), before);
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
