#pragma once

#include "desktop/AgendaScene.h"
#include "desktop/ShownLog.h"
#include "desktop/TimeSpan.h"
#include "desktop/qt/AgendaContents.h"
#include "desktop/qt/AgendaKeys.h"
#include "desktop/qt/AgendaMouse.h"
#include "desktop/qt/AgendaPainter.h"
#include "desktop/qt/DayHead.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/EmptyNote.h"
#include "desktop/qt/ShortBubble.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QNativeGestureEvent;

namespace tempodial {

/// The activities of a day or a week as an agenda.
class AgendaView final : public QAbstractScrollArea
{
public:
    /// Rests until it follows. The log must live as long as this.
    AgendaView(Desk& desk, const ShownLog& log, QWidget* parent);
    ~AgendaView() override;

    using Numbers = std::set<std::int64_t>;

    /// What a person wants.
    struct Wishes
    {
        /// Those are selected from now on.
        std::function<void(const Numbers& numbers)> select;
        std::function<void(std::int64_t number)> open;
        std::function<void(std::int64_t number, const TimeSpan& times)> move;
        std::function<void(const TimeSpan& times)> create;
        /// The selected ones were dropped at a point of the screen, outside of the agenda.
        std::function<void(const QPoint& place)> drop;
        /// The menu of what is selected, at a point of the screen.
        std::function<void(const QPoint& place)> menu;
        /// A key that means nothing to the agenda itself; true when it was taken.
        std::function<bool(QKeyEvent& event)> key;
        /// A sentence about what is being done, empty when it is over.
        std::function<void(const QString& text)> say;
        /// What is selected gets a project, or goes.
        std::function<void()> chooseProject;
        std::function<void()> remove;
    };
    Wishes mWishes;

    /// Called when other activities may be shown, or other words of them, for what stands for them elsewhere.
    std::function<void()> mWhenFollowed;

    /// The log has changed, or how things look.
    void Follow();
    /// Shows nothing of the log, which may change meanwhile, until it follows again; for while nobody sees it.
    void Rest();
    /// The present moment has moved on.
    void FollowClock();
    /// The activities of those numbers are selected.
    void ShowSelected(const Numbers& numbers);
    const Numbers& Selected() const { return mSelected; }
    /// True when a search leaves some of the days' activities out.
    bool HidesAny() const;
    /// Only the activities with those names of what gives them their colour are shown in full; none for all.
    void ShowOnly(const std::set<std::string>& names);
    /// Says why there is nothing.
    EmptyNote& Note() { return *mNote; }
    /// Zooms by notches, so that the moment at a place of the viewport stays there; nothing for its middle.
    void Zoom(double notches, std::optional<double> place = std::nullopt);
    /// Zooms so that all can be seen.
    void ZoomToFit();
    /// Scrolls to the first activity, and to a zoom at which all can be seen unless a person has chosen one.
    void Fit();

    DayHead& Head() { return *mHead; }
    const AgendaScene& Scene() const { return *mScene; }
    const std::vector<AgendaCard>& Cards() const { return mContents.Cards(); }
    /// The piece of an activity of that number on a day of those shown, or on another where that day has none.
    std::optional<std::size_t> PieceOf(std::int64_t number, int day) const;
    /// The piece that has the focus.
    std::optional<std::size_t> Focus() const { return mFocus; }
    /// Gives a piece the focus and scrolls to it.
    void SetFocusOn(std::optional<std::size_t> piece);
    /// The activity of a piece.
    const Activity& ActivityOf(std::size_t piece) const;
    /// A place of the viewport in those of the scene.
    QPointF InScene(const QPointF& place) const;
    /// A box of the scene in places of the viewport.
    QRectF InView(const PixelBox& box) const;
    /// What is said of an activity to who rests on it.
    QString ToolTipOf(const Activity& activity) const { return mContents.ToolTipOf(activity); }
    /// What a screen reader says of an activity, of its piece besides, and of a day's bar.
    QString SpokenOf(const Activity& activity) const { return mContents.SpokenOf(activity); }
    QString DescribedOf(std::size_t piece) const;
    QString DescribedDay(int day) const { return mContents.DescribedDay(day); }
    /// Why there is nothing; hidden when there is something.
    QLabel& Note() const { return *mNote; }
    /// Opens the list of a run of short ones.
    void ShowRun(std::size_t run, ShortBubble::Opening opening = ShortBubble::Opening::Asked);
    /// The list that is open; null when none is.
    ShortBubble* Bubble() const { return mBubble; }
    /// Shows times that something would have, and a band around what is being selected.
    void ShowGhost(const std::optional<TimeSpan>& times, const QRectF& band);
    /// Says what times something would have, and what is to be known of that.
    void SayTimes(const TimeSpan& times, const TimeSpan& before) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void TakeFont();
    /// How things look has changed.
    void FollowLook()
    {
        if (!mIsResting) {
            Follow();
        }
    }
    /// The pictures that are kept are for the screen that the window is on now.
    void TakePixels();
    /// Lays the scene out anew for the width and the zoom.
    void Put();
    AgendaScene::Place Place() const;
    TimeScale Scale() const;
    void ScrollToFirst();
    void FindFocus();
    void PaintGhost(QPainter& painter) const;
    /// Zooms as two fingers do on a touch pad; false for other gestures.
    bool Pinch(const QNativeGestureEvent& event);
    void ApplyZoom(double pixelsPerMinute, double place);

    Desk& mDesk;
    const ShownLog& mLog;
    AgendaContents mContents;
    AgendaPainter mPainter;
    DayHead* mHead;
    EmptyNote* mNote;
    std::unique_ptr<AgendaScene> mScene;
    bool mIsResting = false;
    Numbers mSelected;
    std::optional<std::size_t> mFocus;
    /// The activity whose piece it is, by which it is found again when the log has changed.
    std::optional<std::int64_t> mFocusNumber;
    Date mFocusDay;
    /// Pixels a minute as they were set last; 0 when they weren't.
    double mZoom = 0;
    std::optional<TimeSpan> mGhost;
    QRectF mBand;
    AgendaMouse mMouse { *this };
    AgendaKeys mKeys { *this };
    QPointer<ShortBubble> mBubble;
    double mGutter = 0;
    /// The days to whose first activity the view was last scrolled, and where the bar stood then. As long as it stands
    /// there, the view follows the first activity, which may be another as an import goes on.
    std::optional<Period> mFitted;
    int mFittedValue = 0;
};

}
