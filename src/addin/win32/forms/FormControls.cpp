#include "addin/win32/forms/FormControls.h"

#include "forms/FormRules.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace tempodial {

namespace {

/// The number of the first control that has none by its role.
constexpr WORD FirstNumber = 1000;

bool HasCaption(ControlKind kind)
{
    return kind != ControlKind::TextBox && kind != ControlKind::ComboBox && kind != ControlKind::ProgressBar;
}

std::vector<std::string> CaptionsOf(const FormSnapshot& seen)
{
    std::vector<std::string> captions;
    for (const auto& control : seen.controls) {
        if (HasCaption(control.kind)) {
            captions.push_back(control.text);
        }
    }
    return captions;
}

}

FormControls::FormControls(HWND form, const FormDefinition& definition, AccessibleNames names)
    : mToolTips(form)
    , mNames(std::move(names))
{
    MakeAll(form, definition);
}

FormControls::~FormControls()
{
    for (const auto& control : mControls) {
        mNames.Forget(control->Window());
    }
}

void FormControls::SetFont(HFONT font) const
{
    for (const auto& control : mControls) {
        SendMessageW(control->Window(), WM_SETFONT, std::bit_cast<WPARAM>(font), TRUE);
    }
}

bool FormControls::Draw(const FormSnapshot& seen)
{
    for (std::size_t position = 0; position < mControls.size(); ++position) {
        mControls[position]->Draw(seen.controls.at(position));
    }
    DrawTabStops(seen);
    auto captions = CaptionsOf(seen);
    const auto differ = captions != mCaptions;
    mCaptions = std::move(captions);
    return differ;
}

void FormControls::Move(const FormLayout& layout) const
{
    for (std::size_t position = 0; position < mControls.size(); ++position) {
        mControls[position]->Move(layout.Places().at(position));
    }
    mToolTips.SetWidth(layout.Size().width);
}

bool FormControls::Tell(FormModel& form, WORD number, WORD code) const
{
    const auto found = std::find_if(
        mControls.begin(), mControls.end(), [number](const auto& control) { return control->Number() == number; });
    if (found == mControls.end()) {
        return false;
    }
    (*found)->Tell(code, form.Control((*found)->Name()));
    return true;
}

void FormControls::DrawTabStops(const FormSnapshot& seen) const
{
    const auto& controls = seen.controls;
    const auto isChosen
        = [](const ControlSnapshot& control) { return control.kind == ControlKind::OptionButton && control.checked; };
    const auto someIsChosen = std::any_of(controls.begin(), controls.end(), isChosen);
    for (std::size_t position = 0; position < mControls.size(); ++position) {
        if (controls[position].kind == ControlKind::OptionButton) {
            mControls[position]->SetTabStop(isChosen(controls[position]) || !someIsChosen);
        }
    }
}

void FormControls::MakeAll(HWND form, const FormDefinition& definition)
{
    const auto* const usual = ButtonFor(definition, ButtonRole::Default);
    const auto* const cancelling = ButtonFor(definition, ButtonRole::Cancel);
    const ControlDefinition* former = nullptr;
    WORD next = FirstNumber;
    for (const auto& row : definition.rows) {
        for (const auto& control : row) {
            const auto isOption = control.kind == ControlKind::OptionButton;
            const auto goesOn = isOption && former != nullptr && former->kind == ControlKind::OptionButton;
            const WORD number = &control == usual ? IDOK : &control == cancelling ? IDCANCEL : next++;
            mControls.push_back(
                MakeControlWindow(form, control, number, !goesOn && (isOption || &control == &row.front())));
            TellOf(mControls.back()->Window(), definition, control, former);
            former = &control;
        }
    }
    if (usual != nullptr) {
        SendMessageW(form, DM_SETDEFID, IDOK, 0);
    }
}

void FormControls::TellOf(
    HWND window, const FormDefinition& form, const ControlDefinition& control, const ControlDefinition* former)
{
    const auto* const label = HasCaption(control.kind) ? nullptr : LabelOf(form, control.name);
    // The system itself goes by a label directly in front.
    if (label != nullptr && label != former) {
        mNames.Name(window, WithoutKey(label->text));
    }
    if (!control.toolTip.empty()) {
        mToolTips.Add(window, control.toolTip);
        mNames.Describe(window, control.toolTip);
    }
}

}
