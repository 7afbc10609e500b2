#pragma once

#include "desktop/qt/Appearance.h"

#include <QWidget>
#include <functional>

namespace tempodial {

class FlatButton;

/// Says above all else that what is shown is an example, and offers to remove it.
class ExampleRibbon final : public QWidget
{
public:
    /// The look must live as long as this.
    ExampleRibbon(const Appearance& look, QWidget* parent);

    /// A person wants the example to go.
    std::function<void()> mRemove;

    FlatButton& Button() { return *mButton; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Appearance& mLook;
    FlatButton* mButton;
};

}
