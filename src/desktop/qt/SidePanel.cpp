#include "desktop/qt/SidePanel.h"

#include "desktop/qt/QtText.h"

#include <QBoxLayout>
#include <QFrame>
#include <QPainter>
#include <QScrollArea>

namespace tempodial {

SidePanel::SidePanel(Desk& desk, const ShownLog& log, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mLog(log)
    , mMonth(new MiniMonth(desk, this))
    , mProjects(new ProjectRows(desk, log, this))
{
    constexpr int Margin = 14;
    setFixedWidth(Width);
    setAccessibleName("Days and projects");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, 0);
    layout->setSpacing(Margin);
    layout->addWidget(mMonth);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(mProjects);
    layout->addWidget(scroll, 1);
}

void SidePanel::Follow(const QString& title)
{
    mMonth->Follow(mLog.Days());
    mProjects->Follow(title);
}

void SidePanel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(QRectF(width() - 1, 0, 1, height()), ToQt(mDesk.Look().Colours().border));
}

}
