#pragma once

#include "desktop/AgendaScene.h"
#include "desktop/WorkingHours.h"
#include "desktop/qt/Appearance.h"
#include "desktop/qt/CardCache.h"
#include "desktop/qt/TextCache.h"

#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

class QPainter;

namespace tempodial {

/// What is written on an activity, and how it looks.
struct AgendaCard
{
    QString title;
    QString detail;
    QString times;
    CardStyle style;
    bool isSelected = false;
    /// Fades, since others are looked for.
    bool isFaded = false;
    /// Its end isn't final.
    bool isSoft = false;
};

/// Draws the columns of an agenda: the grid, the activities, the present moment.
class AgendaPainter
{
public:
    /// What is drawn.
    struct Picture
    {
        const AgendaScene& scene;
        /// One for each activity.
        const std::vector<AgendaCard>& cards;
        /// What is written beside each run of short ones.
        const std::vector<QString>& labels;
        /// What is written in each gap, empty where nothing is.
        const std::vector<QString>& gaps;
        const WorkingHours& hours;
        Date now;
        /// What the hours of the grid are called, and last the present moment.
        const std::vector<QString>& hourNames;
        /// The piece that has the focus.
        std::optional<std::size_t> focus;
        bool foldsShortOnes = false;
        /// The width of the whole.
        double width = 0;
        /// The width of the hours beside the days.
        double gutter = 0;
    };

    explicit AgendaPainter(const Appearance& look)
        : mLook(look)
    {
    }

    TextCache& Texts() { return mTexts; }
    const TextCache& Texts() const { return mTexts; }
    CardCache& Cards() { return mCards; }

    /// Draws the part of the picture that lies in a box, in the picture's own places.
    void Paint(QPainter& painter, const Picture& picture, const QRectF& part);
    /// The width that the hours beside the days need.
    double GutterFor(const std::vector<QString>& hourNames) const;

private:
    void PaintGrounds(QPainter& painter, const Picture& picture, const QRectF& part) const;
    void PaintGrid(QPainter& painter, const Picture& picture, const QRectF& part);
    /// Takes away the lines behind a text.
    void Clear(QPainter& painter, const QRectF& box, Date moment, const Picture& picture) const;
    void PaintGaps(QPainter& painter, const Picture& picture, const QRectF& part);
    void PaintPieces(QPainter& painter, const Picture& picture, const QRectF& part);
    void PaintCard(QPainter& painter, const QRectF& box, const AgendaCard& card);
    /// Draws the end of an activity that may still grow.
    void PaintSoftEdge(QPainter& painter, const QRectF& box) const;
    void PaintRuns(QPainter& painter, const Picture& picture, const QRectF& part);
    void PaintFrame(QPainter& painter, const QRectF& box, bool isFocus) const;
    void PaintNow(QPainter& painter, const Picture& picture);

    const Appearance& mLook;
    TextCache mTexts;
    CardCache mCards;
};

}
