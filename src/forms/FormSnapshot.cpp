#include "forms/FormSnapshot.h"

#include "forms/ComboBoxModel.h"
#include "platform/controls/Button.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/Label.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/TextBox.h"

namespace tempodial {

namespace {

ControlSnapshot SnapshotOf(const Ref<Control>& control, const ControlDefinition& definition)
{
    ControlSnapshot snapshot { .name = definition.name,
        .kind = definition.kind,
        .enabled = control->Enabled(),
        .visible = control->Visible() && definition.onForm,
        .tip = definition.toolTip };
    if (const auto label = control.As<Label>()) {
        snapshot.text = label->Caption();
    } else if (const auto button = control.As<Button>()) {
        snapshot.text = button->Caption();
    } else if (const auto box = control.As<TextBox>()) {
        snapshot.text = box->Text();
    } else if (const auto combo = control.As<ComboBoxModel>()) {
        snapshot.text = combo->Text();
        snapshot.list = combo->List();
        snapshot.index = combo->ListIndex();
    } else if (const auto check = control.As<CheckBox>()) {
        snapshot.text = check->Caption();
        snapshot.checked = check->Value();
    } else if (const auto option = control.As<OptionButton>()) {
        snapshot.text = option->Caption();
        snapshot.checked = option->Value();
    } else if (const auto bar = control.As<ProgressBar>()) {
        snapshot.min = bar->Min();
        snapshot.max = bar->Max();
        snapshot.value = bar->Value();
    }
    return snapshot;
}

}

FormSnapshot SnapshotOf(FormModel& form)
{
    FormSnapshot snapshot { .number = form.Number(),
        .className = form.Definition().className,
        .title = form.Caption(),
        .visible = form.Visible() };
    for (const auto& row : form.Definition().rows) {
        for (const auto& definition : row) {
            snapshot.controls.push_back(SnapshotOf(form.Control(definition.name), definition));
        }
    }
    return snapshot;
}

}
