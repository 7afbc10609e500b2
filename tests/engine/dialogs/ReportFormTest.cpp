#include "engine/dialogs/ReportForm.h"

#include "forms/ComboBoxModel.h"
#include "host/windows/HostMail.h"
#include "support/AddInFixture.h"
#include "support/FormUser.h"

namespace tempodial {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

/// A registry that notes what is written.
class NotingRegistry : public Registry
{
public:
    explicit NotingRegistry(Ref<Registry> registry)
        : mRegistry(std::move(registry))
    {
    }

    std::vector<std::string> written;

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override
    {
        return mRegistry->Read(hive, key, value, access);
    }
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override
    {
        written.push_back(value + "=" + text);
        mRegistry->Write(hive, key, value, text);
    }

private:
    Ref<Registry> mRegistry;
};

class ReportFormTest : public AddInFixture
{
protected:
    static constexpr const char* Today = "Tuesday, October 10, 2006";

    ReportFormTest()
    {
        mForm->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
        mAddIn.Trace();
    }

    std::string Registered(const std::string& value) const
    {
        return mAddIn.platform->registry
            ->Read(Hive::CurrentUser, R"(Software\Lindenfold\Tempodial)", value, RegistryAccess::Query)
            .ToText();
    }
    void Register(const std::string& value, const std::string& text) const
    {
        mAddIn.platform->registry->Write(Hive::CurrentUser, R"(Software\Lindenfold\Tempodial)", value, text);
    }
    std::vector<Ref<HostMail>> Mails() const { return mAddIn.application->host->Mails(); }
    const MailDraft& Mail() const { return Mails().back()->Draft(); }
    std::string Date(const std::string& suffix) const
    {
        return mUser.Text("YearCombo" + suffix) + "-" + mUser.Text("MonthCombo" + suffix) + "-"
            + mUser.Text("DayCombo" + suffix);
    }
    /// The names of what is chosen and ticked.
    std::vector<std::string> On() const
    {
        std::vector<std::string> on;
        for (const auto* name : { "ApplicationOption", "ProjectOption", "DateOption", "DetailCheck", "HTMLOption",
                 "csvcheck", "WorkDayOnly" }) {
            if (mUser.IsOn(name)) {
                on.emplace_back(name);
            }
        }
        return on;
    }

    Ref<ReportForm> mForm = MakeRef<ReportForm>(mAddIn.platform);
    FormUser mUser { mAddIn.forms, "ReportForm" };
};

TEST_F(ReportFormTest, Form_IsLaidOutInItsOrder)
{
    EXPECT_EQ(mUser.Form()->Caption(), "Create a report in e-mail format ");
    EXPECT_THAT(mUser.Controls(),
        ElementsAre("Label3|label|Report|", "Label5|label|How do you want your activities reported?|",
            "ApplicationOption|option|by &application|", "ProjectOption|option|by &project|",
            "DateOption|option|by &date and time|",
            "DetailCheck|check|&include a list of all activities in the report|", "Label2|label|Format|",
            "Label9|label|Choose the report format.|", "HTMLOption|check|use &HTML e-mail|",
            "csvcheck|check|attach report data  in .csv (&Excel readable) format|Attaches a detailed report in a comma "
            "separated format that can be read by most spreadsheets including Excel",
            "Label6|label|Dates|", "Label7|label|Select the date and time periods to report.|", "Fr|label|&From:|",
            "YearComboFrom|combo||", "MonthComboFrom|combo||", "DayComboFrom|combo||", "Label1|label|&To:|",
            "YearComboTo|combo||", "MonthComboTo|combo||", "DayComboTo|combo||",
            "WorkDayOnly|check|only include activities in your calendar &work week|", "Command1|default button|OK|",
            "Command2|cancel button|Cancel|"));
}

TEST_F(ReportFormTest, Initialise_FillsBothDateSelectors)
{
    for (const auto* suffix : { "From", "To" }) {
        EXPECT_THAT(mUser.List(std::string("YearCombo") + suffix), ElementsAre("2006", "2007", "2008"));
        EXPECT_THAT(mUser.List(std::string("MonthCombo") + suffix), SizeIs(12));
        EXPECT_THAT(mUser.List(std::string("DayCombo") + suffix), SizeIs(31));
    }
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(ReportFormTest, ShowMe_FirstUse_HasTheDefaults)
{
    mForm->ShowMe();
    EXPECT_TRUE(mUser.Sees());
    EXPECT_THAT(On(), ElementsAre("ApplicationOption", "DetailCheck", "HTMLOption", "csvcheck"));
    EXPECT_EQ(Date("From"), "2006-Oct-10");
    EXPECT_EQ(Date("To"), "2006-Oct-10");
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("ReportForm ReportForm ShowMe ", "ReportForm Error ShowMe Type mismatch:"));
}

TEST_F(ReportFormTest, ShowMe_TypeValue_ChoosesItsOption)
{
    for (const auto& [value, option] :
        { std::pair { "1", "ProjectOption" }, std::pair { "4", "DateOption" }, std::pair { "2", "ApplicationOption" },
            std::pair { "3", "ApplicationOption" }, std::pair { "9", "ApplicationOption" },
            std::pair { "x", "ApplicationOption" }, std::pair { "", "ApplicationOption" } }) {
        Register("Report Type", value);
        mAddIn.Trace();
        mForm->ShowMe();
        EXPECT_THAT(On(), ElementsAre(option, "DetailCheck", "HTMLOption", "csvcheck")) << value;
        const bool isNumber = value[0] >= '0' && value[0] <= '9';
        EXPECT_THAT(mAddIn.TraceTexts(), SizeIs(isNumber ? 1 : 2)) << value;
        mUser.Clicks("Command2");
    }
}

TEST_F(ReportFormTest, ShowMe_Values_SetTheirBoxes)
{
    Register("Report Workday Only", "true");
    Register("Report In HTML", "false");
    Register("Report Details", "false");
    Register("Report CSV File", "false");
    mForm->ShowMe();
    EXPECT_THAT(On(), ElementsAre("ApplicationOption", "WorkDayOnly"));
}

TEST_F(ReportFormTest, ShowMe_Again_DoesNotRememberTheDates)
{
    mForm->ShowMe();
    mUser.Chooses("DayComboFrom", "3");
    mUser.Clicks("Command1");
    mForm->ShowMe();
    EXPECT_EQ(Date("From"), "2006-Oct-10");
}

TEST_F(ReportFormTest, Options_ExcludeEachOther)
{
    mForm->ShowMe();
    mUser.Picks("DateOption");
    EXPECT_THAT(On(), ElementsAre("DateOption", "DetailCheck", "HTMLOption", "csvcheck"));
}

TEST_F(ReportFormTest, OK_Defaults_ReportsAndSaves)
{
    mForm->ShowMe();
    mUser.Clicks("Command1");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(Registered("Report Type"), "2");
    EXPECT_EQ(Registered("Report Workday Only"), "false");
    EXPECT_EQ(Registered("Report In HTML"), "true");
    EXPECT_EQ(Registered("Report Details"), "true");
    EXPECT_EQ(Registered("Report CSV File"), "true");
    ASSERT_THAT(Mails(), SizeIs(1));
    EXPECT_EQ(Mail().subject, std::string("Tempodial Report (By Application) ") + Today);
    EXPECT_TRUE(Mail().isHtml);
    EXPECT_THAT(Mail().attachments, SizeIs(1));
    EXPECT_THAT(mAddIn.messageBox->TakeTexts(), IsEmpty());
}

TEST_F(ReportFormTest, OK_SavesInItsOrder)
{
    const auto registry = MakeRef<NotingRegistry>(mAddIn.platform->registry);
    mAddIn.platform->registry = registry;
    mForm->ShowMe();
    mUser.Clicks("Command1");
    EXPECT_THAT(registry->written,
        ElementsAre("Report Workday Only=false", "Report In HTML=true", "Report Details=true", "Report CSV File=true",
            "Report Type=2"));
}

TEST_F(ReportFormTest, OK_OtherChoices_ReachTheReport)
{
    mAddIn.main->CreateCalendarItem("Alpha", "letter", "Notepad", "", 5, mAddIn.clock->Now().AddMinutes(-60),
        mAddIn.clock->Now().AddMinutes(-55), "", false);
    for (const bool detailed : { false, true }) {
        mForm->ShowMe();
        mUser.Picks("ProjectOption");
        mUser.Checks("HTMLOption", false);
        mUser.Checks("csvcheck", false);
        mUser.Checks("DetailCheck", detailed);
        mUser.Clicks("Command1");
        EXPECT_THAT(Mail().subject, StartsWith("Tempodial Report (By Project) "));
        EXPECT_FALSE(Mail().isHtml);
        EXPECT_THAT(Mail().attachments, IsEmpty());
        EXPECT_THAT(Mail().body, HasSubstr("Alpha"));
        EXPECT_EQ(Mail().body.find("letter") != std::string::npos, detailed);
    }
    EXPECT_EQ(Registered("Report Type"), "1");
    EXPECT_EQ(Registered("Report In HTML"), "false");
    EXPECT_EQ(Registered("Report CSV File"), "false");
    mForm->ShowMe();
    EXPECT_THAT(On(), ElementsAre("ProjectOption", "DetailCheck"));
    mUser.Picks("DateOption");
    mUser.Clicks("Command1");
    EXPECT_EQ(Registered("Report Type"), "4");
}

TEST_F(ReportFormTest, OK_WorkWeekOnly_LeavesOtherTimesOut)
{
    const auto night = mAddIn.clock->Now().Day().AddMinutes(30);
    mAddIn.main->CreateCalendarItem("Alpha", "letter", "Notepad", "", 5, night, night.AddMinutes(5), "", false);
    for (const bool workDayOnly : { false, true }) {
        mForm->ShowMe();
        mUser.Checks("HTMLOption", false);
        mUser.Checks("WorkDayOnly", workDayOnly);
        mUser.Clicks("Command1");
        EXPECT_EQ(Mail().body.find("letter") == std::string::npos, workDayOnly);
        EXPECT_EQ(Registered("Report Workday Only"), workDayOnly ? "true" : "false");
    }
}

TEST_F(ReportFormTest, OK_ToBeforeFrom_TellsAndStays)
{
    mForm->ShowMe();
    mUser.Picks("DateOption");
    mUser.Chooses("DayComboTo", "9");
    mUser.Clicks("Command1");
    ASSERT_THAT(mAddIn.messageBox->shown, SizeIs(1));
    EXPECT_EQ(mAddIn.messageBox->shown[0],
        (CannedMessageBox::Box {
            "The end date you entered occurs before the start date.", { Answer::Ok }, MessageIcon::None }));
    EXPECT_TRUE(mUser.Sees());
    EXPECT_TRUE(mUser.IsOn("DateOption"));
    EXPECT_EQ(Registered("Report Type"), "");
    EXPECT_EQ(Registered("Report In HTML"), "");
    EXPECT_THAT(Mails(), IsEmpty());
}

TEST_F(ReportFormTest, OK_ChosenDays_AreTheReports)
{
    struct Case
    {
        const char* month;
        const char* day;
        std::string subject;
    };
    // A day that the month doesn't have rolls over.
    for (const auto& [month, day, subject] : {
             Case { "Oct", "9", "Monday, October 9, 2006" },
             Case { "Apr", "31", "Monday, May 1, 2006" },
         }) {
        mForm->ShowMe();
        for (const auto* suffix : { "From", "To" }) {
            mUser.Chooses(std::string("MonthCombo") + suffix, month);
            mUser.Chooses(std::string("DayCombo") + suffix, day);
        }
        mUser.Clicks("Command1");
        EXPECT_EQ(Mail().subject, "Tempodial Report (By Application) " + subject);
    }
    EXPECT_THAT(mAddIn.messageBox->TakeTexts(), IsEmpty());
}

TEST_F(ReportFormTest, OK_YearThatIsNoNumber_IsTheZeroDate)
{
    mForm->ShowMe();
    mUser.Types("YearComboTo", "abc");
    mAddIn.Trace();
    mUser.Clicks("Command1");
    EXPECT_THAT(mAddIn.messageBox->TakeTexts(), ElementsAre("The end date you entered occurs before the start date."));
    EXPECT_THAT(mAddIn.TraceTexts(), Contains(StartsWith("DateSelectorToday error Type mismatch ")));
    EXPECT_TRUE(mUser.Sees());
}

TEST_F(ReportFormTest, Cancel_OptionsChanged_ForgetsThem)
{
    mForm->ShowMe();
    mUser.Picks("ProjectOption");
    mUser.Checks("WorkDayOnly");
    mUser.Checks("HTMLOption", false);
    mUser.Clicks("Command2");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(Registered("Report Type"), "");
    EXPECT_THAT(Mails(), IsEmpty());
    mForm->ShowMe();
    EXPECT_THAT(On(), ElementsAre("ApplicationOption", "DetailCheck", "HTMLOption", "csvcheck"));
}

TEST_F(ReportFormTest, Frame_IsAsCancel_AndTheFormWorksAgain)
{
    mForm->ShowMe();
    mUser.Picks("ProjectOption");
    EXPECT_TRUE(mUser.Closes());
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(Registered("Report Type"), "");
    EXPECT_THAT(Mails(), IsEmpty());
    mForm->ShowMe();
    EXPECT_THAT(On(), ElementsAre("ApplicationOption", "DetailCheck", "HTMLOption", "csvcheck"));
    mUser.Chooses("DayComboFrom", "9");
    mUser.Clicks("Command1");
    EXPECT_THAT(Mails(), SizeIs(1));
}

TEST_F(ReportFormTest, OK_MessageEndsTheAddIn_IsComeThrough)
{
    mForm->ShowMe();
    mUser.Chooses("DayComboTo", "9");
    mAddIn.messageBox->onShow = [this] {
        mForm->Unload();
        mAddIn.Disconnect();
    };
    mUser.Clicks("Command1");
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(ReportFormTest, OK_ReportEndsTheAddIn_IsComeThrough)
{
    mAddIn.main->CreateCalendarItem("Alpha", "letter", "Notepad", "", 5, mAddIn.clock->Now().AddMinutes(-60),
        mAddIn.clock->Now().AddMinutes(-55), "", false);
    mForm->ShowMe();
    mAddIn.eventPump->hook = [this] {
        mForm->Unload();
        mAddIn.Disconnect();
    };
    mUser.Clicks("Command1");
    EXPECT_FALSE(mAddIn.main);
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(ReportFormTest, Terminate_LetsItsReferencesGo)
{
    mForm->ShowMe();
    mAddIn.Trace();
    mForm->Terminate();
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("ReportForm ReportForm term"));
    mUser.Clicks("Command1");
    EXPECT_THAT(Mails(), IsEmpty());
}

TEST_F(ReportFormTest, Forms_NoneAtAll_CostLines)
{
    mAddIn.platform->forms = nullptr;
    const auto form = MakeRef<ReportForm>(mAddIn.platform);
    form->Initialise(mAddIn.main, mAddIn.main->mTempodialDebugLog);
    const std::string notSet = "Object variable or With block variable not set:";
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("Error RepForm Init" + notSet));
    form->ShowMe();
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("Error ShowMe " + notSet));
    form->Unload();
    form->Terminate();
}

}
