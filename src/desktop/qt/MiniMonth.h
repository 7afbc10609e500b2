#pragma once

#include "desktop/qt/Desk.h"

#include <QWidget>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace tempodial {

/// A month in small: two clicks to any day, with a stroke under each as long as its time.
class MiniMonth final : public QWidget
{
public:
    MiniMonth(Desk& desk, QWidget* parent);

    /// A person wants to see a day.
    std::function<void(Date day)> mGoTo;

    /// Shows the month of a day, and which days are shown beside.
    void Follow(const Period& shown);

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
    static constexpr int Weeks = 6;
    static constexpr int DaysOfWeek = 7;

    void Page(int months);
    void Read();
    void Say();
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
