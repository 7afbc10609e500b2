#include "desktop/qt/ExampleRibbon.h"

#include "desktop/qt/FlatButton.h"
#include "desktop/qt/QtText.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>

namespace tempodial {

ExampleRibbon::ExampleRibbon(const Appearance& look, QWidget* parent)
    : QWidget(parent)
    , mLook(look)
    , mButton(new FlatButton(look, "Remove It", this))
{
    constexpr int SideMargin = 18;
    constexpr int EdgeMargin = 6;
    setAccessibleName("Example");
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(SideMargin, EdgeMargin, SideMargin, EdgeMargin);
    layout->addWidget(
        new QLabel("This is an example with made-up work. Try what you like: nothing of it is in your log.", this), 1);
    mButton->setToolTip("Closes this window and removes the example from the disk");
    layout->addWidget(mButton);
    connect(mButton, &QPushButton::clicked, this, [this] { mRemove(); });
}

void ExampleRibbon::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), ToQt(mLook.Colours().band));
}

}
