#include "desktop/qt/SelectionBar.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace tempodial {

namespace {

constexpr int FootMargin = 18;
constexpr int FootSpacing = 8;

QWidget* Group(QWidget* parent, QBoxLayout*& layout)
{
    auto* group = new QWidget(parent);
    layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(FootSpacing);
    return group;
}

}

SelectionBar::SelectionBar(Desk& desk, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mTitle(new QLabel(this))
    , mText(new QLabel(this))
{
    setAccessibleName("Selection");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(FootMargin, FootSpacing, FootMargin, FootSpacing);
    layout->setSpacing(FootMargin);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    for (auto* label : { mTitle, mText }) {
        label->setTextFormat(Qt::PlainText);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        texts->addWidget(label);
    }
    layout->addLayout(texts, 1);
    QBoxLayout* inner = nullptr;
    mActions = Group(this, inner);
    inner->addWidget(new QLabel("Set project", mActions));
    for (std::size_t i = 0; i < Chips; ++i) {
        mChips.push_back(new FlatButton(desk.Look(), "", mActions));
        connect(mChips.back(), &QPushButton::clicked, this, [this, i] { mWishes.setProject(mProjects[i]); });
        inner->addWidget(mChips.back());
    }
    mMore = new FlatButton(desk.Look(), "More\u2026", mActions);
    mMore->setToolTip("All projects (F2)");
    connect(mMore, &QPushButton::clicked, this, [this] { ShowAllProjects(); });
    inner->addWidget(mMore);
    inner->addSpacing(FootSpacing);
    Button(*inner, "Always, by a rule\u2026", &Wishes::makeRule)->setToolTip("R");
    Button(*inner, "Why?", &Wishes::askWhy)->setToolTip("Y; again for all projects in a table");
    layout->addWidget(mActions);
    mEnds = Group(this, inner);
    mOpen = Button(*inner, "Open", &Wishes::open);
    mOpen->setToolTip("Enter");
    Button(*inner, "Delete", &Wishes::remove)->setToolTip("Del");
    layout->addWidget(mEnds);
    mOffers = Group(this, inner);
    Button(*inner, "Sort out\u2026", &Wishes::sortOut);
    Button(*inner, "Project Settings\u2026", &Wishes::showSettings);
    layout->addWidget(mOffers);
    ShowGroups(false, false);
}

FlatButton* SelectionBar::Button(QBoxLayout& layout, const QString& text, std::function<void()> Wishes::*wish)
{
    auto* button = new FlatButton(mDesk.Look(), text, layout.parentWidget());
    connect(button, &QPushButton::clicked, this, [this, wish] { (mWishes.*wish)(); });
    layout.addWidget(button);
    return button;
}

void SelectionBar::ShowGroups(bool hasSelection, bool offersSorting)
{
    mActions->setVisible(hasSelection);
    mEnds->setVisible(hasSelection);
    mOffers->setVisible(offersSorting);
}

void SelectionBar::Show(const std::vector<Activity>& selected, std::vector<std::string> projects, const Period& days)
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    const bool isOne = selected.size() == 1;
    mTitleText = isOne ? ShownLine(words.Title(selected.front())) : ToQt(ActivityWords::Summary(selected));
    mPlainText = isOne ? ShownLine(words.Summary(selected.front(), days)) : QString();
    Forget(selected);
    mProjects = std::move(projects);
    for (std::size_t i = 0; i < Chips; ++i) {
        auto& chip = *mChips[i];
        chip.setVisible(i < mProjects.size());
        if (i < mProjects.size()) {
            chip.setText(ShownLine(mProjects[i]).replace("&", "&&"));
            chip.SetBeside({ .mark = mDesk.StyleOf(Coloured::Project, mProjects[i]), .hint = QString::number(i + 1) });
            chip.setAccessibleName("Set project " + ToQt(mProjects[i]));
        }
    }
    mOpen->setEnabled(isOne);
    ShowGroups(true, false);
    ShowTexts();
}

void SelectionBar::Forget(const std::vector<Activity>& selected)
{
    std::vector<std::int64_t> numbers;
    for (const auto& activity : selected) {
        numbers.push_back(activity.number);
    }
    // What was said stays as long as it may be about what is selected.
    if (numbers != mNumbers && !numbers.empty()) {
        mSaid.clear();
    }
    mNumbers = std::move(numbers);
}

void SelectionBar::ShowNothing(const QString& title, const QString& text, bool offersSorting)
{
    Forget({});
    mTitleText = title;
    mPlainText = text;
    ShowGroups(false, offersSorting);
    ShowTexts();
}

void SelectionBar::Say(const QString& text)
{
    mSaid = text;
    ShowTexts();
}

QString SelectionBar::Title() const
{
    return mTitleText;
}

QString SelectionBar::Text() const
{
    return mSaid.isEmpty() ? mPlainText : mSaid;
}

void SelectionBar::ShowTexts()
{
    auto bold = font();
    bold.setWeight(QFont::DemiBold);
    mTitle->setFont(bold);
    auto quiet = palette();
    quiet.setColor(QPalette::WindowText, ToQt(mDesk.Look().Colours().quietText));
    mText->setPalette(quiet);
    // As high as two lines and the buttons need, whether they are there or not, so that nothing moves.
    setMinimumHeight(std::max(mMore->sizeHint().height(), 2 * mTitle->fontMetrics().height()) + 3 * FootSpacing);
    // The groups beside the texts may have come or gone.
    layout()->activate();
    const bool isLong = mText->fontMetrics().horizontalAdvance(mSaid) > mText->width();
    constexpr int MostLines = 4;
    // What is said comes as a whole, since what to do stands at its end; in the line of the title, too.
    ShowText(*mTitle, mTitleText, 1);
    ShowText(*mText, Text(), isLong ? MostLines : 1);
    mTitle->setVisible(!isLong);
    mText->setVisible(!Text().isEmpty());
    // The bar is as high as its text is in this width.
    updateGeometry();
}

void SelectionBar::ShowText(QLabel& label, const QString& text, int lines)
{
    // A line ends before a word that has no room in it.
    constexpr double Filled = 0.9;
    const auto width = lines == 1 ? label.width() : static_cast<int>(lines * label.width() * Filled);
    label.setWordWrap(lines > 1);
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, width));
    label.setToolTip(PlainToolTip(text));
    // Whoever listens hears of each change; the markup of the tool tip would be read out as the description.
    if (label.accessibleName() != text) {
        label.setAccessibleName(text);
        label.setAccessibleDescription(text);
    }
}

void SelectionBar::resizeEvent(QResizeEvent* /*event*/)
{
    ShowTexts();
}

void SelectionBar::FillMenu(QMenu& menu) const
{
    constexpr std::size_t Keys = 9;
    for (std::size_t i = 0; i < mProjects.size(); ++i) {
        auto text = ShownLine(mProjects[i]).replace("&", "&&");
        if (i < Keys) {
            text += "\t" + QString::number(i + 1);
        }
        connect(menu.addAction(text), &QAction::triggered, this,
            [this, project = mProjects[i]] { mWishes.setProject(project); });
    }
    if (!mProjects.empty()) {
        menu.addSeparator();
    }
    connect(menu.addAction("&New Project\u2026\tN"), &QAction::triggered, this, [this] { mWishes.setNewProject(); });
}

void SelectionBar::ShowAllProjects()
{
    QMenu menu(this);
    FillMenu(menu);
    // An assistive program triggers an entry without choosing it in the menu.
    connect(&menu, &QMenu::triggered, &menu, &QMenu::close);
    // Assistive programs find a menu by the button that it belongs to.
    mMore->setMenu(&menu);
    menu.exec(mMore->mapToGlobal(QPoint(0, 0)) - QPoint(0, menu.sizeHint().height()));
    mMore->setMenu(nullptr);
}

void SelectionBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(QRectF(0, 0, width(), 1), ToQt(mDesk.Look().Colours().border));
}

}
