#include "desktop/qt/NavigationBar.h"

#include "desktop/DesktopStrings.h"
#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace tempodial {

namespace {

constexpr int BarMargin = 16;
constexpr int BarSpacing = 8;

}

NavigationBar::NavigationBar(Desk& desk, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mDays(new QLabel(this))
    , mWeek(new QLabel(this))
    , mSearchField(new QLineEdit(this))
    , mButtons(new QHBoxLayout)
{
    setAccessibleName("Navigation");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(BarMargin, BarMargin / 2 + 2, BarMargin, BarMargin / 2 + 2);
    layout->setSpacing(BarSpacing);
    auto* back = Button("");
    back->SetBeside({ .glyph = Glyph::Back });
    back->setAccessibleName("Back");
    back->setToolTip("Back (Page Up)");
    connect(back, &QPushButton::clicked, this, [this] { mPage(-1); });
    auto* today = Button("Today");
    today->setToolTip("Today (T)");
    connect(today, &QPushButton::clicked, this, [this] { mGoToToday(); });
    auto* forward = Button("");
    forward->SetBeside({ .glyph = Glyph::Forward });
    forward->setAccessibleName("Forward");
    forward->setToolTip("Forward (Page Down)");
    connect(forward, &QPushButton::clicked, this, [this] { mPage(1); });
    for (auto* widget : { static_cast<QWidget*>(back), static_cast<QWidget*>(today), static_cast<QWidget*>(forward) }) {
        layout->addWidget(widget);
    }
    layout->addSpacing(BarSpacing);
    layout->addWidget(mDays);
    layout->addWidget(mWeek);
    layout->addStretch(1);
    auto* views = new QHBoxLayout;
    views->setSpacing(0);
    auto* group = new QButtonGroup(this);
    constexpr std::array names { "Day", "Week", "List", "Sort out" };
    for (std::size_t i = 0; i < names.size(); ++i) {
        mViews[i] = Button(names[i]);
        mViews[i]->setCheckable(true);
        group->addButton(mViews[i]);
        views->addWidget(mViews[i]);
        connect(mViews[i], &QPushButton::clicked, this, [this, i] { mShow(static_cast<View>(i)); });
    }
    layout->addLayout(views);
    layout->addStretch(1);
    mSearchField->setPlaceholderText("Search activities");
    mSearchField->setAccessibleName("Search activities");
    mSearchField->setToolTip("Words of project, application, description or people (Ctrl+F)");
    mSearchField->setClearButtonEnabled(true);
    constexpr int SearchWidth = 140;
    constexpr int WidestSearch = 340;
    mSearchField->setMinimumWidth(SearchWidth);
    mSearchField->setMaximumWidth(WidestSearch);
    mSearchField->setMinimumHeight(back->sizeHint().height());
    connect(mSearchField, &QLineEdit::textChanged, this, [this](const QString& words) { mSearch(words); });
    connect(mSearchField, &QLineEdit::returnPressed, this, [this] { mSearchAll(); });
    mSearchField->installEventFilter(this);
    layout->addWidget(mSearchField, 1);
    layout->addLayout(mButtons);
}

bool NavigationBar::eventFilter(QObject* object, QEvent* event)
{
    const bool isEscape = event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent&>(*event).key()
            == Qt::Key_Escape; // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
    if (isEscape && !mSearchField->text().isEmpty()) {
        mSearchField->clear();
        return true;
    }
    return QWidget::eventFilter(object, event);
}

FlatButton* NavigationBar::Button(const QString& text)
{
    return new FlatButton(mDesk.Look(), text, this);
}

void NavigationBar::StyleSearchField()
{
    const auto& colours = mDesk.Look().Colours();
    const auto style = QString("QLineEdit { border: 1px solid %1; border-radius: 6px; padding: 0 8px; background: %2; }"
                               "QLineEdit:focus { border: 2px solid %3; }")
                           .arg(ToQt(colours.border).name(), ToQt(colours.paper).name(), ToQt(colours.accent).name());
    // The toolkit would take the same style for a new one.
    if (mSearchField->styleSheet() != style) {
        mSearchField->setStyleSheet(style);
    }
}

void NavigationBar::Follow(const QString& days, const QString& week, View view, std::int64_t unassignedMinutes)
{
    constexpr double TitleSize = 1.25;
    auto title = font();
    title.setPointSizeF(title.pointSizeF() * TitleSize);
    title.setWeight(QFont::DemiBold);
    mDays->setFont(title);
    mDays->setText(days);
    mWeek->setText(week);
    auto quiet = palette();
    quiet.setColor(QPalette::WindowText, ToQt(mDesk.Look().Colours().quietText));
    mWeek->setPalette(quiet);
    StyleSearchField();
    ButtonOf(view).setChecked(true);
    auto& sortOut = ButtonOf(View::SortOut);
    const auto length = unassignedMinutes == 0 ? QString() : ToQt(LengthText(unassignedMinutes));
    sortOut.SetBeside({ .hint = length, .isBadge = true });
    sortOut.setAccessibleDescription(length.isEmpty() ? QString() : length + " without a project");
}

}
