#include "desktop/qt/WhyBubble.h"

#include "desktop/qt/QtText.h"
#include "desktop/qt/RoomyRows.h"
#include "desktop/qt/ShownLine.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <algorithm>

namespace tempodial {

namespace {

constexpr int WhyWidth = 760;
constexpr int MostWhyRows = 12;

}

WhyBubble::WhyBubble(const std::string& sentence, const std::vector<WhyLine>& lines, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , mList(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName("Why this project");
    auto* layout = new QVBoxLayout(this);
    auto* title = new QLabel(ShownLine(sentence), this);
    title->setTextFormat(Qt::PlainText);
    title->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(mList);
    mList->setFrameShape(QFrame::NoFrame);
    mList->setHeaderLabels({ "Project", "Precedence", "Hit by", "Excluded by", "Outcome" });
    mList->setItemDelegate(new RoomyRows(mList));
    mList->setRootIsDecorated(false);
    mList->setUniformRowHeights(true);
    mList->setAllColumnsShowFocus(true);
    mList->setAccessibleName("Projects in the order in which they are tried");
    for (const auto& line : lines) {
        auto* item = new QTreeWidgetItem(mList);
        int column = 0;
        for (const auto* text : { &line.project, &line.precedence, &line.hit, &line.excluded, &line.outcome }) {
            item->setText(column, ShownLine(*text));
            item->setToolTip(column, PlainToolTip(ShownLine(*text)));
            ++column;
        }
    }
    mList->setCurrentItem(mList->topLevelItem(0));
    mList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    const auto rows = std::clamp(static_cast<int>(lines.size()), 1, MostWhyRows);
    mList->setFixedHeight(mList->header()->sizeHint().height() + rows * std::max(mList->sizeHintForRow(0), 1) + 2);
    setFixedWidth(WhyWidth);
    setFocusProxy(mList);
}

void WhyBubble::OpenAbove(const QPoint& place)
{
    adjustSize();
    move(place - QPoint(0, height()));
    show();
    setFocus();
}

}
