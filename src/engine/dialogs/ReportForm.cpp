#include "engine/dialogs/ReportForm.h"

#include "base/Number.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/ReportTypes.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "platform/controls/Button.h"

#include <utility>

namespace tempodial {

namespace {

constexpr auto ReportTypeValue = "Report Type";
constexpr auto WorkdayOnlyValue = "Report Workday Only";
constexpr auto InHtmlValue = "Report In HTML";
constexpr auto DetailsValue = "Report Details";
constexpr auto CsvFileValue = "Report CSV File";

FormDefinition ReportDefinition()
{
    using enum ControlKind;
    return { .className = "ReportForm",
        // kept: the blank at the end of the title.
        .title = "Create a report in e-mail format ",
        .rows = {
            { { "Label3", Label, "Report" } },
            { { "Label5", Label, "How do you want your activities reported?" } },
            { { "ApplicationOption", OptionButton, "by &application" } },
            { { "ProjectOption", OptionButton, "by &project" } },
            { { "DateOption", OptionButton, "by &date and time" } },
            { { "DetailCheck", CheckBox, "&include a list of all activities in the report" } },
            { { "Label2", Label, "Format" } },
            { { "Label9", Label, "Choose the report format." } },
            { { "HTMLOption", CheckBox, "use &HTML e-mail" } },
            // kept: the two blanks after "data".
            { { .name = "csvcheck",
                .kind = CheckBox,
                .text = "attach report data  in .csv (&Excel readable) format",
                .toolTip = "Attaches a detailed report in a comma separated format that can be read by most "
                           "spreadsheets including Excel" } },
            { { "Label6", Label, "Dates" } },
            { { "Label7", Label, "Select the date and time periods to report." } },
            { { "Fr", Label, "&From:" }, { "YearComboFrom", ComboBox, "" }, { "MonthComboFrom", ComboBox, "" },
                { "DayComboFrom", ComboBox, "" } },
            { { "Label1", Label, "&To:" }, { "YearComboTo", ComboBox, "" }, { "MonthComboTo", ComboBox, "" },
                { "DayComboTo", ComboBox, "" } },
            { { "WorkDayOnly", CheckBox, "only include activities in your calendar &work week" } },
            { { .name = "Command1", .kind = Button, .text = "OK", .role = ButtonRole::Default },
                { .name = "Command2", .kind = Button, .text = "Cancel", .role = ButtonRole::Cancel } },
        } };
}

}

ReportForm::ReportForm(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void ReportForm::Initialise(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& applog)
{
    const auto attempt = Failing("Error RepForm Init", LineShape::TextColonStep);
    mTraceInfo = "ReportForm";
    mMain = main;
    mLog = applog;
    attempt.Say("ReportForm Init");
    attempt([&] { MakeForm(); });
    attempt([&] { mMain->mUtils->DateSelectorInit(mFrom.year, mFrom.month, mFrom.day); });
    attempt([&] { mMain->mUtils->DateSelectorInit(mTo.year, mTo.month, mTo.day); });
}

void ReportForm::MakeForm()
{
    mForm = mPlatform->forms->Create(ReportDefinition());
    mFrom = Selector("From");
    mTo = Selector("To");
    mApplicationOption = mForm->Control("ApplicationOption").As<OptionButton>();
    mProjectOption = mForm->Control("ProjectOption").As<OptionButton>();
    mDateOption = mForm->Control("DateOption").As<OptionButton>();
    mDetailCheck = mForm->Control("DetailCheck").As<CheckBox>();
    mHTMLOption = mForm->Control("HTMLOption").As<CheckBox>();
    mCsvCheck = mForm->Control("csvcheck").As<CheckBox>();
    mWorkDayOnly = mForm->Control("WorkDayOnly").As<CheckBox>();
    const auto self = shared_from_this();
    mCommand1Events = mForm->Control("Command1")
                          .As<Button>()
                          ->Subscribe({ .Click = GuardedHandler(self, &ReportForm::Command1_Click) });
    mCommand2Events = mForm->Control("Command2")
                          .As<Button>()
                          ->Subscribe({ .Click = GuardedHandler(self, &ReportForm::Command2_Click) });
    mFormEvents = mForm->Subscribe({ .QueryClose = GuardedHandler(self, &ReportForm::Form_QueryUnload) });
}

ReportForm::DateSelector ReportForm::Selector(const std::string& suffix) const
{
    const auto box = [&](const char* part) { return mForm->Control(part + suffix).As<ComboBox>(); };
    return { box("YearCombo"), box("MonthCombo"), box("DayCombo") };
}

void ReportForm::ShowMe()
{
    const auto attempt = Failing("Error ShowMe ", LineShape::TextColonStep);
    attempt.Say("ReportForm ShowMe ");
    attempt([&] { mMain->mUtils->DateSelectorToday(mFrom.year, mFrom.month, mFrom.day); });
    attempt([&] { mMain->mUtils->DateSelectorToday(mTo.year, mTo.month, mTo.day); });
    ShowLastChoices(attempt);
    attempt([&] { mForm->Show(); });
}

void ReportForm::ShowLastChoices(const Attempt& attempt)
{
    std::int32_t type = 0;
    attempt([&] {
        type = ToInt32(
            mMain->mUtils->GetRegistryValue(ReportTypeValue, "", Hive::CurrentUser, RegistryAccess::All).ToText());
    });
    if (type == ReportTypes::Project) {
        attempt([&] { mProjectOption->SetValue(true); });
    } else if (type == ReportTypes::Date) {
        attempt([&] { mDateOption->SetValue(true); });
    } else {
        attempt([&] { mApplicationOption->SetValue(true); });
    }
    const auto show = [&](const Ref<CheckBox>& box, const char* value, bool defValue) {
        attempt([&] { box->SetValue(mMain->mUtils->GetBoolRegistryValue(defValue, value, "", Hive::CurrentUser)); });
    };
    show(mWorkDayOnly, WorkdayOnlyValue, false);
    show(mHTMLOption, InHtmlValue, true);
    show(mDetailCheck, DetailsValue, true);
    show(mCsvCheck, CsvFileValue, true);
}

void ReportForm::Terminate()
{
    const auto attempt = Failing("Error RepForm Term", LineShape::TextColonStep);
    attempt.Say("ReportForm term");
    mMain = nullptr;
    mLog = nullptr;
}

void ReportForm::Unload()
{
    Failing("", LineShape::Silent)([&] { mForm->Unload(); });
}

void ReportForm::Command1_Click()
{
    const auto attempt = Failing("", LineShape::Silent);
    const auto from = attempt.Get([&] { return mMain->mUtils->DateSelectorGet(mFrom.year, mFrom.month, mFrom.day); });
    const auto to = attempt.Get([&] { return mMain->mUtils->DateSelectorGet(mTo.year, mTo.month, mTo.day); });
    if (attempt.Get([&] { return DaysBetween(from, to) < 0; })) {
        attempt([&] {
            mPlatform->messageBox->Show(mMain->mStrings->mReportDateInversion, { Answer::Ok }, MessageIcon::None);
        });
        return;
    }
    attempt([&] { mForm->Hide(); });
    const auto type = ChosenType(attempt);
    SaveChoices(type, attempt);
    // The report lets messages be processed, and the host may disconnect then.
    attempt([&, main = mMain] {
        main->CreateReport(
            from, to, type, mDetailCheck->Value(), mCsvCheck->Value(), mHTMLOption->Value(), mWorkDayOnly->Value());
    });
}

std::int32_t ReportForm::ChosenType(const Attempt& attempt) const
{
    if (attempt.Get([&] { return mApplicationOption->Value(); })) {
        return ReportTypes::Application;
    }
    return attempt.Get([&] { return mProjectOption->Value(); }) ? ReportTypes::Project : ReportTypes::Date;
}

void ReportForm::SaveChoices(std::int32_t type, const Attempt& attempt)
{
    const auto save = [&](const char* value, const Ref<CheckBox>& box) {
        attempt([&] { mMain->mUtils->SetBoolRegistryValue(value, box->Value(), "", Hive::CurrentUser); });
    };
    save(WorkdayOnlyValue, mWorkDayOnly);
    save(InHtmlValue, mHTMLOption);
    save(DetailsValue, mDetailCheck);
    save(CsvFileValue, mCsvCheck);
    attempt([&] { mMain->mUtils->SetRegistryValue(ReportTypeValue, std::to_string(type), "", Hive::CurrentUser); });
}

void ReportForm::Command2_Click()
{
    Failing("", LineShape::Silent)([&] { mForm->Hide(); });
}

void ReportForm::Form_QueryUnload(bool& cancel)
{
    // The lists of the date selectors are filled once, so the form is hidden, not unloaded.
    cancel = true;
    Command2_Click();
}

}
