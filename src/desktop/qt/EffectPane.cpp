#include "desktop/qt/EffectPane.h"

#include "desktop/LogDoings.h"
#include "desktop/qt/EffectModel.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/RoomyRows.h"
#include "desktop/qt/ShownLine.h"
#include "forms/ModelHands.h"
#include "review/ActivityReader.h"
#include "review/KeywordCandidates.h"
#include "review/RuleTerms.h"
#include "session/ActivityGesture.h"
#include "session/ProductFacts.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTreeView>
#include <exception>

namespace tempodial {

namespace {

constexpr auto SubjectRuleBox = "SubjectText";
constexpr int PaneWidth = 460;
/// The days that are looked at first, and at most.
constexpr int UsualDays = 21;
constexpr int MostDays = 3660;

}

EffectPane::EffectPane(Desk& desk, const Ref<FormModel>& form, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mNumber(form->Number())
    , mForm(form)
    , mDays(new QSpinBox(this))
    , mTitle(new QLabel(this))
    , mNotes(new QLabel(this))
    , mList(new QTreeView(this))
    , mModel(new EffectModel(desk, this))
    , mOffers(new QWidget(this))
{
    setAccessibleName("What this changes");
    setMinimumWidth(PaneWidth);
    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel("What this changes", this);
    auto bold = font();
    bold.setWeight(QFont::DemiBold);
    heading->setFont(bold);
    auto* top = new QHBoxLayout;
    top->addWidget(heading, 1);
    mDays->setRange(1, MostDays);
    mDays->setValue(UsualDays);
    mDays->setPrefix("last ");
    mDays->setSuffix(" days");
    mDays->setAccessibleName("Days that are looked at");
    connect(mDays, &QSpinBox::valueChanged, this, [this] { Follow(); });
    top->addWidget(mDays);
    layout->addLayout(top);
    for (auto* label : { mTitle, mNotes }) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    layout->addWidget(mTitle);
    mList->setModel(mModel);
    mList->setRootIsDecorated(false);
    mList->setUniformRowHeights(true);
    mList->setItemDelegate(new RoomyRows(mList));
    mList->setAllColumnsShowFocus(true);
    mList->setAccessibleName("Activities that would change");
    // Times and projects are seen whole, and titles as far as there is room.
    mList->header()->setStretchLastSection(false);
    mList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mList->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    connect(mList, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (const auto* activity = mModel->ActivityOf(index.row())) {
            mDesk.Do([this, number = activity->number] { LogDoings(mDesk.Session()).Open(number); });
        }
    });
    layout->addWidget(mList, 1);
    layout->addWidget(mNotes);
    mOfferLine = new QVBoxLayout(mOffers);
    mOfferLine->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mOffers);
    mTimer.setInterval(0);
    connect(&mTimer, &QTimer::timeout, this, [this] { GoOn(); });
}

RuleEdit EffectPane::Edit()
{
    auto edit = mForm.Edit();
    // Where the form says how far it is applied back, that is what happens.
    mDays->setVisible(!edit.isAppliedBack);
    if (!edit.isAppliedBack) {
        edit.days = mDays->value();
    }
    return edit;
}

EffectPane::Basis EffectPane::Now()
{
    Basis basis { .edit = Edit(),
        .projects = mDesk.Profile().Registry()->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText(),
        .open = {},
        .log = mDesk.Log().Count(),
        .today = mDesk.Now().Day() };
    for (const auto& inspector : mDesk.Windows().OpenInspectors()) {
        if (const auto& item = inspector->ShownItem()) {
            basis.open.insert(item->Number());
        }
    }
    return basis;
}

void EffectPane::Follow()
{
    FollowOffers();
    // Titles may be hidden now.
    mList->viewport()->update();
    auto basis = Now();
    if (mBasis == basis) {
        return;
    }
    mBasis = std::move(basis);
    mEffect.emplace(mBasis->edit, RuledProject::ReadAll(mDesk.Profile()), mBasis->open, mBasis->today);
    mModel->Show(*mEffect);
    mTimer.start();
    GoOn();
}

void EffectPane::GoOn()
{
    try {
        Read();
    } catch (const std::exception& failure) {
        mTimer.stop();
        mDesk.Fail(failure);
        return;
    }
    if (mEffect->IsDone()) {
        mTimer.stop();
    }
    ShowWords();
}

void EffectPane::Read()
{
    if (!mEffect->IsDone()) {
        const auto& profile = mDesk.Profile();
        mEffect->GoOn({ .read = [&profile](const Period& days) { return ActivitiesStartingIn(profile, days); },
            .lastStartBefore = [&profile](Date moment) { return LastStartBefore(profile, moment); } });
        mModel->ShowMore();
    }
}

void EffectPane::ShowWords()
{
    QString notes;
    for (const auto& note : mEffect->Notes()) {
        notes += (notes.isEmpty() ? "" : "\n") + ShownLine(note);
    }
    mTitle->setText(ToQt(mEffect->Title()));
    mNotes->setText(notes);
    mNotes->setVisible(!notes.isEmpty());
}

void EffectPane::FollowOffers()
{
    std::vector<std::string> words;
    const auto explorer = mDesk.Windows().ActiveExplorer().As<HostExplorer>();
    const auto selected = explorer ? SelectedNumbers(*explorer) : std::set<std::int64_t>();
    // What is offered are words of a title.
    if (!selected.empty() && mDesk.ShownTitles() == Titles::Shown) {
        if (auto activity = ActivityNumbered(mDesk.Profile(), *selected.begin())) {
            // The form has no rule for people.
            activity->people.clear();
            words = KeywordCandidates(*activity);
        }
    }
    const RuleTerms rule(mForm.Edit().subjectRule);
    std::erase_if(words, [&rule](const std::string& word) { return rule.Has(word); });
    if (words == mOffered) {
        return;
    }
    mOffered = words;
    while (auto* item = mOfferLine->takeAt(0)) {
        // It may be the button that was just clicked.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    for (const auto& word : words) {
        const auto text = QFontMetrics(font()).elidedText(ShownLine(word), Qt::ElideMiddle, PaneWidth / 2);
        auto* button = new FlatButton(mDesk.Look(), "Match " + QString(text).replace("&", "&&"), mOffers);
        connect(button, &QPushButton::clicked, this, [this, word] { AddTerm(word); });
        mOfferLine->addWidget(button, 0, Qt::AlignLeft);
    }
}

void EffectPane::AddTerm(const std::string& term)
{
    mDesk.Do([&] {
        RuleTerms rule(mForm.Edit().subjectRule);
        if (!rule.Add(term)) {
            throw Failure(Error::InvalidCall, "No rule can hold " + term + ": type the words of it that matter.");
        }
        ModelHands(*mDesk.Session().Forms()).Type(mNumber, SubjectRuleBox, rule.Rule());
    });
}

}
