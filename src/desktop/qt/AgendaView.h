#pragma once

#include "desktop/AgendaScene.h"
#include "desktop/ShownLog.h"
#include "desktop/qt/AgendaPainter.h"
#include "desktop/qt/DayHead.h"
#include "desktop/qt/Desk.h"

#include <QAbstractScrollArea>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tempodial {

/// The activities of a day or a week as an agenda.
class AgendaView final : public QAbstractScrollArea
{
public:
    /// The log must live as long as this.
    AgendaView(Desk& desk, const ShownLog& log, QWidget* parent);
    ~AgendaView() override;

    /// The log has changed, or how things look.
    void Follow();
    /// The activities of those numbers are selected.
    void ShowSelected(const std::set<std::int64_t>& numbers);
    /// Scrolls to the first activity, and to a zoom at which all can be seen unless a person has chosen one.
    void Fit();

    DayHead& Head() { return *mHead; }
    const AgendaScene& Scene() const { return *mScene; }
    const std::vector<AgendaCard>& Cards() const { return mCards; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void TakeFont();
    void MakeCards();
    void MakeWords();
    void MakeHead();
    /// Lays the scene out anew for the width and the zoom.
    void Put();
    AgendaScene::Place Place() const;
    TimeScale Scale() const;
    CardStyle StyleOf(const Activity& activity);
    StackedBar BarOf(std::size_t day) const;

    Desk& mDesk;
    const ShownLog& mLog;
    AgendaPainter mPainter;
    DayHead* mHead;
    std::unique_ptr<AgendaScene> mScene;
    std::vector<AgendaCard> mCards;
    std::vector<QString> mLabels;
    std::vector<QString> mGaps;
    std::vector<QString> mHourNames;
    std::set<std::int64_t> mSelected;
    std::optional<std::size_t> mFocus;
    double mGutter = 0;
    /// The days to which the view was last scrolled.
    std::optional<Period> mFitted;
};

}
