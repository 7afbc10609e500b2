#include "desktop/qt/AgendaView.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/DragGesture.h"
#include "desktop/qt/QtText.h"
#include "terminal/TerminalText.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace tempodial {

namespace {

constexpr int HoursOfDay = 24;
constexpr double Hundredth = 0.01;
/// What is shown of a day without activities.
constexpr DaySpan UsualHours { 28800, 64800 };
/// The minutes that a day's bar stands for, unless a day is longer.
constexpr std::int64_t BarMinutes = 600;

QString LineOf(const std::string& text)
{
    return ToQt(IsolatedLine(text));
}

}

AgendaView::AgendaView(Desk& desk, const ShownLog& log, QWidget* parent)
    : QAbstractScrollArea(parent)
    , mDesk(desk)
    , mLog(log)
    , mPainter(desk.Look())
    , mHead(new DayHead(desk.Look(), this))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Activities");
    setObjectName("agenda");
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    constexpr int Step = 30;
    verticalScrollBar()->setSingleStep(Step);
    TakeFont();
    Follow();
}

AgendaView::~AgendaView() = default;

void AgendaView::TakeFont()
{
    mPainter.Texts().Use(font(), devicePixelRatioF());
    mPainter.Cards().Use(devicePixelRatioF());
    mHead->setFont(font());
    setViewportMargins(0, mHead->sizeHint().height(), 0, 0);
}

void AgendaView::Follow()
{
    mFocus.reset();
    mScene = std::make_unique<AgendaScene>(mLog.Activities(), mLog.Days(), Place());
    MakeWords();
    MakeCards();
    mPainter.Texts().Forget();
    Put();
    if (mFitted != mLog.Days()) {
        Fit();
    }
}

void AgendaView::MakeWords()
{
    const auto& formats = mDesk.Formats();
    mHourNames.clear();
    for (int hour = 0; hour < HoursOfDay; ++hour) {
        mHourNames.push_back(ToQt(formats->ShortTime(mLog.Days().first.AddMinutes(std::int64_t { hour } * 60))));
    }
    mHourNames.push_back(ToQt(formats->ShortTime(mDesk.Now())));
    mGutter = mPainter.GutterFor(mHourNames);
    mGaps.clear();
    for (const auto& gap : mScene->Gaps()) {
        mGaps.push_back(ToQt(GapText(gap.minutes)));
    }
}

void AgendaView::MakeCards()
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    mCards.clear();
    for (const auto& activity : mLog.Activities()) {
        AgendaCard card;
        card.title = LineOf(words.Title(activity));
        card.detail = LineOf(words.Detail(activity, mLog.ColouredBy()));
        card.times = ToQt(words.Times(activity));
        card.style = StyleOf(activity);
        card.isSelected = mSelected.count(activity.number) > 0;
        card.isSoft = DragGesture::MayGrow(activity.end, mDesk.Now());
        mCards.push_back(std::move(card));
    }
}

CardStyle AgendaView::StyleOf(const Activity& activity)
{
    const auto& look = mDesk.Look();
    const auto use = mDesk.Colours().ToneOf(mLog.ColouredBy(), mLog.ColourNameOf(activity));
    CardStyle style;
    style.colours = look.CardOf(use);
    style.isHatched = !use;
    style.hatch = look.Colours().hatch;
    style.isDashed = IsUnassigned(activity);
    style.isStriped = use && use->isStriped;
    return style;
}

TimeScale AgendaView::Scale() const
{
    const auto zoom = mDesk.Settings().zoom;
    if (zoom != DesktopSettings::FittingZoom) {
        return TimeScale(static_cast<double>(zoom) * Hundredth, devicePixelRatioF());
    }
    const auto hours = mScene ? mScene->Layout().Hours(UsualHours) : UsualHours;
    return TimeScale::Fitting(hours, viewport()->height(), devicePixelRatioF());
}

AgendaScene::Place AgendaView::Place() const
{
    return { .scale = Scale(),
        .left = mGutter,
        .width = std::max(viewport()->width() - mGutter, 1.0),
        .labelHeight = mPainter.Texts().HeightOf(TextRole::Small) };
}

void AgendaView::Put()
{
    mScene->Put(Place());
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    mLabels.clear();
    for (const auto& run : mScene->Runs()) {
        std::vector<Activity> activities;
        for (auto i = run.pieces.begin; i < run.pieces.end; ++i) {
            activities.push_back(mScene->ActivityOf(mScene->Layout().Pieces()[i]));
        }
        mLabels.push_back(LineOf(words.ShortLabel(activities)));
    }
    for (std::size_t i = 0; i < mGaps.size(); ++i) {
        if (!ShowsLengthOf(mScene->Gaps()[i], mScene->Scale(), mScene->Layout().Days())) {
            mGaps[i].clear();
        } else if (mGaps[i].isEmpty()) {
            mGaps[i] = ToQt(GapText(mScene->Gaps()[i].minutes));
        }
    }
    MakeHead();
    const auto height = static_cast<int>(std::ceil(mScene->Scale().DayHeight()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    viewport()->update();
}

void AgendaView::MakeHead()
{
    std::vector<DayHead::Day> days;
    for (int day = 0; day < mLog.DayCount(); ++day) {
        const auto date = mLog.Days().first.AddDays(day);
        const auto minutes = mLog.Sums().minutes[static_cast<std::size_t>(day)];
        const auto column = mScene->Geometry().Column(day);
        DayHead::Day head;
        head.number = QString::number(date.ToParts().day);
        head.name = ToQt(WeekdayText(date.Weekday()));
        head.total = minutes == 0 ? QString() : ToQt(LengthText(minutes));
        head.spoken = ToQt(mDesk.Formats()->LongDate(date) + PartSeparator + LengthText(minutes));
        head.bar = BarOf(static_cast<std::size_t>(day));
        head.isToday = date == mDesk.Now().Day();
        head.isQuiet = mDesk.Hours().HoursOf(date).Seconds() == 0;
        head.left = column.left;
        head.width = column.width;
        days.push_back(std::move(head));
    }
    mHead->Show(std::move(days));
    mHead->setGeometry(0, 0, viewport()->width(), mHead->sizeHint().height());
}

StackedBar AgendaView::BarOf(std::size_t day) const
{
    const auto& colours = mDesk.Look().Colours();
    const auto& sums = mLog.Sums();
    StackedBar bar;
    bar.track = ToQt(colours.track);
    bar.scale = std::max(BarMinutes, *std::max_element(sums.minutes.begin(), sums.minutes.end()));
    for (const auto& row : sums.rows) {
        const auto use = mDesk.Colours().ToneOf(mLog.ColouredBy(), row.name);
        bar.parts.push_back({ ToQt(mDesk.Look().CardOf(use).mark), row.minutes[day], !use });
    }
    return bar;
}

void AgendaView::Fit()
{
    // Before it is on the screen its height isn't known.
    if (isVisible()) {
        mFitted = mLog.Days();
    }
    const auto from = mScene->Layout().Hours(UsualHours).from;
    verticalScrollBar()->setValue(static_cast<int>(mScene->Scale().PlaceOf(from)));
}

void AgendaView::ShowSelected(const std::set<std::int64_t>& numbers)
{
    mSelected = numbers;
    for (std::size_t i = 0; i < mCards.size(); ++i) {
        mCards[i].isSelected = mSelected.count(mLog.Activities()[i].number) > 0;
    }
    viewport()->update();
}

void AgendaView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    const auto scroll = verticalScrollBar()->value();
    painter.translate(0, -scroll);
    const auto hours = mDesk.Hours();
    mPainter.Paint(painter,
        { .scene = *mScene,
            .cards = mCards,
            .labels = mLabels,
            .gaps = mGaps,
            .hours = hours,
            .now = mDesk.Now(),
            .hourNames = mHourNames,
            .focus = hasFocus() ? mFocus : std::nullopt,
            .foldsShortOnes = mDesk.Settings().foldsShortOnes,
            .width = static_cast<double>(viewport()->width()),
            .gutter = mGutter },
        QRectF(event->rect()).translated(0, scroll));
}

void AgendaView::resizeEvent(QResizeEvent* /*event*/)
{
    Put();
    if (mFitted != mLog.Days()) {
        Fit();
    }
}

void AgendaView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (mScene && (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)) {
        TakeFont();
        Follow();
    }
}

void AgendaView::scrollContentsBy(int /*dx*/, int dy)
{
    // The gutter and the columns scroll as they are; only the strip that appears is painted.
    viewport()->scroll(0, dy);
}

}
