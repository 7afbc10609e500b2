#include "desktop/qt/AgendaView.h"

#include "desktop/DesktopStrings.h"
#include "desktop/qt/AgendaAccess.h"
#include "desktop/qt/QtText.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QNativeGestureEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <cmath>

namespace tempodial {

namespace {

constexpr double Hundredth = 0.01;
/// What is shown of a day without activities.
constexpr DaySpan UsualHours { 28800, 64800 };

}

AgendaView::AgendaView(Desk& desk, const ShownLog& log, QWidget* parent)
    : QAbstractScrollArea(parent)
    , mDesk(desk)
    , mLog(log)
    , mContents(desk, log)
    , mPainter(desk.Look())
    , mHead(new DayHead(desk.Look(), this))
    , mNote(new EmptyNote(*this))
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
    Rest();
}

AgendaView::~AgendaView() = default;

void AgendaView::TakePixels()
{
    mPainter.Texts().Use(font(), devicePixelRatioF());
    mPainter.Cards().Use(devicePixelRatioF());
}

void AgendaView::TakeFont()
{
    TakePixels();
    mHead->setFont(font());
    setViewportMargins(0, mHead->sizeHint().height(), 0, 0);
}

void AgendaView::Follow()
{
    if (mBubble) {
        // What it lists may be gone.
        mBubble->close();
    }
    mIsResting = false;
    mScene = std::make_unique<AgendaScene>(mLog.Activities(), mLog.All(), mLog.Days(), Place());
    mContents.Fill();
    mGutter = mPainter.GutterFor(mContents.HourNames());
    Put();
    const bool hadFocus = mFocus.has_value();
    FindFocus();
    if (mWhenFollowed) {
        mWhenFollowed();
    }
    if (hadFocus && !mFocus) {
        AgendaAccess::TellFocus(*this);
    }
    if (mFitted != mLog.Days()) {
        Fit();
    }
}

void AgendaView::Rest()
{
    static const std::vector<Activity> none;
    if (mIsResting) {
        return;
    }
    if (mBubble) {
        mBubble->close();
    }
    mIsResting = true;
    mScene = std::make_unique<AgendaScene>(none, none, mLog.Days(), Place());
    mContents.Clear();
    mHead->Show(mContents.Heads(*mScene));
    mFocus.reset();
    if (mWhenFollowed) {
        mWhenFollowed();
    }
}

void AgendaView::FollowClock()
{
    if (!mIsResting) {
        mContents.FollowClock();
        Put();
    }
}

void AgendaView::FindFocus()
{
    mFocus = mFocusNumber ? PieceOf(*mFocusNumber, DaysBetween(mLog.Days().first, mFocusDay)) : std::nullopt;
}

std::optional<std::size_t> AgendaView::PieceOf(std::int64_t number, int day) const
{
    const auto& pieces = mScene->Layout().Pieces();
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        // One that crosses midnight has a piece on each of its days.
        if (mScene->ActivityOf(pieces[i]).number == number && (!found || pieces[i].day == day)) {
            found = i;
        }
    }
    return found;
}

TimeScale AgendaView::Scale() const
{
    const auto zoom = mDesk.Settings().zoom;
    if (zoom != DesktopSettings::FittingZoom) {
        // Hundredths are kept, but many small steps of a touchpad must come to something.
        const auto isExact = std::lround(mZoom / Hundredth) == zoom;
        return TimeScale(isExact ? mZoom : static_cast<double>(zoom) * Hundredth, devicePixelRatioF());
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
    const bool isFitted = mFitted && verticalScrollBar()->value() == mFittedValue;
    mScene->Put(Place());
    if (mIsResting) {
        return;
    }
    mContents.FillPlaced(*mScene);
    mHead->Show(mContents.Heads(*mScene));
    mHead->setGeometry(0, 0, viewport()->width(), mHead->sizeHint().height());
    const auto height = static_cast<int>(std::ceil(mScene->Scale().DayHeight()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, height - viewport()->height()));
    if (isFitted) {
        ScrollToFirst();
    }
    viewport()->update();
}

void AgendaView::Fit()
{
    // Before it is on the screen its height isn't known.
    if (isVisible()) {
        mFitted = mLog.Days();
    }
    ScrollToFirst();
}

void AgendaView::ScrollToFirst()
{
    const auto from = mScene->Layout().Hours(UsualHours).from;
    verticalScrollBar()->setValue(static_cast<int>(mScene->Scale().PlaceOf(from)));
    mFittedValue = verticalScrollBar()->value();
}

bool AgendaView::HidesAny() const
{
    return mLog.Activities().size() != mLog.All().size();
}

void AgendaView::ShowOnly(const std::set<std::string>& names)
{
    mContents.ShowOnly(names);
    viewport()->update();
}

void AgendaView::ShowSelected(const Numbers& numbers)
{
    const auto before = std::exchange(mSelected, numbers);
    mContents.Select(numbers);
    viewport()->update();
    if (before != numbers) {
        AgendaAccess::TellSelection(*this, before);
    }
}

void AgendaView::paintEvent(QPaintEvent* event)
{
    if (mPainter.Texts().DevicePixels() != devicePixelRatioF()) {
        // The window has come to another screen, or its screen to another scale. What lies on whole device pixels is
        // laid out behind this.
        TakePixels();
        QTimer::singleShot(0, this, [this] { FollowLook(); });
    }
    QPainter painter(viewport());
    const auto scroll = verticalScrollBar()->value();
    painter.translate(0, -scroll);
    const auto hours = mDesk.Hours();
    mPainter.Paint(painter,
        { .scene = *mScene,
            .cards = mContents.Cards(),
            .labels = mContents.Labels(),
            .gaps = mContents.Gaps(),
            .hours = hours,
            .now = mDesk.Now(),
            .hourNames = mContents.HourNames(),
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
    mWishes.say(mContents.WordsOf(times, before.end));
}

QString AgendaView::DescribedOf(std::size_t piece) const
{
    const auto& activity = ActivityOf(piece);
    auto described = mContents.DescribedOf(activity);
    for (const auto& gap : mScene->Gaps()) {
        if (gap.to == activity.start) {
            described += ", after " + ToQt(GapText(gap.minutes));
        }
    }
    return described;
}

void AgendaView::ShowRun(std::size_t run, ShortBubble::Opening opening)
{
    if (mBubble) {
        mBubble->close();
    }
    const auto& pieces = mScene->Runs()[run].pieces;
    std::vector<ShortBubble::Row> rows;
    for (auto i = pieces.begin; i < pieces.end; ++i) {
        rows.push_back({ ActivityOf(i).number, mContents.LineOf(ActivityOf(i)) });
    }
    mBubble = new ShortBubble(rows,
        { .select = [this](std::int64_t number) { mWishes.select({ number }); },
            .open = [this](std::int64_t number) { mWishes.open(number); },
            .key = [this](QKeyEvent& event) { return mWishes.key(event); } },
        opening, this);
    const auto box = mScene->Runs()[run].LabelBox(mScene->LabelHeight()).value_or(mScene->Runs()[run].room);
    mBubble->move(viewport()->mapToGlobal(InView(box).bottomLeft().toPoint()));
    mBubble->show();
    if (opening == ShortBubble::Opening::Asked) {
        mBubble->setFocus();
    }
}

void AgendaView::SetFocusOn(std::optional<std::size_t> piece)
{
    mFocus = piece;
    mFocusNumber = piece ? std::optional(ActivityOf(*piece).number) : std::nullopt;
    mFocusDay = piece ? mLog.Days().first.AddDays(mScene->Layout().Pieces()[*piece].day) : Date();
    viewport()->update();
    if (!piece) {
        return;
    }
    AgendaAccess::TellFocus(*this);
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

void AgendaView::ApplyZoom(double pixelsPerMinute, double place)
{
    const auto before = mScene->Scale();
    const auto scroll = verticalScrollBar()->value();
    mZoom = pixelsPerMinute;
    mDesk.RememberSoon([pixelsPerMinute](DesktopSettings& settings) {
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

bool AgendaView::Pinch(const QNativeGestureEvent& event)
{
    if (event.gestureType() != Qt::ZoomNativeGesture) {
        return false;
    }
    // A pinch to the double is what ten notches are.
    constexpr double Notches = 10;
    Zoom(event.value() * Notches, event.position().y());
    return true;
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
    AgendaAccess::TellFocus(*this);
    viewport()->update();
}

void AgendaView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

bool AgendaView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture && Pinch(*static_cast<QNativeGestureEvent*>(event))) {
        return true;
    }
    if (event->type() == QEvent::Leave && mBubble) {
        mBubble->LeaveSoon();
    }
    if (event->type() == QEvent::ToolTip) {
        mMouse.ToolTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
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
    if (event->type() == QEvent::ActivationChange) {
        mMouse.EndRest();
    }
    if (mScene && (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)) {
        TakeFont();
        FollowLook();
    }
}

void AgendaView::scrollContentsBy(int /*dx*/, int dy)
{
    mMouse.EndRest();
    // The gutter and the columns scroll as they are; only the strip that appears is painted.
    viewport()->scroll(0, dy);
}

}
