#pragma once

#include "desktop/qt/Desk.h"

#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace tempodial {

/// A month in small: two clicks to any day, with a stroke under each as long as its time.
class MiniMonth final : public QWidget
{
public:
    static constexpr int Weeks = 6;
    static constexpr int DaysOfWeek = 7;

    MiniMonth(Desk& desk, QWidget* parent);

    /// A person wants to see a day.
    std::function<void(Date day)> mGoTo;
    /// Called when the month, or the time of its days, has become another, for what stands for them elsewhere.
    std::function<void()> mWhenFollowed;

    /// Shows the month of a day, and which days are shown beside.
    void Follow(const Period& shown);
    /// Shows a later month, or an earlier one.
    void Page(int months);

    /// The day at the upper left corner.
    Date First() const { return mFirst; }
    /// The day that the keys are on.
    Date Cursor() const { return mCursor; }
    /// The place of a day among those of the month, from the upper left corner; nothing when it isn't seen.
    std::optional<int> PlaceOf(Date day) const;
    /// Where a place is drawn.
    QRectF BoxOf(int place) const;
    bool IsToday(Date day) const;
    /// True for the days that are shown beside.
    bool IsShown(Date day) const { return day >= mShown.first && day <= mShown.last; }
    /// What is said of a day: its date and its time.
    QString SpokenOf(Date day) const;
    /// What stands above a column, and before a week.
    QString NameOfColumn(int column) const;
    QString NameOfWeek(int week) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Read();
    void Say();
    /// The name of the month.
    QString Title() const;
    Date DayAt(const QPointF& place) const;
    /// The arrow that pages back, or forward.
    QRectF ArrowBox(int direction) const;
    double CellWidth() const { return width() / (DaysOfWeek + 1.0); }
    double CellHeight() const;
    void PaintDay(QPainter& painter, Date day, const QRectF& cell, std::int64_t most);

    Desk& mDesk;
    /// The first of the month, and the day at the upper left corner.
    Date mMonth;
    Date mFirst;
    Period mShown;
    /// The day that the keys are on.
    Date mCursor;
    /// How far the wheel was turned, in eighths of a degree, towards the next month.
    int mTurned = 0;
    /// Minutes of each day.
    std::vector<std::int64_t> mMinutes;
    /// The change of the log up to which they were read, and from which day on.
    std::pair<std::int64_t, Date> mRead { -1, {} };
};

}
