#include "forms/FormModel.h"

#include "base/Failure.h"
#include "forms/ButtonModel.h"
#include "forms/CheckBoxModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/LabelModel.h"
#include "forms/OptionButtonModel.h"
#include "forms/ProgressBarModel.h"
#include "forms/TextBoxModel.h"

#include <utility>

namespace tempodial {

namespace {

Ref<Control> MakeControl(const std::shared_ptr<FormFrame>& frame, const ControlDefinition& definition)
{
    switch (definition.kind) {
    case ControlKind::Label:
        return MakeRef<LabelModel>(frame, definition);
    case ControlKind::Button:
        return MakeRef<ButtonModel>(frame, definition);
    case ControlKind::TextBox:
        return MakeRef<TextBoxModel>(frame, definition);
    case ControlKind::ComboBox:
        return MakeRef<ComboBoxModel>(frame, definition);
    case ControlKind::CheckBox:
        return MakeRef<CheckBoxModel>(frame, definition);
    case ControlKind::OptionButton:
        return MakeRef<OptionButtonModel>(frame, definition);
    case ControlKind::ProgressBar:
        return MakeRef<ProgressBarModel>(frame, definition);
    }
    throw Failure(Error::InvalidCall);
}

}

FormModel::FormModel(FormDefinition definition, std::int32_t number)
    : mDefinition(std::move(definition))
    , mNumber(number)
    , mCaption(mDefinition.title)
{
    for (const auto& row : mDefinition.rows) {
        for (const auto& control : row) {
            mControls.AddKeyed(MakeControl(mFrame, control), control.name);
        }
    }
}

FormModel::~FormModel()
{
    mFrame->End();
}

void FormModel::SetCaption(const std::string& caption)
{
    mCaption = caption;
    mFrame->Changed();
}

void FormModel::Show()
{
    if (mFrame->Visible()) {
        BringToFront();
    }
    mFrame->SetVisible(true);
}

void FormModel::Hide()
{
    mFrame->SetVisible(false);
}

void FormModel::Unload()
{
    mCaption = mDefinition.title;
    for (std::int32_t position = 1; position <= mControls.Count(); ++position) {
        mControls.Item(position).As<ControlState>()->Reset();
    }
    mFrame->SetVisible(false);
}

void FormModel::BringToFront()
{
    mFrame->BringToFront();
}

void FormModel::Refresh()
{
    mFrame->Refresh();
}

bool FormModel::CloseByFrame()
{
    if (!Visible()) {
        throw Failure(Error::InvalidCall);
    }
    const auto held = shared_from_this();
    bool cancel = false;
    mEvents.Raise(&FormEvents::QueryClose, cancel);
    if (!cancel) {
        Unload();
    }
    return !Visible();
}

void FormModel::CloseForGood()
{
    const auto held = shared_from_this();
    bool cancel = false;
    mEvents.Raise(&FormEvents::QueryClose, cancel);
    Unload();
}

}
