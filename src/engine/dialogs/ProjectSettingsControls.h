#pragma once

#include "base/Ref.h"
#include "platform/controls/Button.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/Form.h"
#include "platform/controls/TextBox.h"

namespace tempodial {

/// The form of the project settings with those of its controls that the dialog works.
class ProjectSettingsControls
{
public:
    Ref<Form> mForm;
    Ref<ComboBox> mPrecedenceCombo;
    Ref<TextBox> mDaysText;
    Ref<CheckBox> mApplyPastCheck;
    Ref<ComboBox> mProjectComboBox;
    Ref<TextBox> mSubjectText;
    Ref<Button> mDeleteButton;
    Ref<Button> mSaveandCloseButton;
    Ref<Button> mCancelButton;
    Ref<TextBox> mNotSubjectText;
    Ref<Button> mSaveButton;

    ProjectSettingsControls() = default;
    /// A new form, not yet shown.
    explicit ProjectSettingsControls(FormFactory& forms);
};

}
