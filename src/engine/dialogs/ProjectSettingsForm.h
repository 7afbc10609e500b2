#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "engine/dialogs/ProjectSettingsControls.h"
#include "engine/foundation/TracedObject.h"
#include "platform/controls/MessageBox.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

class TempodialInspector;
class TempodialMain;

/// The dialog in which a person keeps the projects with their rules, one project at a time. It is hidden and shown
/// again. None of its routines passes a failure on while there is a log.
class ProjectSettingsForm final : public TracedObject, public std::enable_shared_from_this<ProjectSettingsForm>
{
public:
    explicit ProjectSettingsForm(Ref<const Platform> platform);
    ProjectSettingsForm(const ProjectSettingsForm&) = delete;
    ProjectSettingsForm& operator=(const ProjectSettingsForm&) = delete;

    /// Stores the references and makes the form.
    void Initialise(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& logObj);
    /// Lets its references go.
    void Terminate();
    /// Shows the form without blocking, with that project when it is a valid one and an activity window, which may be
    /// nothing, asked for it, else with the first of the list. What is on show stays when the user won't leave it.
    void ShowMe(const std::string& project, const Ref<TempodialInspector>& owningInsp);
    /// Opens the set-project dialog for the project on show. It stands ready: no control calls it.
    void OpenSetProjectForm();
    /// Takes the form off the screen for good.
    void Unload();

private:
    void MakeForm();
    /// Saves the project on show; the result is a message for the user, empty when it went well.
    std::string Save(const std::string& project, bool applyPast, bool noRefresh);
    /// Applies the project to past activities and clears the tick.
    void ApplyToPast(const std::string& project, const Attempt& attempt);
    /// What the buttons for saving do alike; the result is a message for the user, who has seen it.
    std::string SaveChanges(const std::string& text, const Attempt& attempt);
    /// True when the form may leave the project on show.
    bool PreparedForProjectChangeWithoutInput();
    void SetRules(const std::string& project);
    void RefreshLists(const std::string& project, bool showFirst);
    void SetApplyFields();
    void SetRulesChanged(bool value);
    void SetProjectChanged(bool value);
    void ShowSaveButton(const Attempt& attempt);
    void InitFormFields(const std::string& project);
    /// Forgets the edit and its activity window.
    void ForgetChanges();
    void ShowMessage(const std::string& text, const Attempt& attempt);

    void SubjectText_Change();
    void NotSubjectText_Change();
    void ProjectComboBox_Change();
    void ProjectComboBox_Click();
    void PrecedenceCombo_Click();
    void ApplyPastCheck_Click();
    void DaysText_Change();
    void SaveandCloseButton_Click();
    void SaveButton_Click();
    void CancelButton_Click();
    void DeleteButton_Click();
    void Form_QueryUnload(bool& cancel);

    Ref<TempodialMain> mMain;
    Ref<TempodialInspector> mOwningInspector;
    /// A rule text was edited.
    bool mRulesChanged = false;
    /// The text of the project's box was edited.
    bool mProjectChanged = false;
    /// The precedence was clicked.
    bool mPrecedenceChanged = false;
    /// The project whose values the form shows.
    std::string mCurrentProject;
    /// The text that is now in the project's box.
    std::string mTypedProject;
    ProjectSettingsControls mControls;
    std::vector<Subscription> mEvents;
};

}
