#include "engine/dialogs/ProjectSettingsForm.h"

#include "base/Number.h"
#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/dialogs/SetProjectForm.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/TempodialInspector.h"

#include <utility>

namespace tempodial {

namespace {

/// A text as the number of days it says; one that isn't a whole number fails (13).
std::int32_t ToDays(const std::string& text)
{
    if (text.find_first_of(".,") != std::string::npos) {
        throw Failure(Error::TypeMismatch);
    }
    return ToInt32(text);
}

}

ProjectSettingsForm::ProjectSettingsForm(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void ProjectSettingsForm::Initialise(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& logObj)
{
    const auto attempt = Failing("", LineShape::Silent);
    mMain = main;
    mOwningInspector = nullptr;
    mTraceInfo = "ProjSettingsForm";
    attempt([&] { MakeForm(); });
    attempt([&] { mControls.mDaysText->SetText(mMain->mConfig->mApplyBackDaysText); });
    mLog = logObj;
    attempt.Say("PSF Init");
}

void ProjectSettingsForm::MakeForm()
{
    mControls = ProjectSettingsControls(*mPlatform->forms);
    const auto call
        = [self = shared_from_this()](void (ProjectSettingsForm::*handler)()) { return GuardedHandler(self, handler); };
    using Self = ProjectSettingsForm;
    mEvents.push_back(mControls.mSubjectText->Subscribe({ .Change = call(&Self::SubjectText_Change) }));
    mEvents.push_back(mControls.mNotSubjectText->Subscribe({ .Change = call(&Self::NotSubjectText_Change) }));
    mEvents.push_back(mControls.mProjectComboBox->Subscribe(
        { .Change = call(&Self::ProjectComboBox_Change), .Click = call(&Self::ProjectComboBox_Click) }));
    mEvents.push_back(
        mControls.mPrecedenceCombo->Subscribe({ .Change = nullptr, .Click = call(&Self::PrecedenceCombo_Click) }));
    mEvents.push_back(mControls.mApplyPastCheck->Subscribe({ .Click = call(&Self::ApplyPastCheck_Click) }));
    mEvents.push_back(mControls.mDaysText->Subscribe({ .Change = call(&Self::DaysText_Change) }));
    mEvents.push_back(mControls.mSaveandCloseButton->Subscribe({ .Click = call(&Self::SaveandCloseButton_Click) }));
    mEvents.push_back(mControls.mSaveButton->Subscribe({ .Click = call(&Self::SaveButton_Click) }));
    mEvents.push_back(mControls.mCancelButton->Subscribe({ .Click = call(&Self::CancelButton_Click) }));
    mEvents.push_back(mControls.mDeleteButton->Subscribe({ .Click = call(&Self::DeleteButton_Click) }));
    mEvents.push_back(
        mControls.mForm->Subscribe({ .QueryClose = GuardedHandler(shared_from_this(), &Self::Form_QueryUnload) }));
}

void ProjectSettingsForm::Terminate()
{
    Failing("", LineShape::Silent).Say("PSF term");
    mMain = nullptr;
    mOwningInspector = nullptr;
    mLog = nullptr;
}

void ProjectSettingsForm::ShowMe(const std::string& project, const Ref<TempodialInspector>& owningInsp)
{
    // A question lets events in, and the host may disconnect then.
    const auto self = shared_from_this();
    const auto attempt = Failing("Error ShowMe", LineShape::TextColonStep);
    attempt.Say("PSF ShowMe: " + project);
    attempt([&] { mControls.mForm->Show(); });
    if (!PreparedForProjectChangeWithoutInput()) {
        return;
    }
    mOwningInspector = owningInsp;
    const auto error = attempt.Get([&] { return mMain->ValidateProject(project); });
    const bool showFirst = !error.empty() || !mOwningInspector;
    if (showFirst) {
        attempt.Say("show first project in list");
    }
    RefreshLists(project, showFirst);
    attempt([&] { InitFormFields(mControls.mProjectComboBox->Text()); });
}

void ProjectSettingsForm::OpenSetProjectForm()
{
    const auto attempt = Failing("", LineShape::Silent);
    const auto form = MakeRef<SetProjectForm>(mPlatform);
    attempt([&] { form->Initialise(mMain, mLog); });
    attempt([&] { form->ShowMe(mControls.mProjectComboBox->Text()); });
}

void ProjectSettingsForm::Unload()
{
    Failing("", LineShape::Silent)([&] { mControls.mForm->Unload(); });
}

void ProjectSettingsForm::RefreshLists(const std::string& project, bool showFirst)
{
    const auto attempt = Failing("Error refresh lists ", LineShape::TextColonStep);
    attempt.Say("PSF Lists");
    std::vector<std::string> projects;
    attempt([&] { mMain->GetProjects(projects, true, false, false); });
    attempt([&] { mControls.mProjectComboBox->Clear(); });
    mStage = "add iteration";
    for (const auto& name : projects) {
        attempt([&] { mControls.mProjectComboBox->AddItem(name); });
    }
    attempt([&] { mControls.mProjectComboBox->SetText(showFirst ? projects.at(0) : project); });
    if (mOwningInspector) {
        attempt([&, inspector = mOwningInspector] { inspector->UpdateProjectDropdown(); });
    }
    SetProjectChanged(false);
}

void ProjectSettingsForm::InitFormFields(const std::string& project)
{
    const auto attempt = Failing("Error InitFormFields ", LineShape::TextColonStep);
    attempt.Say("set for " + project);
    attempt([&] { mControls.mApplyPastCheck->SetValue(false); });
    attempt([&] { mControls.mDaysText->SetText(mMain->mConfig->mApplyBackDaysText); });
    SetApplyFields();
    attempt([&] { mControls.mProjectComboBox->SetText(project); });
    mCurrentProject = project;
    mTypedProject = project;
    SetRules(project);
    SetRulesChanged(false);
    SetProjectChanged(false);
    attempt([&] { mControls.mPrecedenceCombo->Clear(); });
    attempt([&] { mControls.mPrecedenceCombo->AddItem(mMain->mStrings->mPrecedenceHigh); });
    attempt([&] { mControls.mPrecedenceCombo->AddItem(mMain->mStrings->mPrecedenceMedium); });
    attempt([&] { mControls.mPrecedenceCombo->AddItem(mMain->mStrings->mPrecedenceLow); });
    const auto precedence = attempt.Get([&] { return mMain->GetProjectPrecedence(project); });
    attempt([&] {
        constexpr std::int32_t Low = 2;
        mControls.mPrecedenceCombo->SetListIndex(precedence == "1" ? 0 : precedence == "2" ? 1 : Low);
    });
    mPrecedenceChanged = false;
    // The selection counts as a click, which lights the button.
    ShowSaveButton(attempt);
    attempt.Say([&] { return "all set for " + mControls.mProjectComboBox->Text(); });
}

void ProjectSettingsForm::SetRules(const std::string& project)
{
    const auto attempt = Failing("Error Sset rules", LineShape::TextColonStep);
    attempt.Say("PSF SetRules");
    attempt([&] { mControls.mSubjectText->SetText(mMain->GetProjectSubRule(project)); });
    attempt([&] { mControls.mNotSubjectText->SetText(mMain->GetProjectNotSubRule(project)); });
    SetRulesChanged(false);
}

void ProjectSettingsForm::SetApplyFields()
{
    const auto attempt = Failing("Error Sset apply fields", LineShape::TextColonStep);
    attempt.Say("PSF Set Apply");
    attempt([&] { mControls.mDaysText->SetEnabled(mControls.mApplyPastCheck->Value()); });
}

void ProjectSettingsForm::SetRulesChanged(bool value)
{
    mRulesChanged = value;
    ShowSaveButton(Failing("Error Set RCF", LineShape::TextColonStep));
}

void ProjectSettingsForm::SetProjectChanged(bool value)
{
    mProjectChanged = value;
    ShowSaveButton(Failing("Error SetPCF ", LineShape::TextColonStep));
}

void ProjectSettingsForm::ShowSaveButton(const Attempt& attempt)
{
    // kept: precedence, days and tick light the button themselves, and it goes out here all the same.
    attempt([&] { mControls.mSaveButton->SetEnabled(mRulesChanged || mProjectChanged); });
}

bool ProjectSettingsForm::PreparedForProjectChangeWithoutInput()
{
    const auto attempt = Failing("Error prepforchange", LineShape::TextColonStep);
    bool result = true;
    attempt.Say("PSF PreparedForProjectChangeWithoutInput");
    attempt.Say("click/change to new project");
    const auto name = mProjectChanged ? mTypedProject : mCurrentProject;
    const auto stay = [&] {
        attempt([&] { mControls.mProjectComboBox->SetText(name); });
        result = false;
    };
    if (mProjectChanged && mCurrentProject != mTypedProject) {
        attempt.Say("click/change not allowed");
        ShowMessage(attempt.Get([&] { return mMain->mStrings->mErrorSaveFirst; }), attempt);
        stay();
    } else if (mRulesChanged || mPrecedenceChanged) {
        auto answer = Answer::No;
        attempt([&] {
            answer = mPlatform->messageBox->Show("Do you want to save the changes to " + name + "?",
                { Answer::Yes, Answer::No, Answer::Cancel }, MessageIcon::Question);
        });
        if (answer == Answer::Cancel) {
            stay();
        } else if (answer == Answer::Yes) {
            const auto error = attempt.Get([&] { return Save(name, false, true); });
            if (!error.empty()) {
                stay();
                ShowMessage(error, attempt);
            }
        }
    }
    attempt.Say([&] {
        return "prepared complete for " + mControls.mProjectComboBox->Text() + "prepared? "
            + std::string(BooleanText(result));
    });
    return result;
}

std::string ProjectSettingsForm::Save(const std::string& project, bool applyPast, bool noRefresh)
{
    const auto attempt = Failing("Error Save ", LineShape::TextColonStep);
    attempt.Say("PSF Save");
    const auto chosen = attempt.Get([&] { return mControls.mPrecedenceCombo->Text(); });
    const auto is = [&](std::string TempodialStrings::*name) {
        return attempt.Get([&] { return chosen == (*mMain->mStrings).*name; });
    };
    std::string precedence;
    if (is(&TempodialStrings::mPrecedenceHigh)) {
        precedence = "1";
    } else if (is(&TempodialStrings::mPrecedenceMedium)) {
        precedence = "2";
    } else if (is(&TempodialStrings::mPrecedenceLow)) {
        precedence = "3";
    } else {
        // kept: the caller shows it once more.
        auto error = attempt.Get([&] { return mMain->mStrings->mErrorBadPrecedence; });
        ShowMessage(error, attempt);
        return error;
    }
    auto error = attempt.Get([&] {
        return mMain->UpdateorAddProject(
            project, mControls.mSubjectText->Text(), mControls.mNotSubjectText->Text(), "", precedence, false);
    });
    if (!error.empty()) {
        return error;
    }
    if (!noRefresh) {
        attempt([&] { RefreshLists(mControls.mProjectComboBox->Text(), false); });
    }
    if (applyPast && attempt.Get([&] { return mControls.mApplyPastCheck->Value(); })) {
        ApplyToPast(project, attempt);
    }
    attempt.Say([&] { return "saved on current: " + mControls.mProjectComboBox->Text(); });
    return {};
}

void ProjectSettingsForm::ApplyToPast(const std::string& project, const Attempt& attempt)
{
    // The job lets messages be processed, and the host may disconnect then.
    attempt([&, main = mMain] { main->ApplyProject(project, ToDays(mControls.mDaysText->Text())); });
    attempt([&] { mControls.mApplyPastCheck->SetValue(false); });
}

std::string ProjectSettingsForm::SaveChanges(const std::string& text, const Attempt& attempt)
{
    std::string error;
    if (mProjectChanged || mRulesChanged || mPrecedenceChanged) {
        attempt([&] { error = Save(text, true, false); });
        if (error.empty()) {
            ForgetChanges();
        } else {
            ShowMessage(error, attempt);
        }
    } else if (attempt.Get([&] { return mControls.mApplyPastCheck->Value(); })) {
        ApplyToPast(text, attempt);
    }
    return error;
}

void ProjectSettingsForm::ForgetChanges()
{
    SetRulesChanged(false);
    SetProjectChanged(false);
    mPrecedenceChanged = false;
}

void ProjectSettingsForm::ShowMessage(const std::string& text, const Attempt& attempt)
{
    attempt([&] { mPlatform->messageBox->Show(text, { Answer::Ok }, MessageIcon::None); });
}

void ProjectSettingsForm::SubjectText_Change()
{
    SetRulesChanged(true);
}

void ProjectSettingsForm::NotSubjectText_Change()
{
    SetRulesChanged(true);
}

void ProjectSettingsForm::ProjectComboBox_Change()
{
    const auto attempt = Failing("Error Change ", LineShape::TextColonStep);
    SetProjectChanged(true);
    attempt([&] { mTypedProject = mControls.mProjectComboBox->Text(); });
}

void ProjectSettingsForm::ProjectComboBox_Click()
{
    const auto attempt = Failing("Error Click", LineShape::TextColonStep);
    if (PreparedForProjectChangeWithoutInput()) {
        attempt([&] { InitFormFields(mControls.mProjectComboBox->Text()); });
    }
    attempt([&] { mControls.mForm->Refresh(); });
}

void ProjectSettingsForm::PrecedenceCombo_Click()
{
    const auto attempt = Failing("", LineShape::Silent);
    attempt.Say("precedence changed click");
    mPrecedenceChanged = true;
    attempt([&] { mControls.mSaveButton->SetEnabled(true); });
}

void ProjectSettingsForm::ApplyPastCheck_Click()
{
    const auto attempt = Failing("Error applypast", LineShape::TextColonStep);
    SetApplyFields();
    attempt([&] { mControls.mSaveButton->SetEnabled(true); });
}

void ProjectSettingsForm::DaysText_Change()
{
    Failing("", LineShape::Silent)([&] { mControls.mSaveButton->SetEnabled(true); });
}

void ProjectSettingsForm::SaveandCloseButton_Click()
{
    const auto attempt = Failing("Error S&C button ", LineShape::TextColonStep);
    const auto text = attempt.Get([&] { return mControls.mProjectComboBox->Text(); });
    attempt.Say("save and close clicked for " + text);
    if (SaveChanges(text, attempt).empty()) {
        mOwningInspector = nullptr;
        attempt([&] { mControls.mForm->Hide(); });
    }
}

void ProjectSettingsForm::SaveButton_Click()
{
    const auto attempt = Failing("Save button ", LineShape::TextColonStep);
    const auto text = attempt.Get([&] { return mControls.mProjectComboBox->Text(); });
    attempt.Say("save clicked for " + text);
    if (SaveChanges(text, attempt).empty()) {
        attempt([&] { InitFormFields(mControls.mProjectComboBox->Text()); });
    }
}

void ProjectSettingsForm::CancelButton_Click()
{
    const auto attempt = Failing("Error Cancel ", LineShape::TextColonStep);
    attempt.Say("PSF Cancel");
    ForgetChanges();
    mOwningInspector = nullptr;
    attempt([&] { mControls.mForm->Hide(); });
}

void ProjectSettingsForm::DeleteButton_Click()
{
    const auto attempt = Failing("Error Delete", LineShape::TextColonStep);
    attempt.Say("PSF Del");
    auto answer = Answer::No;
    attempt([&] {
        answer = mPlatform->messageBox->Show("Are you sure you want to remove this project from the list?",
            { Answer::Yes, Answer::No }, MessageIcon::Exclamation);
    });
    if (answer != Answer::Yes) {
        return;
    }
    const auto project = attempt.Get([&] { return mControls.mProjectComboBox->Text(); });
    attempt([&] { mMain->DeleteProject(project); });
    RefreshLists(project, true);
    attempt([&] { InitFormFields(mControls.mProjectComboBox->Text()); });
}

void ProjectSettingsForm::Form_QueryUnload(bool& cancel)
{
    const auto attempt = Failing("Error QueryUnload ", LineShape::TextColonStep);
    attempt.Say("PSF QueryUnload");
    if (!PreparedForProjectChangeWithoutInput()) {
        cancel = true;
        return;
    }
    if (attempt.Get([&] { return mControls.mApplyPastCheck->Value(); })) {
        auto answer = Answer::No;
        attempt([&] {
            answer = mPlatform->messageBox->Show(
                "Apply to past activities?", { Answer::Yes, Answer::No }, MessageIcon::None);
        });
        if (answer == Answer::Yes) {
            ApplyToPast(attempt.Get([&] { return mControls.mProjectComboBox->Text(); }), attempt);
        } else {
            attempt([&] { mControls.mApplyPastCheck->SetValue(false); });
        }
    }
    ForgetChanges();
    mOwningInspector = nullptr;
}

}
