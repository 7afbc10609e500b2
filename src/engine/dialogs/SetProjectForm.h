#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "engine/foundation/TracedObject.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Form.h"
#include "platform/controls/OptionButton.h"

#include <memory>
#include <string>

namespace tempodial {

class TempodialMain;

/// The dialog in which a person sets a project on the activities selected, or on those of a stretch of a day. It is
/// made for each use, holds itself while it is shown, and ends itself. None of its routines passes a failure on while
/// there is a log.
class SetProjectForm final : public TracedObject, public std::enable_shared_from_this<SetProjectForm>
{
public:
    explicit SetProjectForm(Ref<const Platform> platform);
    SetProjectForm(const SetProjectForm&) = delete;
    SetProjectForm& operator=(const SetProjectForm&) = delete;

    /// Stores the references, makes the form and fills the date selector and the lists of times.
    void Initialise(const Ref<TempodialMain>& main, const Ref<TempodialDebugLog>& applog);
    /// Shows the form without blocking, with that project or, when it is empty, none chosen.
    void ShowMe(const std::string& project);
    /// Lets its references go.
    void Terminate();

private:
    void MakeForm();
    void EnableTimes(bool enabled, const Attempt& attempt);
    /// Sets the project as the form stands.
    void SetProject(const std::string& project, const Attempt& attempt);
    /// The day with the time of a box, by its list or else its text; a text that is no time leaves midnight.
    Date Moment(Date day, const Ref<ComboBox>& box, const Attempt& attempt) const;
    void SpecifiedCheck_Click();
    void Command1_Click();
    void Command2_Click();
    void Form_QueryUnload(bool& cancel);
    /// Ends the form.
    void Close();

    Ref<TempodialMain> mMain;
    Ref<Form> mForm;
    Ref<ComboBox> mProjectComboBox;
    Ref<OptionButton> mSelectedCheck;
    Ref<OptionButton> mSpecifiedCheck;
    Ref<ComboBox> mYearCombo;
    Ref<ComboBox> mMonthCombo;
    Ref<ComboBox> mDayCombo;
    Ref<ComboBox> mFromTimeCombo;
    Ref<ComboBox> mToTimeCombo;
    Ref<CheckBox> mOverwriteCheck;
    Subscription mSpecifiedCheckEvents;
    Subscription mCommand1Events;
    Subscription mCommand2Events;
    Subscription mFormEvents;
    /// Itself while it is shown.
    Ref<SetProjectForm> mShown;
};

}
