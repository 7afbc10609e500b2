#include "desktop/qt/SidePanel.h"

#include "desktop/qt/QtText.h"

#include <QBoxLayout>
#include <QFrame>
#include <QPainter>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>

namespace tempodial {

namespace {

constexpr int Margin = 14;

}

SidePanel::SidePanel(Desk& desk, const ShownLog& log, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mLog(log)
    , mMonth(new MiniMonth(desk, this))
    , mProjects(new ProjectRows(desk, log, this))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
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

QSize SidePanel::sizeHint() const
{
    constexpr int Width = 262;
    const auto rows = mProjects->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const auto needed = std::max(mMonth->sizeHint().width(), rows) + 2 * Margin;
    return { std::max(Width, needed), QWidget::sizeHint().height() };
}

QSize SidePanel::minimumSizeHint() const
{
    return { sizeHint().width(), QWidget::minimumSizeHint().height() };
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
