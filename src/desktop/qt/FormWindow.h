#pragma once

#include "desktop/qt/Desk.h"
#include "forms/FormModel.h"

#include <QDialog>
#include <memory>

namespace tempodial {

class EffectPane;
class FormView;

/// The window of a form. It is on the screen while its model is, and keeps no other window from being worked with.
class FormWindow final : public QDialog
{
public:
    /// Doesn't hold the form, which goes with its owner.
    FormWindow(Desk& desk, const Ref<FormModel>& form);

    FormView& View() { return *mView; }
    /// What the rules in the form would change; null beside a form that has none.
    EffectPane* Effect() { return mEffect; }

    /// Escape: clicks the button that cancels, where there is one.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Follow();
    void ShowOrHide(bool isVisible);

    Desk& mDesk;
    std::weak_ptr<FormModel> mForm;
    FormView* mView;
    EffectPane* mEffect = nullptr;
    bool mComesToFront = false;
    Subscription mChanges;
    Subscription mEvents;
};

}
