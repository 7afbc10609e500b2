#include "engine/dialogs/DiagsForm.h"

#include "engine/dialogs/ProblemReportText.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialStrings.h"
#include "forms/ButtonModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/TextBoxModel.h"
#include "host/windows/HostMail.h"
#include "support/AddInFixture.h"

#include <fstream>

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class DiagsFormTest : public AddInFixture
{
protected:
    DiagsFormTest()
    {
        mShowing = mAddIn.application->host->Inspectors()->Subscribe({ .NewInspector = [this](const auto&) {
            if (mOnDisplay) {
                mOnDisplay();
            }
        } });
        mForm->Initialise(mAddIn.main);
    }

    Ref<FormModel> Model() const { return mAddIn.forms->Forms().back(); }
    template <class Kind> Ref<Kind> Get(const char* name) const { return Model()->Control(name).As<Kind>(); }
    void Type(const char* name, const std::string& text) const { Get<TextBoxModel>(name)->Type(text); }
    void Click(const char* name) const { Get<ButtonModel>(name)->Click(); }
    std::vector<Ref<HostMail>> Mails() const { return mAddIn.application->host->Mails(); }
    const MailDraft& Mail() const { return Mails().at(0)->Draft(); }
    std::vector<std::string> Attached() const
    {
        std::vector<std::string> names;
        for (const auto& attachment : Mail().attachments) {
            names.push_back(attachment.name);
        }
        return names;
    }
    std::string Body(const std::string& day, const std::string& expected, const std::string& actual) const
    {
        return ProblemReportText::Body(day, expected, actual, "1.2.0");
    }

    Subscription mShowing;
    std::function<void()> mOnDisplay;
    Ref<DiagsForm> mForm = MakeRef<DiagsForm>(mAddIn.platform);
};

TEST_F(DiagsFormTest, Form_IsLaidOutInItsOrder)
{
    struct Row
    {
        std::string name;
        ControlKind kind;
        std::string text;

        bool operator==(const Row&) const = default;
    };
    using enum ControlKind;
    const std::vector<Row> expected {
        { "Label2", Label, "Description" },
        { "Label4", Label, "What did you e&xpect to happen?" },
        { "ExpectedText", TextBox, "" },
        { "Label7", Label, "For example, click my folder and see my activities" },
        { "Label5", Label, "What &actually happened?" },
        { "ActualText", TextBox, "" },
        { "Label9", Label, "For example, nothing happened" },
        { "Label1", Label, "Date" },
        { "Label6", Label, "&When did the problem occur?" },
        { "YearComboFrom", ComboBox, "" },
        { "MonthComboFrom", ComboBox, "" },
        { "DayComboFrom", ComboBox, "" },
        { "Label8", Label, "Information" },
        { "Label3", Label,
            "To diagnose your problem, we need to collect information including email subjects and recipients.  This "
            "information will be never be passed to anyone else and we will destroy it once your problem is diagnosed. "
            "If you are happy for us to collect these diagnostics, select OK." },
        { "OK", Button, "OK" },
        { "Cancel", Button, "Cancel" },
    };
    std::vector<Row> rows;
    for (const auto& line : Model()->Definition().rows) {
        for (const auto& control : line) {
            rows.push_back({ control.name, control.kind, control.text });
        }
    }
    EXPECT_EQ(rows, expected);
    EXPECT_EQ(Get<ButtonModel>("OK")->Definition().role, ButtonRole::Default);
    EXPECT_EQ(Get<ButtonModel>("Cancel")->Definition().role, ButtonRole::Cancel);
    EXPECT_TRUE(Get<TextBoxModel>("ExpectedText")->Definition().severalLines);
    EXPECT_TRUE(Get<TextBoxModel>("ActualText")->Definition().severalLines);
    EXPECT_EQ(Model()->Definition().className, "DiagsForm");
    EXPECT_EQ(Model()->Caption(), "Reporting a Problem");
}

TEST_F(DiagsFormTest, Initialise_FillsTheDateSelectorWithToday)
{
    EXPECT_THAT(Get<ComboBoxModel>("YearComboFrom")->List(), ElementsAre("2006", "2007", "2008"));
    EXPECT_EQ(Get<ComboBoxModel>("MonthComboFrom")->List().size(), 12U);
    EXPECT_EQ(Get<ComboBoxModel>("DayComboFrom")->List().size(), 31U);
    EXPECT_EQ(Get<ComboBoxModel>("YearComboFrom")->Text(), "2006");
    EXPECT_EQ(Get<ComboBoxModel>("MonthComboFrom")->Text(), "Oct");
    EXPECT_EQ(Get<ComboBoxModel>("DayComboFrom")->Text(), "10");
    EXPECT_FALSE(mForm->IsDone());
    EXPECT_FALSE(Model()->Visible());
    mForm->Show();
    EXPECT_TRUE(Model()->Visible());
    EXPECT_TRUE(Get<TextBoxModel>("ExpectedText")->CanBeWorked());
    Click("Cancel");
    EXPECT_TRUE(mForm->IsDone());
    mForm->Initialise(mAddIn.main);
    EXPECT_FALSE(mForm->IsDone());
}

TEST_F(DiagsFormTest, GetBody_TellsTheDayAndBothTexts)
{
    mForm->Show();
    Type("ExpectedText", "a list");
    Type("ActualText", "nothing");
    Get<ComboBoxModel>("DayComboFrom")->Choose(8);
    EXPECT_EQ(mForm->GetBody(), Body("Monday, October 9, 2006", "a list", "nothing"));
    Click("Cancel");
}

TEST_F(DiagsFormTest, OK_BothTextsEmpty_MakesTheMailAllTheSame)
{
    mForm->Show();
    Click("OK");
    ASSERT_EQ(Mails().size(), 1U);
    EXPECT_THAT(Mail().body,
        StartsWith("Day: Tuesday, October 10, 2006\r\nExpected: \r\nActual: \r\nVersion: 1.2.0\r\n\r\nTo help "));
    EXPECT_EQ(Mail().body, Body("Tuesday, October 10, 2006", "", ""));
    EXPECT_FALSE(Mail().isHtml);
    EXPECT_EQ(Mail().subject, "Tempodial Problem Report: Tuesday, October 10, 2006 9:00:00 AM");
    EXPECT_THAT(Mail().recipients, ElementsAre(mAddIn.main->mStrings->mReportRecip));
    EXPECT_TRUE(mForm->IsDone());
    EXPECT_FALSE(Model()->Visible());
}

TEST_F(DiagsFormTest, OK_DayLeftAtToday_AttachesItsTrackerFile)
{
    mAddIn.WriteTracker("20061009", {});
    mAddIn.WriteTracker("20061010", {});
    mForm->Show();
    Type("ExpectedText", "a list");
    Type("ActualText", "nothing");
    Click("OK");
    EXPECT_THAT(Attached(), ElementsAre("WorkLogTrace1.out", "tracker_granules20061010.out"));
    EXPECT_EQ(Mail().body, Body("Tuesday, October 10, 2006", "a list", "nothing"));
    EXPECT_EQ(Get<TextBoxModel>("ExpectedText")->Text(), "") << "the form is unloaded";
}

TEST_F(DiagsFormTest, OK_AnotherDay_AttachesItsTrackerFile)
{
    mAddIn.WriteTracker("20061009", {});
    mAddIn.WriteTracker("20061010", {});
    mForm->Show();
    Get<ComboBoxModel>("DayComboFrom")->Choose(8);
    Click("OK");
    EXPECT_THAT(Attached(), ElementsAre("WorkLogTrace1.out", "tracker_granules20061009.out"));
}

TEST_F(DiagsFormTest, OK_DayWithoutTrackerFile_AttachesTraceAndCaptureFilesOnly)
{
    mAddIn.WriteTracker("20061010", {});
    mAddIn.WriteHistory("20061010_04300");
    const auto folder = mAddIn.main->mCommonUtils->GetDataFolderName();
    for (const auto* name : { "TDCaptureLog1.out", "TDCaptureLog2.out" }) {
        std::ofstream(folder + "/" + name) << "captured";
    }
    mForm->Show();
    Get<ComboBoxModel>("MonthComboFrom")->Choose(0);
    Click("OK");
    EXPECT_THAT(Attached(), ElementsAre("TDCaptureLog1.out", "TDCaptureLog2.out", "WorkLogTrace1.out"));
    EXPECT_EQ(Mail().body, Body("Tuesday, January 10, 2006", "", ""));
}

TEST_F(DiagsFormTest, OK_FormIsHiddenBeforeTheMailComesUp)
{
    mOnDisplay = [this] {
        EXPECT_FALSE(Model()->Visible());
        EXPECT_FALSE(mForm->IsDone());
    };
    mForm->Show();
    Click("OK");
    EXPECT_EQ(Mails().size(), 1U);
}

TEST_F(DiagsFormTest, OK_DateThatIsNone_ReportsTheZeroDay)
{
    mForm->Show();
    Get<ComboBoxModel>("YearComboFrom")->Type("abc");
    mAddIn.Trace();
    Click("OK");
    EXPECT_EQ(Mail().body, Body("Saturday, December 30, 1899", "", ""));
    const auto lines = mAddIn.Trace();
    ASSERT_GE(lines.size(), 3U);
    for (const auto* line : { &lines[0], &lines[1] }) {
        EXPECT_THAT(*line, StartsWith("TDUtils DateSelectorToday error Type mismatch "));
    }
    EXPECT_THAT(lines[2], EndsWith(" Generate a problem report"));
}

TEST_F(DiagsFormTest, OK_NoMailCanBeMade_ClosesAllTheSame)
{
    mAddIn.application->newMail = []() -> Ref<MailItem> { throw Failure(Error::Automation); };
    mForm->Show();
    Click("OK");
    EXPECT_TRUE(mForm->IsDone());
    EXPECT_FALSE(Model()->Visible());
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("ReportProblem error Automation error:create"));
}

TEST_F(DiagsFormTest, OK_MailEndsTheAddIn_Closes)
{
    mOnDisplay = [this] { mAddIn.Disconnect(); };
    mForm->Show();
    Click("OK");
    EXPECT_EQ(Mails().size(), 1U);
    EXPECT_TRUE(mForm->IsDone());
    EXPECT_FALSE(Model()->Visible());
}

TEST_F(DiagsFormTest, Cancel_MakesNoMail)
{
    mForm->Show();
    Type("ActualText", "nothing");
    mAddIn.Trace();
    Click("Cancel");
    EXPECT_THAT(Mails(), IsEmpty());
    EXPECT_THAT(mAddIn.Trace(), IsEmpty());
    EXPECT_TRUE(mForm->IsDone());
    EXPECT_FALSE(Model()->Visible());
    EXPECT_EQ(Get<TextBoxModel>("ActualText")->Text(), "");
}

TEST_F(DiagsFormTest, ClosedByFrame_IsAsCancel)
{
    mForm->Show();
    EXPECT_TRUE(Model()->CloseByFrame());
    EXPECT_THAT(Mails(), IsEmpty());
    EXPECT_TRUE(mForm->IsDone());
    EXPECT_FALSE(Model()->Visible());
}

TEST_F(DiagsFormTest, Show_NobodyHoldsTheForm_LivesUntilItIsAnswered)
{
    for (const auto* button : { "OK", "Cancel", "" }) {
        const auto known = mAddIn.forms->Forms().size();
        auto form = MakeRef<DiagsForm>(mAddIn.platform);
        const std::weak_ptr<DiagsForm> alive = form.Shared();
        form->Initialise(mAddIn.main);
        form->Show();
        form = nullptr;
        ASSERT_FALSE(alive.expired());
        ASSERT_EQ(mAddIn.forms->Forms().size(), known + 1);
        if (*button != '\0') {
            Click(button);
        } else {
            Model()->CloseByFrame();
        }
        EXPECT_TRUE(alive.expired()) << button;
        EXPECT_EQ(mAddIn.forms->Forms().size(), known) << button;
    }
    EXPECT_EQ(Mails().size(), 1U);
}

TEST_F(DiagsFormTest, Show_TwoAtATime_AnswerForThemselves)
{
    mForm->Show();
    Type("ActualText", "first");
    const auto first = Model();
    const auto second = MakeRef<DiagsForm>(mAddIn.platform);
    second->Initialise(mAddIn.main);
    second->Show();
    Type("ActualText", "second");
    Click("OK");
    EXPECT_THAT(Mail().body, HasSubstr("Actual: second\r\n"));
    EXPECT_FALSE(mForm->IsDone());
    EXPECT_TRUE(first->Visible());
    EXPECT_EQ(first->Control("ActualText").As<TextBoxModel>()->Text(), "first");
    first->CloseByFrame();
}

TEST_F(DiagsFormTest, Terminate_NoMainObject_MakesNothing)
{
    mForm->Show();
    mForm->Terminate();
    EXPECT_EQ(mForm->GetBody(), "");
    Click("OK");
    EXPECT_THAT(Mails(), IsEmpty());
    EXPECT_TRUE(mForm->IsDone());
}

}
