#include "desktop/qt/MiniMonth.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/Glyphs.h"
#include "desktop/qt/MonthAccess.h"
#include "desktop/qt/QtText.h"
#include "review/ActivityReader.h"
#include "review/PeriodColumns.h"
#include "review/Totals.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace tempodial {

namespace {

constexpr double CellSpacing = 8;

QFont SmallFont(QFont font)
{
    constexpr double Size = 0.82;
    font.setPointSizeF(font.pointSizeF() * Size);
    return font;
}

}

MiniMonth::MiniMonth(Desk& desk, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Calendar");
    setObjectName("month");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

double MiniMonth::CellHeight() const
{
    return QFontMetricsF(SmallFont(font())).height() + CellSpacing;
}

QSize MiniMonth::sizeHint() const
{
    constexpr double BetweenNumbers = 6;
    const auto cell = QFontMetricsF(SmallFont(font())).horizontalAdvance("00") + BetweenNumbers;
    // The weeks' numbers and the days; the name of the month, those of the days, and the weeks.
    return { static_cast<int>((DaysOfWeek + 1) * cell), static_cast<int>((Weeks + 2) * CellHeight()) };
}

void MiniMonth::Follow(const Period& shown)
{
    if (mShown != shown) {
        mShown = shown;
        mCursor = shown.first;
        mMonth = Period::MonthOf(shown.last).first;
        update();
    }
    Read();
    Say();
}

void MiniMonth::Page(int months)
{
    const auto parts = mMonth.ToParts();
    mMonth = Date::FromYearMonthDay(parts.year, parts.month + months, 1);
    Read();
    Say();
}

void MiniMonth::Read()
{
    mFirst = Period::WeekOf(mMonth, mDesk.WeekStart()).first;
    if (const std::pair now(mDesk.Log().Count(), mFirst); std::exchange(mRead, now) == now) {
        return;
    }
    const Period days { mFirst, mFirst.AddDays(Weeks * DaysOfWeek - 1) };
    mMinutes
        = Totals::Of(EachStartingIn(mDesk.Profile(), days), RowKind::Project, ColumnsOf(days, ColumnSize::Day, nullptr))
              .minutes;
    update();
    if (mWhenFollowed) {
        mWhenFollowed();
    }
}

std::optional<int> MiniMonth::PlaceOf(Date day) const
{
    const auto place = DaysBetween(mFirst, day);
    return place >= 0 && place < Weeks * DaysOfWeek ? std::optional(place) : std::nullopt;
}

QRectF MiniMonth::BoxOf(int place) const
{
    const auto column = place % DaysOfWeek + 1;
    const auto row = place / DaysOfWeek + 2;
    return { column * CellWidth(), row * CellHeight(), CellWidth(), CellHeight() };
}

bool MiniMonth::IsToday(Date day) const
{
    return day == mDesk.Now().Day();
}

QString MiniMonth::SpokenOf(Date day) const
{
    const auto place = PlaceOf(day);
    const auto minutes = place ? mMinutes[static_cast<std::size_t>(*place)] : 0;
    return ToQt(mDesk.Formats()->LongDate(day) + PartSeparator + LengthText(minutes));
}

QString MiniMonth::NameOfColumn(int column) const
{
    return ToQt(WeekdayText(mFirst.AddDays(column).Weekday()));
}

QString MiniMonth::NameOfWeek(int week) const
{
    const auto first = mFirst.AddDays(week * DaysOfWeek);
    return ToQt(ActivityWords::WeekTitle({ first, first.AddDays(DaysOfWeek - 1) }));
}

QString MiniMonth::Title() const
{
    const auto parts = mMonth.ToParts();
    return ToQt(mDesk.Formats()->MonthAbbreviation(parts.month)) + " " + QString::number(parts.year);
}

void MiniMonth::Say()
{
    if (const auto said = Title() + ", " + SpokenOf(mCursor); said != accessibleDescription()) {
        setAccessibleDescription(said);
    }
}

void MiniMonth::paintEvent(QPaintEvent* /*event*/)
{
    const auto& colours = mDesk.Look().Colours();
    const auto width = CellWidth();
    const auto height = CellHeight();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    auto title = font();
    title.setWeight(QFont::DemiBold);
    painter.setFont(title);
    painter.setPen(ToQt(colours.text));
    painter.drawText(QRectF(0, 0, this->width(), height), Qt::AlignVCenter, Title());
    PaintGlyph(painter, Glyph::Back, ArrowBox(-1), ToQt(colours.quietText));
    PaintGlyph(painter, Glyph::Forward, ArrowBox(1), ToQt(colours.quietText));
    painter.setFont(SmallFont(font()));
    painter.setPen(ToQt(colours.faintText));
    for (int day = 0; day < DaysOfWeek; ++day) {
        painter.drawText(QRectF((day + 1) * width, height, width, height), Qt::AlignCenter, NameOfColumn(day).left(1));
    }
    const auto most = mMinutes.empty() ? 0 : *std::max_element(mMinutes.begin(), mMinutes.end());
    for (int week = 0; week < Weeks; ++week) {
        const auto top = (week + 2) * height;
        const auto name = NameOfWeek(week);
        painter.setFont(SmallFont(font()));
        painter.setPen(ToQt(colours.faintText));
        painter.drawText(QRectF(0, top, width, height), Qt::AlignCenter, name.mid(name.indexOf(' ') + 1));
        for (int day = 0; day < DaysOfWeek; ++day) {
            const auto place = week * DaysOfWeek + day;
            PaintDay(painter, mFirst.AddDays(place), BoxOf(place), most);
        }
    }
}

void MiniMonth::PaintDay(QPainter& painter, Date day, const QRectF& cell, std::int64_t most)
{
    const auto& colours = mDesk.Look().Colours();
    const auto isToday = IsToday(day);
    if (IsShown(day)) {
        painter.fillRect(cell.adjusted(0, 1, 0, -1), ToQt(colours.band));
    }
    const auto radius = std::min(cell.width(), cell.height()) / 2;
    if (isToday) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ToQt(colours.accent));
        painter.drawEllipse(cell.center(), radius, radius);
    }
    const bool isOfMonth = day.ToParts().month == mMonth.ToParts().month;
    const auto ink = isOfMonth ? colours.text : colours.faintText;
    painter.setPen(ToQt(isToday ? colours.accentText : ink));
    painter.drawText(cell.adjusted(0, -1, 0, -1), Qt::AlignCenter, QString::number(day.ToParts().day));
    const auto minutes = mMinutes[static_cast<std::size_t>(DaysBetween(mFirst, day))];
    if (minutes > 0 && !isToday) {
        constexpr double Stroke = 2;
        const auto longest = cell.width() - CellSpacing;
        const auto length = std::max(longest * static_cast<double>(minutes) / static_cast<double>(most), Stroke);
        painter.fillRect(QRectF(cell.x() + CellSpacing / 2, cell.bottom() - Stroke - 1, length, Stroke),
            ToQt(isOfMonth ? colours.accent : colours.faintText));
    }
    if (hasFocus() && day == mCursor) {
        painter.setPen(QPen(ToQt(colours.text), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(cell.adjusted(1, 1, -1, -1), 4, 4);
    }
}

QRectF MiniMonth::ArrowBox(int direction) const
{
    constexpr double Side = 16;
    const auto left = width() - (direction < 0 ? 2 * CellWidth() : CellWidth()) + (CellWidth() - Side) / 2;
    return { left, (CellHeight() - Side) / 2, Side, Side };
}

Date MiniMonth::DayAt(const QPointF& place) const
{
    const auto column = static_cast<int>(place.x() / CellWidth()) - 1;
    const auto row = static_cast<int>(place.y() / CellHeight()) - 2;
    return mFirst.AddDays(row * DaysOfWeek + std::clamp(column, 0, DaysOfWeek - 1));
}

void MiniMonth::mouseReleaseEvent(QMouseEvent* event)
{
    const auto place = event->position();
    if (event->button() != Qt::LeftButton || !QRectF(rect()).contains(place)) {
        return;
    }
    if (place.y() >= 2 * CellHeight()) {
        mGoTo(DayAt(place));
    } else if (place.y() < CellHeight() && place.x() >= width() - 2 * CellWidth()) {
        Page(place.x() < width() - CellWidth() ? -1 : 1);
    }
}

void MiniMonth::wheelEvent(QWheelEvent* event)
{
    constexpr int Notch = 120;
    mTurned += event->angleDelta().y();
    const auto months = mTurned / Notch;
    mTurned %= Notch;
    if (months != 0) {
        Page(-months);
    }
}

void MiniMonth::keyPressEvent(QKeyEvent* event)
{
    const auto go = [this](int days) {
        mCursor = mCursor.AddDays(days);
        mMonth = Period::MonthOf(mCursor).first;
        Read();
        Say();
        MonthAccess::TellFocus(*this);
        update();
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return go(-1);
    case Qt::Key_Right:
        return go(1);
    case Qt::Key_Up:
        return go(-DaysOfWeek);
    case Qt::Key_Down:
        return go(DaysOfWeek);
    case Qt::Key_PageUp:
        return go(DaysBetween(mCursor, Date::FromYearMonthDay(mCursor.ToParts().year, mCursor.ToParts().month - 1, 1)));
    case Qt::Key_PageDown:
        return go(DaysBetween(mCursor, Date::FromYearMonthDay(mCursor.ToParts().year, mCursor.ToParts().month + 1, 1)));
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        return mGoTo(mCursor);
    default:
        QWidget::keyPressEvent(event);
    }
}

void MiniMonth::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    MonthAccess::TellFocus(*this);
    update();
}

void MiniMonth::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

}
