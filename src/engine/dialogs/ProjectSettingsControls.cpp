#include "engine/dialogs/ProjectSettingsControls.h"

namespace tempodial {

namespace {

constexpr auto PrecedenceTip
    = "If an activity matches several projects, the one with the highest precedence will be used.";

FormDefinition ProjectSettingsDefinition()
{
    using enum ControlKind;
    const auto tipped = [](const char* name, ControlKind kind, const char* text, const char* tip) -> ControlDefinition {
        return { .name = name, .kind = kind, .text = text, .toolTip = tip };
    };
    return { .className = "ProjectSettingsForm",
        .title = "Project Settings",
        .rows = {
            { { "Label5", Label, "Select a project, or create a new one by entering a name." } },
            { tipped("ProjectComboBox", ComboBox, "None",
                  "Select a project from the dropdown, or create a new project by typing the name directly into the "
                  "box."),
                { "DeleteButton", Button, "&Remove from list" } },
            { { "SubjectLabel", Label,
                "Change the words or e-mail addresses that automatically match an activity with this project. For "
                "example: plan, \"annual review\", example.com" } },
            { { "Label1", Label, "Subject matches" },
                tipped("SubjectText", TextBox, "",
                    "Enter text to match against an activity's subject, application or description. For an exact "
                    "match, use quotes.") },
            { { "NotSubjectLabel", Label,
                "Change the words that exclude an activity from this project. For example: personal, private, "
                "example.org" } },
            // kept: the blank at the end of the tip.
            { { "Label4", Label, "Subject doesn't match" },
                tipped("NotSubjectText", TextBox, "",
                    "Enter text that will exclude an activity from the selected project. ") },
            { tipped("Label3", Label, "Precedence:", PrecedenceTip),
                tipped("PrecedenceCombo", ComboBox, "Medium", PrecedenceTip) },
            { { "ApplyPastCheck", CheckBox, "&Back apply project settings to all activities in past" } },
            { { "Label7", Label, "Apply " },
                tipped("DaysText", TextBox, "",
                    "For example, to back apply this project to today's activities, enter 1. To back apply to today "
                    "and yesterday, enter 2."),
                { "DaysLabel", Label, "days" } },
            { { .name = "SaveandCloseButton", .kind = Button, .text = "OK", .role = ButtonRole::Default },
                { .name = "CancelButton", .kind = Button, .text = "Cancel", .role = ButtonRole::Cancel },
                { "SaveButton", Button, "Apply" } },
        } };
}

}

ProjectSettingsControls::ProjectSettingsControls(FormFactory& forms)
    : mForm(forms.Create(ProjectSettingsDefinition()))
    , mPrecedenceCombo(mForm->Control("PrecedenceCombo").As<ComboBox>())
    , mDaysText(mForm->Control("DaysText").As<TextBox>())
    , mApplyPastCheck(mForm->Control("ApplyPastCheck").As<CheckBox>())
    , mProjectComboBox(mForm->Control("ProjectComboBox").As<ComboBox>())
    , mSubjectText(mForm->Control("SubjectText").As<TextBox>())
    , mDeleteButton(mForm->Control("DeleteButton").As<Button>())
    , mSaveandCloseButton(mForm->Control("SaveandCloseButton").As<Button>())
    , mCancelButton(mForm->Control("CancelButton").As<Button>())
    , mNotSubjectText(mForm->Control("NotSubjectText").As<TextBox>())
    , mSaveButton(mForm->Control("SaveButton").As<Button>())
{
}

}
