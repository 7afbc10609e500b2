#include "desktop/qt/DayHead.h"

#include "desktop/qt/QtText.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace tempodial {

namespace {

constexpr double HeadMargin = 8;
constexpr double DayBarHeight = 7;
constexpr double NumberSize = 1.45;

QFont NumberFont(QFont font)
{
    font.setPointSizeF(font.pointSizeF() * NumberSize);
    font.setWeight(QFont::DemiBold);
    return font;
}

double LineHeight(const QFont& font)
{
    return QFontMetricsF(NumberFont(font)).height() + 4;
}

/// As many letters of a name as there is room for: "Mo" tells more than "M\u2026".
QString Shortened(QString name, const QFont& font, double room)
{
    const QFontMetricsF metrics(font);
    while (!name.isEmpty() && metrics.horizontalAdvance(name) > room) {
        name.chop(1);
    }
    return name;
}

}

DayHead::DayHead(const Appearance& look, QWidget* parent)
    : QWidget(parent)
    , mLook(look)
{
}

void DayHead::Show(std::vector<Day> days)
{
    mDays = std::move(days);
    update();
}

QSize DayHead::sizeHint() const
{
    return { 0, static_cast<int>(LineHeight(font()) + DayBarHeight + 3 * HeadMargin) };
}

void DayHead::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), ToQt(mLook.Colours().paper));
    for (const auto& day : mDays) {
        Paint(painter, day);
    }
    painter.fillRect(QRectF(0, height() - 1, width(), 1), ToQt(mLook.Colours().border));
}

void DayHead::Paint(QPainter& painter, const Day& day) const
{
    const auto& colours = mLook.Colours();
    const auto line = LineHeight(font());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(day.left, height() - 2 * HeadMargin - DayBarHeight, 1, height()), ToQt(colours.hourLine));
    const auto number = NumberFont(font());
    // As large as two digits need, whatever this day's are, so that all names begin at one place.
    constexpr double AroundDigits = 10;
    const auto side = std::max(line, QFontMetricsF(number).horizontalAdvance("00") + AroundDigits);
    const QRectF circle(day.left + HeadMargin / 2, HeadMargin + (line - side) / 2, side, side);
    if (day.isToday) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ToQt(colours.accent));
        painter.drawEllipse(circle);
    }
    const auto quiet = ToQt(colours.quietText);
    painter.setFont(number);
    const auto ink = day.isQuiet ? quiet : ToQt(colours.text);
    painter.setPen(day.isToday ? ToQt(colours.accentText) : ink);
    painter.drawText(circle, Qt::AlignCenter, day.number);
    auto bold = font();
    bold.setWeight(QFont::DemiBold);
    const auto totalWidth = QFontMetricsF(bold).horizontalAdvance(day.total);
    const auto right = day.left + day.width - HeadMargin;
    const QRectF rest(circle.right() + HeadMargin / 2, HeadMargin, right - circle.right() - HeadMargin / 2, line);
    painter.setFont(font());
    painter.setPen(day.isToday ? ToQt(colours.link) : quiet);
    painter.drawText(
        rest, Qt::AlignLeft | Qt::AlignVCenter, Shortened(day.name, font(), rest.width() - totalWidth - 4));
    painter.setFont(bold);
    painter.setPen(ToQt(colours.text));
    painter.drawText(rest, Qt::AlignRight | Qt::AlignVCenter, day.total);
    day.bar.Paint(
        painter, { day.left + HeadMargin, HeadMargin * 2 + line - 2, day.width - 2 * HeadMargin, DayBarHeight });
}

std::size_t DayHead::DayAt(double x) const
{
    const auto found = std::find_if(
        mDays.begin(), mDays.end(), [x](const Day& day) { return x >= day.left && x < day.left + day.width; });
    return static_cast<std::size_t>(found - mDays.begin());
}

void DayHead::mouseReleaseEvent(QMouseEvent* event)
{
    const auto day = DayAt(event->position().x());
    if (event->button() == Qt::LeftButton && day < mDays.size() && mWhenChosen) {
        mWhenChosen(day);
    }
}

bool DayHead::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        const auto day = DayAt(help->pos().x());
        QToolTip::showText(help->globalPos(), day < mDays.size() ? mDays[day].spoken : QString(), this);
        return true;
    }
    return QWidget::event(event);
}

}
