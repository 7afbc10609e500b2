#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <array>
#include <cstdio>
#include <map>

namespace tempodial {

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

/// What a shell command writes.
std::string OutputOf(const std::string& command)
{
    std::string output;
    std::array<char, 65536> piece {};
    auto* const pipe = ::popen(command.c_str(), "r");
    while (const auto size = std::fread(piece.data(), 1, piece.size(), pipe)) {
        output.append(piece.data(), size);
    }
    EXPECT_EQ(::pclose(pipe), 0) << command;
    return output;
}

class ImportTest : public ProgramFixture
{
protected:
    /// An invented export of days that end yesterday, or so many days earlier; the seconds of presence of each day go
    /// to the file `present`.
    std::string Export(int days, int earlier = 0) const
    {
        const auto text = OutputOf("/usr/bin/python3 " TEMPODIAL_SOURCE_DIR "/tests/sources/data/make-export "
            + std::to_string(days) + " " + std::to_string(earlier) + " 2>" + mFolder.Path("present"));
        return mFolder.Write("export" + std::to_string(days) + ".json", text);
    }
    /// A table of so many entries a day, from 1 August 2006 on.
    std::string Table(int days, int entries = 1) const
    {
        std::string text = "start,end,program,title,project\n";
        for (int day = 1; day <= days; ++day) {
            const auto date = "2006-08-" + std::string(day < 10 ? "0" : "") + std::to_string(day);
            for (int entry = 0; entry < entries; ++entry) {
                const auto hour = date + "T1" + std::to_string(entry);
                text += hour + ":00," + hour + ":17,atlas,map,Riverside\n";
            }
        }
        return mFolder.Write("table" + std::to_string(days) + "-" + std::to_string(entries) + ".csv", text);
    }
    /// Imports an export like that, in which one bucket is of no use.
    json Import(Arguments options) const
    {
        options.insert(options.begin(), { "--json", "import", "activitywatch" });
        const auto result = Run(options);
        EXPECT_EQ(result.status, 0) << result.error;
        EXPECT_THAT(result.error, MatchesRegex("tempodial: left out the bucket \"aw-watcher-vim_box\", [^\n]*\n"));
        return json::parse(result.out);
    }
    json Log() const { return Json({ "list", "--from", "2006-01-01", "--to", "2006-12-31" }); }
    /// Start, end and subject of all activities.
    std::vector<std::string> Activities() const
    {
        std::vector<std::string> told;
        for (const auto& item : Log()) {
            told.push_back(item.at("start").get<std::string>() + " " + item.at("end").get<std::string>() + " "
                + item.at("subject").get<std::string>());
        }
        return told;
    }
};

}

TEST_F(ImportTest, Import_ExportWithEveryFault_KeepsThePresenceOfEachDay)
{
    const auto file = Export(60);
    const auto present = json::parse(mFolder.Read("present"));
    const auto answer = Import({ file });
    EXPECT_EQ(answer.at("skipped").at("bucket"), 1);
    EXPECT_GT(answer.at("skipped").at("duplicate"), 0);
    std::map<std::string, int> minutes;
    for (const auto& item : Log()) {
        minutes[item.at("start").get<std::string>().substr(0, 10)] += item.at("duration").get<int>();
        const auto subject = item.at("subject").get<std::string>();
        if (item.at("duration") > 5) {
            EXPECT_THAT(subject, Not(HasSubstr("including: ")));
        }
        EXPECT_THAT(subject, Not(HasSubstr("Train")));
        EXPECT_THAT(subject, Not(HasSubstr("secret")));
        EXPECT_THAT(subject, Not(HasSubstr("Ann Berger")));
    }
    double sum = 0;
    double log = 0;
    for (const auto& [day, seconds] : present.items()) {
        const auto expected = seconds.get<double>() / 60;
        sum += expected;
        log += minutes[day];
        // Each of up to six stretches has two edges.
        EXPECT_NEAR(minutes[day], expected, std::max(expected * 0.02, 12 * 2.5)) << day;
    }
    EXPECT_NEAR(log, sum, sum * 0.02);
}

TEST_F(ImportTest, Import_InPieces_EndsAsAllAtOnce)
{
    const auto file = Export(35);
    Import({ file });
    const auto atOnce = Activities();
    std::filesystem::remove_all(mProfile);
    Import({ file, "--from", "2006-09-15", "--to", "2006-10-01" });
    Import({ file, "--from", "2006-09-20", "--to", "2006-10-02" });
    Import({ file });
    Import({ file, "--to", "2006-09-20" });
    EXPECT_EQ(Activities(), atOnce);
}

TEST_F(ImportTest, Import_LongerExportAndTheFirstAgain_EndsAsTheLongerOneAlone)
{
    const auto longer = Export(35);
    const auto first = Export(25, 10);
    Import({ longer });
    const auto alone = Activities();
    std::filesystem::remove_all(mProfile);
    for (const auto& file : { first, first, longer, first }) {
        Import({ file });
    }
    EXPECT_EQ(Activities(), alone);

    Arguments deleting { "delete" };
    const auto items = Log();
    for (std::size_t i = 0; i < items.size(); i += 2) {
        deleting.push_back("@" + std::to_string(items[i].at("id").get<int>()));
    }
    Json(deleting);
    const auto kept = Activities();
    EXPECT_EQ(kept.size(), alone.size() / 2);
    EXPECT_EQ(Import({ longer }).at("created"), 0);
    EXPECT_EQ(Import({ first }).at("created"), 0);
    EXPECT_EQ(Activities(), kept);
}

TEST_F(ImportTest, Import_KilledAnywhere_EndsAsAnUndisturbedOne)
{
    const Arguments first { "import", "csv", Table(20), "--quiet" };
    const Arguments import { "import", "csv", Table(28), "--quiet" };
    const auto counted = RunTempodialKilledAt(Whole(import), 0);
    if (!counted) {
        GTEST_SKIP() << "this system forbids observation";
    }
    const auto undisturbed = Activities();
    ASSERT_EQ(undisturbed.size(), 28U);
    const auto points = StopPoints(12, 200);
    for (int point = 1; point <= points; ++point) {
        const auto call = counted->systemCalls * point / (points + 1);
        SCOPED_TRACE("killed at system call " + std::to_string(call));
        std::filesystem::remove_all(mProfile);
        RunTempodialKilledAt(Whole(first), call);
        RunTempodialKilledAt(Whole(import), call);
        EXPECT_EQ(Run(import).status, 0);
        EXPECT_EQ(Activities(), undisturbed);
        EXPECT_EQ(Json(import).at("created"), 0);
        EXPECT_EQ(Json(first).at("created"), 0);
    }
}

TEST_F(ImportTest, Import_MoreOfTheSameDaysKilledAnywhere_LosesNothingOfThem)
{
    const Arguments first { "import", "csv", Table(8), "--quiet" };
    const Arguments more { "import", "csv", Table(8, 2), "--quiet" };
    const Arguments again { "import", "csv", Table(8, 2), "--again", "--yes", "--quiet" };
    EXPECT_EQ(Run(first).status, 0);
    const auto counted = RunTempodialKilledAt(Whole(more), 0);
    if (!counted) {
        GTEST_SKIP() << "this system forbids observation";
    }
    const auto undisturbed = Activities();
    ASSERT_EQ(undisturbed.size(), 16U);
    const auto points = StopPoints(12, 200);
    for (int point = 1; point <= points; ++point) {
        const auto call = counted->systemCalls * point / (points + 1);
        SCOPED_TRACE("killed at system call " + std::to_string(call));
        std::filesystem::remove_all(mProfile);
        Run(first);
        RunTempodialKilledAt(Whole(more), call);
        EXPECT_EQ(Run(more).status, 0);
        EXPECT_EQ(Activities(), undisturbed);
        EXPECT_EQ(Json(more).at("created"), 0);
        // What was written before in the same words is no sign that it was written again.
        Run({ "undo" });
        RunTempodialKilledAt(Whole(again), call);
        EXPECT_EQ(Run(again).status, 0);
        EXPECT_EQ(Activities(), undisturbed);
    }
}

}
