#include "base/Date.h"
#include "cli/StartedProgram.h"
#include "support/ProgramFixture.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

namespace tempodial {

namespace {

using testing::HasSubstr;

class ImportTerminalTest : public ProgramFixture
{
protected:
    /// A table of one window on each of so many days.
    std::string Table(int days) const
    {
        std::string text = "start,end,program,title\n";
        for (auto day = Date::FromYearMonthDay(2006, 10, 9).AddDays(1 - days); days > 0; --days, day = day.AddDays(1)) {
            const auto key = day.DayKey();
            const auto date = key.substr(0, 4) + "-" + key.substr(4, 2) + "-" + key.substr(6);
            text += date + "T09:00," + date + "T09:30,atlas,map\n";
        }
        return mFolder.Write("export.csv", text);
    }
    static int Written(const nlohmann::json& answer)
    {
        int entries = 0;
        for (const auto& day : answer.at("days")) {
            entries += day.at("entries").get<int>();
        }
        return entries;
    }
    std::size_t Items() const { return Json({ "list", "--from", "1996-01-01", "--to", "2006-12-31" }).size(); }
};

}

TEST_F(ImportTerminalTest, Again_AnsweredWithYes_BringsBackWhatWasDeleted)
{
    const auto file = Table(1);
    Json({ "import", "csv", file });
    ASSERT_EQ(Items(), 1U);
    Json({ "delete", "@1" });
    EXPECT_EQ(Json({ "import", "csv", file }).at("created"), 0);

    StartedProgram refused(Whole({ "import", "csv", file, "--again" }), { .isOnTerminal = true });
    ASSERT_TRUE(refused.WaitFor("2006-10-09 to 2006-10-09 again"));
    refused.Type("n\n");
    EXPECT_EQ(refused.End(), 1);
    EXPECT_THAT(refused.Shown(), HasSubstr("nothing was imported"));
    EXPECT_EQ(Items(), 0U);

    StartedProgram taken(Whole({ "import", "csv", file, "--again" }), { .isOnTerminal = true });
    ASSERT_TRUE(taken.WaitFor("[y/N]"));
    taken.Type("y\n");
    EXPECT_EQ(taken.End(), 0);
    EXPECT_EQ(Items(), 1U);
}

TEST_F(ImportTerminalTest, Import_ControlC_StopsAndTheNextOneGoesOn)
{
    constexpr int Days = 500;
    const auto file = Table(Days);
    const auto output = mFolder.Path("output");
    StartedProgram program(Whole({ "import", "csv", file, "--json" }), { .output = output });
    // The ledger is there from the first days on.
    while (!std::filesystem::exists(DataPath("imported.toml"))) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    program.Send(SIGINT);
    EXPECT_EQ(program.End(), 130);
    const auto first = nlohmann::json::parse(mFolder.Read("output"));
    EXPECT_LT(first.at("created"), Days);
    EXPECT_EQ(first.at("days").size(), static_cast<std::size_t>(Days));
    const auto written = Written(first);
    EXPECT_LT(written, Days);
    EXPECT_GE(written, first.at("created"));
    EXPECT_EQ(first.at("minutes").at("written"), 30 * written);

    const auto second = Json({ "import", "csv", file });
    EXPECT_EQ(first.at("created").get<int>() + second.at("created").get<int>(), Days);
    EXPECT_EQ(written + Written(second), Days) << "each entry is told of once";
    EXPECT_EQ(Items(), static_cast<std::size_t>(Days));
}

}
