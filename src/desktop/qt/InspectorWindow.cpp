#include "desktop/qt/InspectorWindow.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/WhyWords.h"
#include "desktop/qt/CommandBarView.h"
#include "desktop/qt/PageView.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/WindowRoom.h"
#include "review/ActivityReader.h"
#include "session/ActivityGesture.h"
#include "session/ProductFacts.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QShortcut>
#include <QTextDocument>

namespace tempodial {

namespace {

constexpr QSize UsualInspectorSize(720, 480);

QLabel* NewTextLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}

InspectorWindow::InspectorWindow(Desk& desk, Ref<HostInspector> inspector)
    : ItemWindow(desk, std::move(inspector))
    , mCommands(new CommandBarView(
          desk, Shown(), [this] { return TakeIn(); }, this))
    , mTimes(NewTextLabel(this))
    , mWhy(NewTextLabel(this))
    , mBody(new QPlainTextEdit(this))
{
    resize(UsualInspectorSize * LetterScale(*this));
    Content().addWidget(mCommands);
    if (Model().ShownPage()) {
        mPage = new PageView(desk, Shown(), this);
        Content().addWidget(mPage);
        mTimes->hide();
    }
    Content().addWidget(mTimes);
    Content().addWidget(mWhy);
    mBody->setReadOnly(true);
    mBody->setTabChangesFocus(true);
    mBody->setAccessibleName("Text");
    Content().addWidget(mBody, 1);
    connect(new QShortcut(QKeySequence(SaveKeys), this), &QShortcut::activated, this, [this] { Save(); });
    Follow();
    GiveRoom(*this);
}

QString InspectorWindow::Title() const
{
    const auto& item = *Model().ShownItem();
    if (OwnDesk().ShownTitles() == Titles::Shown) {
        return ItemWindow::Title();
    }
    const auto activity = ActivityNumbered(OwnDesk().Profile(), item.Number());
    const ActivityWords words(OwnDesk().Formats(), Titles::Hidden);
    return activity ? ToQt(words.Title(*activity)) : QString(ProductName);
}

void InspectorWindow::FollowContent()
{
    mCommands->Follow();
    const auto& item = *Model().ShownItem();
    if (mPage != nullptr) {
        mPage->Follow();
    } else {
        auto& formats = *OwnDesk().Formats();
        mTimes->setText(ToQt(formats.General(item.Start()) + RangeDash + formats.General(item.End())));
    }
    ShowWhy();
    if (const auto body = ToQt(item.Body()).replace("\r\n", "\n"); mBody->toPlainText() != body) {
        mBody->setPlainText(body);
    }
}

void InspectorWindow::ShowWhy()
{
    const auto number = Model().ShownItem()->Number();
    const auto activity = number == 0 ? std::nullopt : ActivityNumbered(OwnDesk().Profile(), number);
    mWhy->setVisible(activity.has_value());
    if (activity) {
        const RuleTrial rules(RuledProject::ReadAll(OwnDesk().Profile()));
        mWhy->setText("Why? " + ToQt(WhySentence(*activity, rules, OwnDesk().ShownTitles())));
    }
}

bool InspectorWindow::TakeIn()
{
    Say({});
    return mPage == nullptr || mPage->WriteTyped();
}

void InspectorWindow::Save()
{
    if (Model().IsGone() || !TakeIn()) {
        return;
    }
    bool isSaved = true;
    OwnDesk().Do([&] { isSaved = SaveAsStep(OwnDesk().Profile(), Model()); });
    if (!isSaved) {
        Say("It isn't saved, since that was refused.");
    }
}

void InspectorWindow::Print()
{
    QString page = "<h2>" + ToQt(Model().Caption()).toHtmlEscaped() + "</h2><table cellpadding=\"4\">";
    for (const auto& [label, text] : mPage == nullptr ? decltype(mPage->Texts())() : mPage->Texts()) {
        page += "<tr><td><b>" + ToQt(label).toHtmlEscaped() + "</b></td><td>" + ToQt(text).toHtmlEscaped()
            + "</td></tr>";
    }
    page += "</table><pre>" + mBody->toPlainText().toHtmlEscaped() + "</pre>";
    QTextDocument document;
    document.setHtml(page);
    PrintDocument(document);
}

}
