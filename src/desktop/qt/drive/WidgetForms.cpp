#include "desktop/qt/drive/WidgetForms.h"

#include "desktop/qt/Desk.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/drive/DeskWork.h"
#include "desktop/qt/drive/FormPointer.h"

#include <memory>
#include <utility>

namespace tempodial {

WidgetForms::WidgetForms(Desk& desk, Windows windows)
    : mDesk(desk)
    , mWindows(std::move(windows))
    , mModels(*desk.Session().Forms())
{
}

std::vector<FormSnapshot> WidgetForms::Forms()
{
    return mModels.Forms();
}

void WidgetForms::Type(const FormKey& form, const std::string& control, const std::string& text)
{
    mModels.Field(form, control);
    bool isDone = false;
    if (auto* shown = WindowOf(form)) {
        WorkAt(mDesk, [&] { isDone = FormPointer(*shown).Type(control, text); });
    }
    if (!isDone) {
        mModels.Type(form, control, text);
    }
}

void WidgetForms::Choose(const FormKey& form, const std::string& control, const EntryKey& entry)
{
    const auto position = PositionOf(mModels.Choice(form, control)->List(), control, entry);
    if (auto* shown = WindowOf(form)) {
        WorkAt(mDesk, [&] { FormPointer(*shown).Choose(control, position); });
    } else {
        mModels.Choose(form, control, entry);
    }
}

void WidgetForms::Check(const FormKey& form, const std::string& control, bool checked)
{
    mModels.Mark(form, control, checked);
    if (auto* shown = WindowOf(form)) {
        WorkAt(mDesk, [&] { FormPointer(*shown).Check(control, checked); });
    } else {
        mModels.Check(form, control, checked);
    }
}

void WidgetForms::Click(const FormKey& form, const std::string& control)
{
    mModels.Button(form, control);
    if (auto* shown = WindowOf(form)) {
        WorkAt(mDesk, [&] { FormPointer(*shown).Click(control); });
    } else {
        mModels.Click(form, control);
    }
}

bool WidgetForms::Close(const FormKey& form)
{
    const std::weak_ptr<FormModel> model = mModels.VisibleForm(form).Shared();
    auto* shown = WindowOf(form);
    if (shown == nullptr) {
        return mModels.Close(form);
    }
    WorkAt(mDesk, [&] { FormPointer(*shown).Close(); });
    const auto left = model.lock();
    return !left || !left->Visible();
}

FormWindow* WidgetForms::WindowOf(const FormKey& form) const
{
    const auto* windows = mWindows();
    if (windows == nullptr) {
        return nullptr;
    }
    const auto model = mModels.Form(form);
    if (windows->WindowOf(model) == nullptr) {
        // It may have come up during a job, since the windows last looked.
        mDesk.Show();
    }
    return windows->WindowOf(model);
}

}
