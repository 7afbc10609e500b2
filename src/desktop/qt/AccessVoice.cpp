#include "desktop/qt/AccessVoice.h"

#include <utility>

namespace tempodial {

AccessVoice::Listener& AccessVoice::Instead()
{
    static Listener instead;
    return instead;
}

bool AccessVoice::IsHeard()
{
    return Instead() || QAccessible::isActive();
}

void AccessVoice::Tell(QAccessibleEvent& event)
{
    if (Instead()) {
        Instead()(event);
    } else if (IsHeard()) {
        QAccessible::updateAccessibility(&event);
    }
}

void AccessVoice::TellInstead(Listener listener)
{
    Instead() = std::move(listener);
}

}
