#pragma once

#include "desktop/qt/Appearance.h"
#include "desktop/qt/StackedBar.h"

#include <QWidget>
#include <functional>
#include <vector>

namespace tempodial {

/// The heads of an agenda's days: date, time in all, and a bar of where it went.
class DayHead final : public QWidget
{
public:
    /// What stands above a day.
    struct Day
    {
        QString number;
        QString name;
        /// The time in all, empty for none.
        QString total;
        /// What is said of the day as a whole.
        QString spoken;
        StackedBar bar;
        bool isToday = false;
        bool isQuiet = false;
        /// Where its column is.
        double left = 0;
        double width = 0;
    };

    DayHead(const Appearance& look, QWidget* parent);

    /// Called with the place of a day that was clicked.
    std::function<void(std::size_t day)> mWhenChosen;

    void Show(std::vector<Day> days);
    const std::vector<Day>& Days() const { return mDays; }
    /// The place of the day there, as many as there are for none.
    std::size_t DayAt(double x) const;
    /// A person wants to see the day of that place.
    void Choose(int day) { mWhenChosen(static_cast<std::size_t>(day)); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Paint(QPainter& painter, const Day& day) const;

    const Appearance& mLook;
    std::vector<Day> mDays;
};

}
