#include "support/ClockifyReport.h"
#include "support/ProgramFixture.h"

#include <filesystem>
#include <map>

namespace tempodial {

namespace {

using nlohmann::json;
using testing::HasSubstr;

class ImportedTimesTest : public ProgramFixture
{
protected:
    json Import(const std::string& source, const std::string& text, const Arguments& more = {}) const
    {
        Arguments arguments { "import", source, mFolder.Write("export", text) };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return Json(arguments);
    }
    json All() const { return Json({ "list", "--from", "2006-09-01", "--to", "2006-10-09" }); }
    /// The minutes of each project in the log.
    std::map<std::string, int> Minutes() const
    {
        std::map<std::string, int> minutes;
        const auto summary = Json(
            { "summary", "--from", "2006-09-01", "--to", "2006-10-09", "--rows", "project", "--columns", "none" });
        for (const auto& row : summary.at("rows")) {
            minutes[row.at("name")] = row.at("total");
        }
        return minutes;
    }
    /// Times of the log as "start end subject".
    std::vector<std::string> Told() const
    {
        std::vector<std::string> told;
        for (const auto& item : All()) {
            told.push_back(item.at("start").get<std::string>().substr(11, 5) + " "
                + item.at("end").get<std::string>().substr(11, 5) + " " + item.at("subject").get<std::string>());
        }
        return told;
    }
};

}

TEST_F(ImportedTimesTest, Clockify_EachFormAndOrder_KeepsTheSumOfEachProject)
{
    const std::map<std::string, int> expected { { "Riverside", 121 }, { "Atlas", 50 } };
    bool hasTwelveHours = false;
    for (const auto& form : ClockifyForms()) {
        for (const bool isMonthFirst : { false, true }) {
            const auto text = ClockifyReport(form, isMonthFirst, hasTwelveHours).Text();
            hasTwelveHours = !hasTwelveHours;
            const auto answer = Import("clockify", text);
            EXPECT_EQ(answer.at("minutes"), json::parse(R"({"present":171,"written":171})")) << text;
            EXPECT_EQ(Minutes(), expected) << text;
            std::filesystem::remove_all(mProfile);
        }
    }
}

TEST_F(ImportedTimesTest, Clockify_NoDateTellsTheOrder_IsRefusedUntilItIsSaid)
{
    const std::string text = "Project,Start Date,Start Time,End Date,End Time\n"
                             "Riverside,09/10/2006,09:00,09/10/2006,10:30\n";
    EXPECT_THAT(Refusal({ "import", "clockify", mFolder.Write("export", text) }, 2), HasSubstr("--dates"));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
    EXPECT_EQ(Import("clockify", text, { "--dates", "mdy" }).at("from"), "2006-09-10");
    EXPECT_EQ(Import("clockify", text, { "--dates", "dmy" }).at("from"), "2006-10-09");
    EXPECT_EQ(Minutes(), (std::map<std::string, int> { { "Riverside", 180 } }));
}

TEST_F(ImportedTimesTest, Toggl_Entries_KeepTheSumOfEachProject)
{
    const std::string head
        = "\xef\xbb\xbfUser,Email,Client,Project,Task,Description,Billable,Start date,Start time,End date,End time,"
          "Duration,Tags,Amount ()\n";
    const auto row = [](const std::string& project, const std::string& times) {
        return "Ann,ann@example.com,,\"" + project + "\",,call,No," + times + ",,,\n";
    };
    Import("toggl",
        head + row("Riverside", "2006-10-02,09:00:00,2006-10-02,09:07:00")
            + row("Riverside", "2006-10-03,09:00:30,2006-10-03,09:02:10")
            + row("Atlas, north", "2006-10-04,23:50:00,2006-10-05,00:15:00")
            + row("Atlas, north", "2006-10-06,12:00:10,2006-10-06,12:00:50")
            + row("", "2006-10-07,08:00:00,2006-10-07,08:01:00"));
    EXPECT_EQ(All().size(), 5U);
    EXPECT_EQ(
        Minutes(), (std::map<std::string, int> { { "Riverside", 9 }, { "Atlas, north", 25 }, { "No Project", 1 } }));
}

TEST_F(ImportedTimesTest, RescueTime_EachSlot_HasWhatTookMostOfItOrGoesOn)
{
    std::string text = "Date,Time Spent (seconds),Number of People,Activity,Document,Category,Productivity\n";
    const auto row = [&text](int minute, int seconds, const std::string& words) {
        const auto time = std::string(minute < 10 ? "0" : "") + std::to_string(minute);
        text += "2006-10-02T09:" + time + ":00," + std::to_string(seconds) + ",1," + words + ",1\n";
    };
    row(0, 200, "Quarry,stone,Work");
    row(0, 100, "Ledger,sum,Work");
    row(5, 170, "Ledger,sum,Work"); // Quarry goes on: it has a third of that
    row(5, 130, "Quarry,stone,Work");
    row(10, 270, "Ledger,sum,Work");
    row(10, 30, "Quarry,stone,Work");
    row(15, 300, "Ledger,sum,Work");
    row(20, 300, "youtube.com,No Details,Video");
    row(25, 300, "youtube.com,,Video");
    row(30, 300, "Sundial,,");
    row(35, 300, "Sundial,Sundial,");
    Import("rescuetime", text);
    EXPECT_EQ(Told(),
        (std::vector<std::string> { "09:00 09:10 Quarry, \"stone\"", "09:10 09:20 Ledger, \"sum\"",
            "09:20 09:30 youtube.com, \"Video\"", "09:30 09:40 Sundial, \"Sundial\"" }));
}

}
