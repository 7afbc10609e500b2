#include "desktop/qt/FormWindow.h"

#include "desktop/RuleForm.h"
#include "desktop/qt/EffectPane.h"
#include "desktop/qt/FormView.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/WindowRoom.h"
#include "forms/FormRules.h"

#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QWindow>

namespace tempodial {

FormWindow::FormWindow(Desk& desk, const Ref<FormModel>& form)
    : mDesk(desk)
    , mForm(form.Shared())
    , mView(new FormView(desk, form, this))
    , mChanges(form->SubscribeToChanges({ .Refreshed =
                                              [this] {
                                                  Follow();
                                                  mView->repaint();
                                              },
          .BroughtToFront = [this] { mComesToFront = true; } }))
    , mEvents(desk.Subscribe({ .Changed = [this] { Follow(); }, .Restyled = [this] { Follow(); } }))
{
    setModal(false);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(mView);
    if (form->Definition().className == RuleForm::FormClass) {
        mEffect = new EffectPane(desk, form, this);
        layout->addWidget(mEffect, 1);
    }
    Follow();
}

void FormWindow::Follow()
{
    const auto form = mForm.lock();
    if (!form) {
        hide();
        return;
    }
    setWindowTitle(ToQt(form->Caption()));
    mView->Follow();
    if (mEffect != nullptr && form->Visible()) {
        mEffect->Follow();
    }
    if (form->Visible() != isVisible()) {
        ShowOrHide(form->Visible());
    }
    if (std::exchange(mComesToFront, false) && isVisible()) {
        raise();
        activateWindow();
    }
}

void FormWindow::ShowOrHide(bool isVisible)
{
    const auto* front = QApplication::activeWindow();
    if (isVisible) {
        GiveRoom(*this);
    }
    setVisible(isVisible);
    if (isVisible && front != nullptr && front != this && windowHandle() != nullptr) {
        // It stands before the window that it came from, and lets that be worked with.
        windowHandle()->setTransientParent(front->windowHandle());
    }
}

void FormWindow::reject()
{
    const auto form = mForm.lock();
    const auto* button = form ? ButtonFor(form->Definition(), ButtonRole::Cancel) : nullptr;
    if (button != nullptr && mView->WidgetOf(button->name)->isEnabled()) {
        mView->Click(button->name);
    }
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    if (const auto form = mForm.lock(); form && form->Visible()) {
        mDesk.Do([&] { form->CloseByFrame(); });
    }
    // The model says whether the window goes.
    const auto form = mForm.lock();
    event->setAccepted(!form || !form->Visible());
}

}
