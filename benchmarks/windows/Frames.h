#pragma once

#include "windows/ShownDesk.h"
#include "windows/Spent.h"

#include <QEvent>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// What single frames cost while a person works in the week: from the input to what is then painted.
class Frames
{
public:
    explicit Frames(ShownDesk& desk)
        : mDesk(desk)
    {
    }

    std::vector<Spent> Scroll();
    std::vector<Spent> Zoom();
    std::vector<Spent> Drag();
    std::vector<Spent> Search();
    /// The arrow keys from one activity to the next, which select it.
    std::vector<Spent> Walk();

private:
    /// The costs of inputs, each of which has to be followed by a painting; fails with `std::runtime_error` otherwise.
    std::vector<Spent> Measure(const std::string& what, int count, const std::function<void(int frame)>& input);
    void Wheel(int notches, Qt::KeyboardModifiers modifiers);
    void Mouse(QEvent::Type type, const QPointF& place, Qt::MouseButtons buttons);

    ShownDesk& mDesk;
};

}
