#include "desktop/qt/AgendaView.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/DragGesture.h"
#include "desktop/qt/QtText.h"
#include "terminal/TerminalText.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLabel>
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
    , mNote(new QLabel(this))
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
    constexpr int Margin = 16;
    verticalScrollBar()->setSingleStep(Step);
    mNote->setMargin(Margin);
    mNote->setTextFormat(Qt::RichText);
    mNote->hide();
    connect(mNote, &QLabel::linkActivated, this, [this] { mWishes.followLink(); });
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
    mScene = std::make_unique<AgendaScene>(mLog.Activities(), mLog.Days(), Place());
    MakeWords();
    MakeCards();
    mPainter.Texts().Forget();
    Put();
    FindFocus();
    if (mFitted != mLog.Days()) {
        Fit();
    }
}

void AgendaView::FollowClock()
{
    MakeWords();
    Put();
}

void AgendaView::FindFocus()
{
    const auto& pieces = mScene->Layout().Pieces();
    const auto found = std::find_if(pieces.begin(), pieces.end(),
        [this](const AgendaPiece& piece) { return mScene->ActivityOf(piece).number == mFocusNumber; });
    mFocus = found == pieces.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - pieces.begin()));
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
        card.style = mDesk.StyleOf(mLog.ColouredBy(), mLog.ColourNameOf(activity));
        card.style.isDashed = IsUnassigned(activity);
        card.isSelected = mSelected.count(activity.number) > 0;
        card.isFaded = !mOnly.empty() && mOnly.count(mLog.ColourNameOf(activity)) == 0;
        card.isSoft = DragGesture::MayGrow(activity.end, mDesk.Now());
        mCards.push_back(std::move(card));
    }
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

StackedBar AgendaView::BarOf(std::size_t day)
{
    const auto& colours = mDesk.Look().Colours();
    const auto& sums = mLog.Sums();
    StackedBar bar;
    bar.track = ToQt(colours.track);
    bar.scale = std::max(BarMinutes, *std::max_element(sums.minutes.begin(), sums.minutes.end()));
    for (const auto& row : sums.rows) {
        const auto style = mDesk.StyleOf(mLog.ColouredBy(), row.name);
        bar.parts.push_back({ ToQt(style.colours.mark), row.minutes[day], style.isHatched });
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

void AgendaView::ShowOnly(const std::set<std::string>& names)
{
    mOnly = names;
    MakeCards();
    viewport()->update();
}

void AgendaView::ShowSelected(const Numbers& numbers)
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
    PaintGhost(painter);
}

void AgendaView::PaintGhost(QPainter& painter) const
{
    const auto accent = ToQt(mDesk.Look().Colours().accent);
    auto shade = accent;
    constexpr float Shade = 0.15F;
    shade.setAlphaF(Shade);
    painter.setPen(QPen(accent, 2));
    painter.setBrush(shade);
    if (mGhost) {
        Activity ghost;
        ghost.start = mGhost->start;
        ghost.end = mGhost->end;
        const AgendaLayout layout({ ghost }, mLog.Days());
        for (const auto& piece : layout.Pieces()) {
            painter.drawRect(ToQt(mScene->Geometry().LaneOf(piece)));
        }
    }
    if (!mBand.isEmpty()) {
        painter.setPen(QPen(accent, 1));
        painter.drawRect(mBand);
    }
}

void AgendaView::ShowGhost(const std::optional<TimeSpan>& times, const QRectF& band)
{
    mGhost = times;
    mBand = band;
    viewport()->update();
}

void AgendaView::SayTimes(const TimeSpan& times, const TimeSpan& before) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    Activity shown;
    shown.start = times.start;
    shown.end = times.end;
    shown.duration = MinutesBetween(times.start, times.end);
    auto text = words.Summary(shown);
    if (DragGesture::MayGrow(before.end, mDesk.Now())) {
        text += PartSeparator + std::string(MayGrowText);
    }
    mWishes.say(ToQt(text));
}

void AgendaView::SetFocusOn(std::optional<std::size_t> piece)
{
    mFocus = piece;
    mFocusNumber = piece ? std::optional(ActivityOf(*piece).number) : std::nullopt;
    viewport()->update();
    if (!piece) {
        return;
    }
    const auto box = mScene->Geometry().BoxOf(mScene->Layout().Pieces()[*piece]);
    auto* bar = verticalScrollBar();
    constexpr int Around = 8;
    const auto top = static_cast<int>(box.top) - Around;
    const auto bottom = static_cast<int>(box.Bottom()) + Around;
    if (bottom > bar->value() + viewport()->height()) {
        bar->setValue(bottom - viewport()->height());
    }
    if (top < bar->value()) {
        bar->setValue(top);
    }
}

const Activity& AgendaView::ActivityOf(std::size_t piece) const
{
    return mScene->ActivityOf(mScene->Layout().Pieces()[piece]);
}

QPointF AgendaView::InScene(const QPointF& place) const
{
    return { place.x(), place.y() + verticalScrollBar()->value() };
}

QRectF AgendaView::InView(const PixelBox& box) const
{
    return ToQt(box).translated(0, -verticalScrollBar()->value());
}

QString AgendaView::ToolTipOf(const Activity& activity) const
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    return LineOf(words.Title(activity)) + "\n" + LineOf(words.Detail(activity, Coloured::Project)) + "\n"
        + ToQt(words.Times(activity) + PartSeparator + LengthText(activity.duration));
}

void AgendaView::ApplyZoom(double pixelsPerMinute, double place)
{
    const auto before = mScene->Scale();
    const auto scroll = verticalScrollBar()->value();
    mDesk.Remember([pixelsPerMinute](DesktopSettings& settings) {
        settings.zoom = pixelsPerMinute == 0 ? DesktopSettings::FittingZoom : std::lround(pixelsPerMinute / Hundredth);
    });
    Put();
    verticalScrollBar()->setValue(static_cast<int>(std::lround(mScene->Scale().ScrollFrom(before, scroll, place))));
}

void AgendaView::Zoom(double notches, std::optional<double> place)
{
    ApplyZoom(mScene->Scale().Zoomed(notches).PixelsPerMinute(), place.value_or(viewport()->height() / 2.0));
}

void AgendaView::ZoomToFit()
{
    ApplyZoom(0, 0);
    Fit();
}

void AgendaView::mousePressEvent(QMouseEvent* event)
{
    mMouse.Press(*event);
}

void AgendaView::mouseMoveEvent(QMouseEvent* event)
{
    mMouse.Move(*event);
}

void AgendaView::mouseReleaseEvent(QMouseEvent* event)
{
    mMouse.Release(*event);
}

void AgendaView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mMouse.DoubleClick(*event);
}

void AgendaView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard && mFocus) {
        const auto box = InView(mScene->Geometry().BoxOf(mScene->Layout().Pieces()[*mFocus]));
        mWishes.menu(viewport()->mapToGlobal(box.center().toPoint()));
    } else {
        mWishes.menu(event->globalPos());
    }
}

void AgendaView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr double Notch = 120;
    Zoom(event->angleDelta().y() / Notch, event->position().y());
}

void AgendaView::keyPressEvent(QKeyEvent* event)
{
    if (!mMouse.Key(*event) && !mKeys.Press(*event) && !mWishes.key(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void AgendaView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void AgendaView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

bool AgendaView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        mMouse.ToolTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

void AgendaView::ShowNote(const QString& text, const QString& link)
{
    const auto step = link.isEmpty() ? QString() : "<br><br><a href=\"#\">" + link.toHtmlEscaped() + "</a>";
    mNote->setText("<center>" + text.toHtmlEscaped() + step + "</center>");
    mNote->setVisible(!text.isEmpty());
    PlaceNote();
}

void AgendaView::PlaceNote()
{
    mNote->adjustSize();
    auto place = mNote->rect();
    place.moveCenter(viewport()->geometry().center());
    mNote->move(place.topLeft());
}

void AgendaView::resizeEvent(QResizeEvent* /*event*/)
{
    PlaceNote();
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
