#include "engine/core/CoreFixture.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/reports/TempodialReport.h"
#include "host/windows/HostMail.h"

#include <functional>
#include <optional>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

const Date Day = Date::FromYearMonthDay(2006, 10, 10);

/// A mail of which a member can be refused, as the security guard refuses the recipients.
class GuardedMail : public MailItem
{
public:
    GuardedMail(Ref<MailItem> mail, std::function<void(const std::string& member)> guard)
        : mMail(std::move(mail))
        , mGuard(std::move(guard))
    {
    }

    ObjectClass Class() const override { return mMail->Class(); }
    std::string MessageClass() const override { return mMail->MessageClass(); }
    std::string EntryID() const override { return mMail->EntryID(); }
    std::string Subject() const override { return mMail->Subject(); }
    void SetSubject(const std::string& subject) override
    {
        mGuard("Subject");
        mMail->SetSubject(subject);
    }
    std::string Body() const override { return mMail->Body(); }
    void SetBody(const std::string& body) override
    {
        mGuard("Body");
        mMail->SetBody(body);
    }
    std::string HTMLBody() const override { return mMail->HTMLBody(); }
    void SetHTMLBody(const std::string& html) override { mMail->SetHTMLBody(html); }
    Ref<tempodial::Attachments> Attachments() override { return mMail->Attachments(); }
    Ref<tempodial::Recipients> Recipients() override
    {
        mGuard("Recipients");
        return mMail->Recipients();
    }
    void Display() override { mMail->Display(); }

private:
    Ref<MailItem> mMail;
    /// Called with each member that can be refused.
    std::function<void(const std::string& member)> mGuard;
};

}

class TempodialMainMailsTest : public CoreFixture
{
protected:
    TempodialMainMailsTest()
    {
        mApplication->newMail = [this]() -> Ref<MailItem> {
            const auto mail = mApplication->host->CreateItem();
            return MakeRef<GuardedMail>(mail, [this](const std::string& member) {
                if (mRefusal && member == mRefused) {
                    throw Failure(*mRefusal);
                }
            });
        };
        ConnectAddIn();
        mApplication->LogOn();
        Traced();
    }

    bool CreateReport(bool csv, bool html)
    {
        return Main().CreateReport(Day, Day, Main().mTempodialReport->mApplication, true, csv, html, false);
    }
    std::vector<Ref<HostMail>> Mails() const { return mApplication->host->Mails(); }
    const MailDraft& Shown() const { return Mails().at(0)->Draft(); }

    std::string mRefused = "Recipients";
    std::optional<Failure> mRefusal;
};

TEST_F(TempodialMainMailsTest, ReportProblem_Cancelled_MakesNothing)
{
    Main().ReportProblem("text", Day, false, true);
    EXPECT_THAT(Mails(), IsEmpty());
    EXPECT_THAT(Traced(), ElementsAre("Generate a problem report"));
}

TEST_F(TempodialMainMailsTest, ReportProblem_IsAddressedAndHoldsTheDiagnostics)
{
    mFolder.Write("Tempodial/tracker_granules20061010.out", "x");
    mFolder.Write("Tempodial/tracker_granules20061009.out", "y");
    Main().ReportProblem("text", Day, false, false);
    ASSERT_EQ(Mails().size(), 1U);
    EXPECT_EQ(Shown().subject, "Tempodial Problem Report: Tuesday, October 10, 2006 9:00:00 AM");
    EXPECT_THAT(Shown().recipients, ElementsAre(Main().mStrings->mReportRecip));
    EXPECT_EQ(Shown().body, "text");
    EXPECT_FALSE(Shown().isHtml);
    ASSERT_EQ(Shown().attachments.size(), 2U);
    EXPECT_EQ(Shown().attachments[0].name, "WorkLogTrace1.out");
    EXPECT_EQ(Shown().attachments[1].name, "tracker_granules20061010.out");
    EXPECT_EQ(Shown().attachments[1].content, "x");
}

TEST_F(TempodialMainMailsTest, ReportProblem_GuardKnown_AsksTheUserToAddressIt)
{
    Main().mSecurityPopups = true;
    Main().ReportProblem("B", Day, false, false);
    EXPECT_THAT(Shown().recipients, IsEmpty());
    EXPECT_EQ(Shown().body, "Please send this problem report to: " + Main().mStrings->mReportRecip + "\r\n\r\nB");
}

TEST_F(TempodialMainMailsTest, ReportProblem_Refused_ShowsTheMailAndRemembers)
{
    mRefusal = Failure(Error::SecurityRefusal);
    Main().ReportProblem("B", Day, false, false);
    EXPECT_EQ(Shown().body, "B");
    EXPECT_FALSE(Shown().subject.empty());
    EXPECT_TRUE(Main().mSecurityPopups);
    EXPECT_EQ(mRegistry->Read(Hive::LocalMachine, R"(Software\Lindenfold\Tempodial)", "Outlook Security Popups",
                  RegistryAccess::Query),
        Variant("true"));
    EXPECT_THAT(Traced(), Contains("security popup seen! drop all email guarded function from now on"));
}

TEST_F(TempodialMainMailsTest, ReportProblem_OtherFailure_IsNotRemembered)
{
    mRefusal = Failure(Error::Automation);
    Main().ReportProblem("B", Day, false, false);
    EXPECT_EQ(Shown().body, "B");
    EXPECT_FALSE(Main().mSecurityPopups);
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("security exception on errorreportAutomation error"));
    EXPECT_THAT(lines, Not(Contains("security popup seen! drop all email guarded function from now on")));
}

TEST_F(TempodialMainMailsTest, ReportProblem_SubjectOrBodyRefused_IsNoMatterOfTheGuard)
{
    mRefusal = Failure(Error::SecurityRefusal);
    for (const auto* member : { "Subject", "Body" }) {
        mRefused = member;
        Main().ReportProblem("B", Day, false, false);
        EXPECT_FALSE(Main().mSecurityPopups);
        EXPECT_THAT(Traced(),
            testing::AllOf(
                Contains("ReportProblem error Application-defined or object-defined error:subject and body").Times(1),
                Not(Contains(testing::HasSubstr("security")))));
    }
    EXPECT_EQ(Shown().body, "B") << "what follows is done";
}

TEST_F(TempodialMainMailsTest, ReportProblem_NoMail_TracesAndGoesOn)
{
    mApplication->newMail = []() -> Ref<MailItem> { throw Failure(Error::Automation); };
    Main().ReportProblem("B", Day, false, false);
    const auto lines = Traced();
    EXPECT_THAT(lines, Contains("ReportProblem error Automation error:create"));
    EXPECT_EQ(lines.back(), "ReportProblem error Object variable or With block variable not set:display");
}

TEST_F(TempodialMainMailsTest, CreateReport_Plain_IsTheBodyWithTheHeaderAsSubject)
{
    Main().CreateCalendarItem("", "x", "Notepad", "", 5, Day.AddMinutes(540), Day.AddMinutes(545), "", false);
    EXPECT_TRUE(CreateReport(false, false));
    EXPECT_EQ(Shown().subject, "Tempodial Report (By Application) Tuesday, October 10, 2006");
    EXPECT_TRUE(Shown().body.starts_with("Notepad - 0 hours 05 minutes (100%)\r\n\r\n***Total time at PC: "));
    EXPECT_THAT(Shown().attachments, IsEmpty());
}

TEST_F(TempodialMainMailsTest, CreateReport_HtmlWithoutTemplates_IsHtmlWithoutText)
{
    EXPECT_FALSE(CreateReport(false, true));
    EXPECT_TRUE(Shown().isHtml);
    EXPECT_EQ(Shown().body, "</body></html>");
}

TEST_F(TempodialMainMailsTest, CreateReport_Csv_IsAttachedAndItsFileDeleted)
{
    CreateReport(true, false);
    ASSERT_EQ(Shown().attachments.size(), 1U);
    EXPECT_EQ(Shown().attachments[0].name, "Tempodial Tuesday, October 10, 2006.csv");
    EXPECT_EQ(Shown().attachments[0].content,
        "Project,Application,Description,People,Day,Start time,End time,Duration (minutes)\r\n");
    EXPECT_FALSE(mFolder.Has("Tempodial/Tempodial Tuesday, October 10, 2006.csv"));
    EXPECT_THAT(Traced(), Contains("attach csv file"));
}

TEST_F(TempodialMainMailsTest, CreateReport_NoMail_StillDeletesTheCsvFile)
{
    mApplication->newMail = []() -> Ref<MailItem> { throw Failure(Error::Automation); };
    CreateReport(true, false);
    EXPECT_FALSE(mFolder.Has("Tempodial/Tempodial Tuesday, October 10, 2006.csv"));
    EXPECT_THAT(Traced(), Contains("ShowreportformAutomation error:create email"));
}

}
