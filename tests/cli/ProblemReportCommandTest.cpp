#include "base/Text.h"
#include "cli/ReadBack.h"
#include "support/ProgramFixture.h"

#include <unistd.h>

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ProblemReportCommandTest : public ProgramFixture
{
protected:
    /// The arguments of a report, and what comes behind them.
    Arguments Report(const Arguments& more = {}) const
    {
        Arguments whole { "problem-report", "--expected", "a list", "--actual", "nothing\nat all", "--out", mMail };
        whole.insert(whole.end(), more.begin(), more.end());
        return whole;
    }

    std::string mMail = mFolder.Path("problem.eml");
};

}

TEST_F(ProblemReportCommandTest, ProblemReport_Today_TakesTraceAndTrackerFile)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
    const auto report = Json(Report());
    EXPECT_EQ(report.at("subject"), "Tempodial Problem Report: Tuesday, October 10, 2006 5:00:00 PM");
    EXPECT_THAT(report.at("body").get<std::string>(),
        StartsWith("Day: Tuesday, October 10, 2006\r\nExpected: a list\r\nActual: nothing\r\nat all\r\n"
                   "Version: 1.2.0\r\n\r\nTo help diagnose your problem, we have attached"));
    EXPECT_THAT(
        report.at("attachments").get<Arguments>(), ElementsAre("WorkLogTrace1.out", "tracker_granules20061010.out"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_Mail_IsReadBackWithoutDefects)
{
    WriteTracker("20061009", { WordSlot(32400, 32700, "s\xfc\xdf.doc") });
    EXPECT_EQ(Run(Report({ "--day", "yesterday" })).out, "Written: " + mMail + "\n");
    EXPECT_EQ(Run(Report({ "--day", "yesterday" })).out, "Replaced: " + mMail + "\n");
    const auto lines = Split(ReadBack("host/system/read_mail.py", mMail), "\n");
    EXPECT_THAT(lines, Contains("to: support@tempodial.example"));
    EXPECT_THAT(lines, Contains("unsent: 1"));
    EXPECT_THAT(lines, Contains("part: text/plain utf-8 None None"));
    EXPECT_THAT(lines, Contains("part: application/octet-stream None attachment tracker_granules20061009.out"));
    EXPECT_THAT(lines, Contains("bare line ends: 0"));
    EXPECT_THAT(lines, Contains("defects: []"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_DayWithoutTrackerFile_HasTheTraceAlone)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    const auto report = Json(Report({ "--day", "2006-10-08" }));
    EXPECT_THAT(report.at("attachments").get<Arguments>(), ElementsAre("WorkLogTrace1.out"));
    EXPECT_THAT(report.at("body").get<std::string>(), StartsWith("Day: Sunday, October 8, 2006\r\n"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_SecurityPrompt_IsToldInTheBody)
{
    Run({ "registry", "set", "HKLM", "", "Outlook Security Popups", "true" });
    EXPECT_THAT(Json(Report()).at("body").get<std::string>(),
        StartsWith("Please send this problem report to: support@tempodial.example\r\n\r\nDay: "));
}

TEST_F(ProblemReportCommandTest, ProblemReport_EmptyAnswers_AreTaken)
{
    const auto report = Json({ "problem-report", "--expected", "", "--actual", "", "--out", mMail });
    EXPECT_THAT(report.at("body").get<std::string>(), HasSubstr("\r\nExpected: \r\nActual: \r\n"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_FileThatCantBeRead_IsNamedAndLeftOut)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "nothing is unreadable for root";
    }
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    std::filesystem::permissions(DataPath("tracker_granules20061010.out"), std::filesystem::perms::none);
    const auto result = Run(Report());
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr("tracker_granules20061010.out couldn't be attached"));
    EXPECT_TRUE(mFolder.Has("problem.eml"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_FileCantBeWritten_IsTold)
{
    mMail = mFolder.Path("no/problem.eml");
    EXPECT_THAT(Refusal(Report(), 1), HasSubstr("problem.eml couldn't be written: Path not found"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_StandardOutput_GetsTheMail)
{
    mMail = "-";
    EXPECT_THAT(Run(Report()).out, HasSubstr("\r\nSubject: Tempodial Problem Report"));
    EXPECT_EQ(Json(Report()).at("attachments").size(), 1U);
}

TEST_F(ProblemReportCommandTest, ProblemReport_List_ShowsWhatWouldGoAndWritesNothing)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc") });
    const auto listed = Json({ "problem-report", "--list" });
    EXPECT_THAT(
        listed.at("attachments").get<Arguments>(), ElementsAre("WorkLogTrace1.out", "tracker_granules20061010.out"));
    EXPECT_EQ(listed.at("files").at(1).at("name"), "tracker_granules20061010.out");
    EXPECT_EQ(
        listed.at("files").at(1).at("bytes"), std::filesystem::file_size(DataPath("tracker_granules20061010.out")));
    const auto text = Run({ "problem-report", "--list" }).out;
    EXPECT_THAT(text, StartsWith("An e-mail to support@tempodial.example, with what you expected"));
    EXPECT_THAT(text, HasSubstr("\n  tracker_granules20061010.out, "));
    EXPECT_FALSE(mFolder.Has("problem.eml"));
}

TEST_F(ProblemReportCommandTest, ProblemReport_Redacted_HoldsNoWordsOfTheUser)
{
    WriteTracker("20061010", { WordSlot(32400, 32700, "secret.doc") });
    Run({ "sync" });
    Run(Report());
    EXPECT_THAT(ReadBack("cli/read_attachments.py", mMail), HasSubstr("secret"));
    Run(Report({ "--redact" }));
    const auto redacted = ReadBack("cli/read_attachments.py", mMail);
    EXPECT_THAT(redacted, Not(HasSubstr("secret")));
    EXPECT_THAT(redacted, HasSubstr("tracker_granules20061010.out\n"));
    EXPECT_THAT(redacted, HasSubstr("<EndTime>32700</EndTime>"));
    EXPECT_THAT(redacted, HasSubstr("TDDataHandler load line: ..."));
}

TEST_F(ProblemReportCommandTest, ProblemReport_BadArguments_AreUsageErrors)
{
    Refusal({ "problem-report", "--actual", "b", "--out", mMail }, 2);
    Refusal({ "problem-report", "--expected", "a", "--out", mMail }, 2);
    Refusal({ "problem-report", "--expected", "a", "--actual", "b" }, 2);
    Refusal({ "problem-report", "--expected", "a", "--actual", "b", "--out", "" }, 2);
    Refusal(Report({ "--day", "soon" }), 2);
    EXPECT_THAT(Refusal(Report({ "--list" }), 2), HasSubstr("--list writes nothing: leave --out out"));
    Refusal(Report({ "--day", "week" }), 2);
    mMail = mFolder.Path("problem.html");
    EXPECT_THAT(Refusal(Report(), 2), HasSubstr("give a name that ends in .eml\n"));
    EXPECT_FALSE(std::filesystem::exists(mProfile));
    EXPECT_FALSE(mFolder.Has("problem.html"));
}

}
