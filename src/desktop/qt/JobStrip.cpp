#include "desktop/qt/JobStrip.h"

#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"
#include "forms/FormModel.h"
#include "forms/ModelHands.h"
#include "platform/controls/Label.h"
#include "platform/controls/ProgressBar.h"

#include <QBoxLayout>
#include <QLabel>
#include <QProgressBar>

namespace tempodial {

namespace {

/// What a job of the product shows, as its form names it.
constexpr auto UpperText = "Label1";
constexpr auto LowerText = "Label2";
constexpr auto BarName = "ProgressBar1";
constexpr auto CancelName = "LoadCancel";
/// Milliseconds that a job takes before it is worth telling of.
constexpr qint64 WorthTelling = 400;

}

JobStrip::JobStrip(Desk& desk, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mText(new QLabel(this))
    , mBar(new QProgressBar(this))
    , mCancel(new FlatButton(desk.Look(), "Cancel", this))
{
    constexpr int Margin = 18;
    constexpr int BarWidth = 240;
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(Margin, Margin / 3, Margin, Margin / 3);
    layout->addWidget(mText, 1);
    layout->addWidget(mBar);
    layout->addWidget(mCancel);
    mBar->setFixedWidth(BarWidth);
    mText->setTextFormat(Qt::PlainText);
    mText->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setAccessibleName("Progress");
    mBar->setAccessibleName("Progress");
    connect(mCancel, &QPushButton::clicked, this, [this] {
        mDesk.Do([this] {
            if (mForm) {
                ModelHands(*mDesk.Session().Forms()).Click(*mForm, CancelName);
            }
        });
    });
    hide();
}

QString JobStrip::Text() const
{
    return mText->text();
}

void JobStrip::Follow()
{
    const auto form = mDesk.Session().Forms()->NewestVisible(FormClass);
    if (!form) {
        mForm.reset();
        hide();
        return;
    }
    if (mForm != form->Number()) {
        mForm = form->Number();
        mSince.start();
    }
    const auto upper = form->Control(UpperText).As<Label>()->Caption();
    const auto lower = form->Control(LowerText).As<Label>()->Caption();
    mText->setText(ToQt(upper + (upper.empty() || lower.empty() ? "" : " \u00b7 ") + lower));
    const auto bar = form->Control(BarName).As<ProgressBar>();
    mBar->setRange(bar->Min(), bar->Max());
    mBar->setValue(bar->Value());
    setVisible(mSince.hasExpired(WorthTelling));
}

}
