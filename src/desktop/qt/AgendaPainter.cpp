#include "desktop/qt/AgendaPainter.h"

#include "desktop/Contrast.h"
#include "desktop/qt/QtText.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <map>

namespace tempodial {

namespace {

constexpr int SecondsOfMinute = 60;
constexpr int MinutesOfHour = 60;
constexpr int MinutesOfDay = 1440;
constexpr double GutterMargin = 8;
constexpr double TextIndent = 9;
constexpr double PatternIndent = 17;
constexpr double FadedOpacity = 0.25;
/// Pixels between an activity and the one below it.
constexpr double BetweenPieces = 1;

/// The seconds of a day of the days shown, in the part that is drawn.
DaySpan SpanOf(const TimeScale& scale, const QRectF& part)
{
    return { scale.SecondAt(part.top()), scale.SecondAt(part.bottom()) };
}

/// The activities in whose colours stripes are drawn in the place of their own, by the pieces of these.
std::map<std::size_t, std::size_t> FoldedInto(const AgendaPainter::Picture& picture)
{
    std::map<std::size_t, std::size_t> folded;
    for (const auto& run : picture.scene.Runs()) {
        for (auto i = run.pieces.begin; picture.foldsShortOnes && run.folded && i < run.pieces.end; ++i) {
            folded.emplace(i, *run.folded);
        }
    }
    return folded;
}

/// The day of the days shown on which a moment is; nothing when it is on none.
std::optional<int> DayOf(const AgendaScene& scene, Date moment)
{
    const auto day = DaysBetween(scene.Days().first, moment);
    return day >= 0 && day < scene.Layout().Days() ? std::optional(day) : std::nullopt;
}

}

double AgendaPainter::GutterFor(const std::vector<QString>& hourNames) const
{
    double widest = 0;
    for (const auto& name : hourNames) {
        widest = std::max(widest, mTexts.WidthOf(TextRole::Small, name));
    }
    return std::ceil(widest + 2 * GutterMargin + 2);
}

void AgendaPainter::Paint(QPainter& painter, const Picture& picture, const QRectF& part)
{
    PaintGrounds(painter, picture, part);
    PaintGrid(painter, picture, part);
    PaintGaps(painter, picture, part);
    PaintPieces(painter, picture, part);
    PaintRuns(painter, picture, part);
    PaintNow(painter, picture);
}

void AgendaPainter::PaintGrounds(QPainter& painter, const Picture& picture, const QRectF& part) const
{
    const auto& colours = mLook.Colours();
    const auto& scene = picture.scene;
    painter.fillRect(part, ToQt(colours.paper));
    for (int day = 0; day < scene.Layout().Days(); ++day) {
        const auto column = ToQt(scene.Geometry().Column(day));
        const auto date = scene.Days().first.AddDays(day);
        const bool isToday = date == picture.now.Day();
        const auto worked = picture.hours.HoursOf(date);
        const auto ground = ToQt(isToday ? colours.today : colours.paper);
        const auto off = ToQt(isToday ? Mixed(colours.today, colours.offHours, 0.6) : colours.offHours);
        painter.fillRect(column & part, off);
        const auto top = scene.Scale().PlaceOf(worked.from);
        const QRectF work(column.x(), top, column.width(), scene.Scale().PlaceOf(worked.to) - top);
        painter.fillRect(work & part, ground);
    }
}

void AgendaPainter::PaintGrid(QPainter& painter, const Picture& picture, const QRectF& part)
{
    const auto& colours = mLook.Colours();
    const auto& scale = picture.scene.Scale();
    const auto step = scale.GridMinutes();
    const auto labelHeight = mTexts.HeightOf(TextRole::Small);
    const auto nowPlace = scale.PlaceOf(static_cast<std::int32_t>(picture.now.SecondOfDay()));
    const bool showsNow = DayOf(picture.scene, picture.now).has_value();
    for (int minute = 0; minute <= MinutesOfDay; minute += step) {
        const auto y = scale.PlaceOf(minute * SecondsOfMinute);
        if (y < part.top() - labelHeight || y > part.bottom() + labelHeight) {
            continue;
        }
        const bool isHour = minute % MinutesOfHour == 0;
        painter.fillRect(
            QRectF(picture.gutter, y, picture.width, 1), ToQt(isHour ? colours.hourLine : colours.minuteLine));
        const bool isBesideNow = showsNow && std::abs(y - nowPlace) < labelHeight + 2;
        if (isHour && minute > 0 && minute < MinutesOfDay && !isBesideNow) {
            const auto& name = picture.hourNames[static_cast<std::size_t>(minute / MinutesOfHour)];
            const auto width = mTexts.WidthOf(TextRole::Small, name);
            mTexts.Draw(painter, TextRole::Small, ToQt(colours.faintText),
                { picture.gutter - GutterMargin - width, y - labelHeight / 2 }, picture.gutter, name);
        }
    }
    for (int day = 0; day < picture.scene.Layout().Days(); ++day) {
        const auto column = picture.scene.Geometry().Column(day);
        painter.fillRect(QRectF(column.left, part.top(), 1, part.height()), ToQt(colours.hourLine));
    }
}

void AgendaPainter::Clear(QPainter& painter, const QRectF& box, Date moment, const Picture& picture) const
{
    const bool isToday = moment.Day() == picture.now.Day();
    painter.fillRect(box, ToQt(isToday ? mLook.Colours().today : mLook.Colours().paper));
}

void AgendaPainter::PaintGaps(QPainter& painter, const Picture& picture, const QRectF& part)
{
    const auto& scene = picture.scene;
    const auto height = mTexts.HeightOf(TextRole::Small);
    for (std::size_t i = 0; i < scene.Gaps().size(); ++i) {
        const auto& gap = scene.Gaps()[i];
        const auto day = DayOf(scene, gap.from);
        if (picture.gaps[i].isEmpty() || !day) {
            continue;
        }
        const auto column = scene.Geometry().Column(*day);
        const auto top = scene.Scale().PlaceOf(static_cast<std::int32_t>(gap.from.SecondOfDay()));
        const auto bottom = top + scene.Scale().PixelsPerMinute() * gap.minutes;
        if (bottom < part.top() || top > part.bottom()) {
            continue;
        }
        const auto room = column.width - 2 * TextIndent;
        const auto width = std::min(mTexts.WidthOf(TextRole::Small, picture.gaps[i]), room);
        const QPointF place(column.left + (column.width - width) / 2, (top + bottom - height) / 2);
        Clear(painter, QRectF(place, QSizeF(width, height)), gap.from, picture);
        mTexts.Draw(painter, TextRole::Small, ToQt(mLook.Colours().faintText), place, room, picture.gaps[i]);
    }
}

void AgendaPainter::PaintPieces(QPainter& painter, const Picture& picture, const QRectF& part)
{
    const auto& scene = picture.scene;
    const auto& geometry = scene.Geometry();
    const auto& layout = scene.Layout();
    const auto span = SpanOf(scene.Scale(), part);
    std::vector<std::pair<QRectF, bool>> frames;
    const auto foldedInto = FoldedInto(picture);
    for (int day = 0; day < layout.Days(); ++day) {
        const auto range = layout.Reaching(day, span);
        for (auto i = range.begin; i < range.end; ++i) {
            const auto& piece = layout.Pieces()[i];
            const auto& card = picture.cards[piece.activity];
            auto box = ToQt(geometry.BoxOf(piece));
            painter.setOpacity(card.isFaded ? FadedOpacity : 1);
            if (geometry.IsStripe(piece)) {
                const auto folded = foldedInto.find(i);
                mCards.DrawStripe(
                    painter, box, (folded == foldedInto.end() ? card : picture.cards[folded->second]).style);
            } else {
                box.setHeight(box.height() - BetweenPieces);
                PaintCard(painter, box, card);
                if (card.isSoft) {
                    PaintSoftEdge(painter, box);
                }
            }
            const bool isFocus = picture.focus == i;
            if (card.isSelected || isFocus) {
                frames.emplace_back(box, isFocus && !card.isSelected);
            }
        }
    }
    painter.setOpacity(1);
    // What is selected lies above its neighbours.
    for (const auto& [box, isFocus] : frames) {
        PaintFrame(painter, box, isFocus);
    }
}

void AgendaPainter::PaintCard(QPainter& painter, const QRectF& box, const AgendaCard& card)
{
    mCards.Draw(painter, box, card.style);
    const auto bold = mTexts.HeightOf(TextRole::Bold);
    const auto usual = mTexts.HeightOf(TextRole::Usual);
    const auto small = mTexts.HeightOf(TextRole::Small);
    const auto indent = card.style.pattern ? PatternIndent : TextIndent;
    const auto left = box.x() + indent;
    const auto width = box.width() - indent - 4;
    const auto ink = ToQt(card.style.colours.ink);
    constexpr double Above = 3;
    if (box.height() < bold) {
        mTexts.Draw(painter, TextRole::Small, ink, { left, box.center().y() - small / 2 }, width, card.title);
        return;
    }
    const bool hasRoom = box.height() >= Above + bold + usual;
    auto y = hasRoom ? box.y() + Above : box.center().y() - bold / 2;
    mTexts.Draw(painter, TextRole::Bold, ink, { left, y }, width, card.title);
    const auto second = ToQt(card.style.colours.SecondInk());
    y += bold;
    for (const auto* line : { &card.detail, &card.times }) {
        if (hasRoom && !line->isEmpty() && y + usual <= box.bottom()) {
            mTexts.Draw(painter, TextRole::Usual, second, { left, y }, width, *line);
            y += usual;
        }
    }
}

void AgendaPainter::PaintSoftEdge(QPainter& painter, const QRectF& box) const
{
    // Paper comes through the more the nearer the end is.
    constexpr int Lines = 3;
    const auto paper = ToQt(mLook.Colours().paper);
    for (int line = 1; line <= Lines; ++line) {
        const auto bottom = box.bottom() - (line - 1) * 3;
        painter.fillRect(QRectF(box.x(), bottom - (Lines - line + 1), box.width(), Lines - line + 1), paper);
    }
}

void AgendaPainter::PaintRuns(QPainter& painter, const Picture& picture, const QRectF& part)
{
    const auto& scene = picture.scene;
    const auto height = mTexts.HeightOf(TextRole::Small);
    for (std::size_t i = 0; i < scene.Runs().size(); ++i) {
        const auto& run = scene.Runs()[i];
        if (picture.foldsShortOnes && run.folded) {
            continue;
        }
        const auto box = run.LabelBox(height);
        if (box && box->top < part.bottom() && box->Bottom() > part.top()) {
            const QPointF place(box->left + 3, box->top);
            const auto width = std::min(mTexts.WidthOf(TextRole::Small, picture.labels[i]), box->width - 6);
            Clear(painter, QRectF(place, QSizeF(width, height)),
                scene.ActivityOf(scene.Layout().Pieces()[run.pieces.begin]).start, picture);
            mTexts.Draw(
                painter, TextRole::Small, ToQt(mLook.Colours().quietText), place, box->width - 6, picture.labels[i]);
        }
    }
}

void AgendaPainter::PaintFrame(QPainter& painter, const QRectF& box, bool isFocus) const
{
    constexpr double Radius = 5;
    QPen pen(ToQt(isFocus ? mLook.Colours().text : mLook.Colours().accent), isFocus ? 1 : 2);
    if (isFocus) {
        pen.setStyle(Qt::DotLine);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(0, 0, 0, 0), Radius, Radius);
    painter.restore();
}

void AgendaPainter::PaintNow(QPainter& painter, const Picture& picture)
{
    const auto day = DayOf(picture.scene, picture.now);
    if (!day) {
        return;
    }
    const auto& colours = mLook.Colours();
    const auto column = picture.scene.Geometry().Column(*day);
    const auto y = picture.scene.Scale().PlaceOf(static_cast<std::int32_t>(picture.now.SecondOfDay()));
    const auto now = ToQt(colours.now);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    auto faint = now;
    constexpr double FaintLine = 0.35;
    faint.setAlphaF(mLook.IsHighContrast() ? 1 : static_cast<float>(FaintLine));
    painter.fillRect(QRectF(picture.gutter, y, column.left - picture.gutter, 1), faint);
    painter.fillRect(QRectF(column.left, y - 1, column.width, 2), now);
    painter.setPen(Qt::NoPen);
    painter.setBrush(now);
    constexpr double Dot = 4;
    painter.drawEllipse(QPointF(column.left, y), Dot, Dot);
    const auto& name = picture.hourNames.back();
    const auto height = mTexts.HeightOf(TextRole::Small);
    const auto width = mTexts.WidthOf(TextRole::Small, name);
    const QRectF badge(picture.gutter - width - 2 * GutterMargin, y - height / 2 - 1, width + GutterMargin, height + 2);
    painter.drawRoundedRect(badge, 4, 4);
    mTexts.Draw(painter, TextRole::Small, ToQt(colours.nowText), { badge.x() + GutterMargin / 2, badge.y() + 1 },
        width + 2, name);
    painter.restore();
}

}
