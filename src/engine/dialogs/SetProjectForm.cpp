#include "engine/dialogs/SetProjectForm.h"

#include "engine/core/TempodialMain.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "platform/controls/Button.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

constexpr std::int32_t TimeStep = 30; ///< Minutes between two entries of a list of times.
constexpr std::int32_t TimeCount = 48;

FormDefinition SetProjectDefinition()
{
    using enum ControlKind;
    return { .className = "SetProjectForm",
        .title = "Set Project For Selected Activities",
        .rows = {
            { { "Label1", Label, "Apply " } },
            { { "Label7", Label, "Project:" },
                { .name = "ProjectComboBox",
                    .kind = ComboBox,
                    .text = "",
                    .toolTip = "Select a project from the dropdown, or create a new project by typing the name "
                               "directly into the box." } },
            { { "Label2", Label, "Apply this project to:" } },
            { { "SelectedCheck", OptionButton,
                "&Selected activities  (to select activities, hold down CTRL and click on them)" } },
            { { "SpecifiedCheck", OptionButton, "&Activities at these times:" } },
            { { "Label5", Label, "&Day:" }, { "YearCombo", ComboBox, "" }, { "MonthCombo", ComboBox, "" },
                { "DayCombo", ComboBox, "" } },
            { { "Label4", Label, "&Between:" }, { "FromTimeCombo", ComboBox, "" }, { "Label3", Label, "and" },
                { "ToTimeCombo", ComboBox, "" } },
            { { "Label6", Label, "Options" } },
            { { "OverwriteCheck", CheckBox, "&Overwrite any existing project " } },
            { { .name = "Command1", .kind = Button, .text = "OK", .role = ButtonRole::Default },
                { .name = "Command2", .kind = Button, .text = "Cancel", .role = ButtonRole::Cancel } },
        } };
}

Date TimeAt(std::int32_t index)
{
    return Date().AddMinutes(static_cast<std::int64_t>(index) * TimeStep);
}

}

SetProjectForm::SetProjectForm(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void SetProjectForm::Initialise(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& applog)
{
    const auto attempt = Failing("Error SetProjectForm Init", LineShape::TextColonStep);
    mTraceInfo = "SetProjectForm";
    mMain = main;
    mLog = applog;
    attempt.Say("SetProjectForm Init");
    attempt([&] { MakeForm(); });
    attempt([&] { mMain->mUtils->DateSelectorInit(mYearCombo, mMonthCombo, mDayCombo); });
    for (std::int32_t index = 0; index < TimeCount; ++index) {
        attempt([&] { mFromTimeCombo->AddItem(mPlatform->formats->LongTime(TimeAt(index))); });
        attempt([&] { mToTimeCombo->AddItem(mPlatform->formats->LongTime(TimeAt(index))); });
    }
}

void SetProjectForm::MakeForm()
{
    mForm = mPlatform->forms->Create(SetProjectDefinition());
    mProjectComboBox = mForm->Control("ProjectComboBox").As<ComboBox>();
    mSelectedCheck = mForm->Control("SelectedCheck").As<OptionButton>();
    mSpecifiedCheck = mForm->Control("SpecifiedCheck").As<OptionButton>();
    mYearCombo = mForm->Control("YearCombo").As<ComboBox>();
    mMonthCombo = mForm->Control("MonthCombo").As<ComboBox>();
    mDayCombo = mForm->Control("DayCombo").As<ComboBox>();
    mFromTimeCombo = mForm->Control("FromTimeCombo").As<ComboBox>();
    mToTimeCombo = mForm->Control("ToTimeCombo").As<ComboBox>();
    mOverwriteCheck = mForm->Control("OverwriteCheck").As<CheckBox>();
    const auto self = shared_from_this();
    mSpecifiedCheckEvents
        = mSpecifiedCheck->Subscribe({ .Click = GuardedHandler(self, &SetProjectForm::SpecifiedCheck_Click) });
    mCommand1Events = mForm->Control("Command1")
                          .As<Button>()
                          ->Subscribe({ .Click = GuardedHandler(self, &SetProjectForm::Command1_Click) });
    mCommand2Events = mForm->Control("Command2")
                          .As<Button>()
                          ->Subscribe({ .Click = GuardedHandler(self, &SetProjectForm::Command2_Click) });
    mFormEvents = mForm->Subscribe({ .QueryClose = GuardedHandler(self, &SetProjectForm::Form_QueryUnload) });
}

void SetProjectForm::ShowMe(const std::string& project)
{
    const auto attempt = Failing("Error ShowMe", LineShape::TextColonStep);
    attempt.Say("SetProjectForm ShowMe ");
    std::vector<std::string> projects;
    attempt([&] { mMain->GetProjects(projects, false, false, false); });
    attempt([&] { mProjectComboBox->Clear(); });
    for (const auto& name : projects) {
        attempt([&] { mProjectComboBox->AddItem(name); });
    }
    attempt([&] { mProjectComboBox->AddItem(mMain->mStrings->mNoProject); });
    attempt([&] { mProjectComboBox->SetText(project.empty() ? mMain->mStrings->mSelectAProject : project); });
    attempt([&] { mMain->mUtils->DateSelectorToday(mYearCombo, mMonthCombo, mDayCombo); });
    attempt([&] { mFromTimeCombo->SetText(mPlatform->formats->LongTime(TimeAt(0))); });
    attempt([&] { mToTimeCombo->SetText(mPlatform->formats->LongTime(TimeAt(TimeCount - 1))); });
    attempt([&] { mSelectedCheck->SetValue(true); });
    EnableTimes(false, attempt);
    if (attempt([&] { mForm->Show(); })) {
        mShown = shared_from_this();
    }
}

void SetProjectForm::Terminate()
{
    const auto attempt = Failing("Error RepForm Term", LineShape::TextColonStep);
    // kept: the line of the report dialog.
    attempt.Say("ReportForm term");
    mMain = nullptr;
    mLog = nullptr;
}

void SetProjectForm::EnableTimes(bool enabled, const Attempt& attempt)
{
    for (const auto& box : { mDayCombo, mMonthCombo, mYearCombo, mFromTimeCombo, mToTimeCombo }) {
        attempt([&] { box->SetEnabled(enabled); });
    }
}

void SetProjectForm::SpecifiedCheck_Click()
{
    // kept: choosing the other button leaves the boxes enabled.
    const auto attempt = Failing("", LineShape::Silent);
    EnableTimes(attempt.Get([&] { return mSpecifiedCheck->Value(); }), attempt);
}

void SetProjectForm::Command1_Click()
{
    const auto attempt = Failing("Error setting ", LineShape::TextColonStep);
    mStage = "check text";
    attempt.Say("Set project");
    const auto project = attempt.Get([&] { return mProjectComboBox->Text(); });
    if (!attempt.Get([&] { return project == mMain->mStrings->mSelectAProject; })) {
        SetProject(project, attempt);
    }
    Close();
}

void SetProjectForm::SetProject(const std::string& project, const Attempt& attempt)
{
    const auto selected = attempt.Get([&] { return mSelectedCheck->Value(); });
    const auto range = attempt.Get([&] { return mSpecifiedCheck->Value(); });
    Date from;
    Date to;
    if (range) {
        mStage = "specified";
        const auto day
            = attempt.Get([&] { return mMain->mUtils->DateSelectorGet(mYearCombo, mMonthCombo, mDayCombo); });
        from = Moment(day, mFromTimeCombo, attempt);
        to = Moment(day, mToTimeCombo, attempt);
    }
    attempt.Say([&] {
        return "Set project on date range [" + mPlatform->formats->General(from) + ", "
            + mPlatform->formats->General(to) + ")";
    });
    // The job lets messages be processed, in which the person may end this form.
    attempt(
        [&, main = mMain] { main->SetProjectForItems(project, selected, range, from, to, mOverwriteCheck->Value()); });
}

Date SetProjectForm::Moment(Date day, const Ref<ComboBox>& box, const Attempt& attempt) const
{
    constexpr std::int64_t SecondsPerMinute = 60;
    Date time;
    attempt([&] {
        const auto index = box->ListIndex();
        time = index >= 0 ? TimeAt(index) : mPlatform->formats->Parse(box->Text());
    });
    return day.AddMinutes(time.SecondOfDay() / SecondsPerMinute);
}

void SetProjectForm::Command2_Click()
{
    Close();
}

void SetProjectForm::Form_QueryUnload(bool&)
{
    Close();
}

void SetProjectForm::Close()
{
    const auto shown = std::exchange(mShown, nullptr);
    Failing("", LineShape::Silent)([&] { mForm->Hide(); });
    Terminate();
}

}
