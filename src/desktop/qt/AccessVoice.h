#pragma once

#include <QAccessible>
#include <functional>

namespace tempodial {

/// Tells assistive programs what happens to what we paint. Nothing is made for an event that nobody hears.
class AccessVoice
{
public:
    using Listener = std::function<void(QAccessibleEvent& event)>;

    /// True when somebody hears what is told.
    static bool IsHeard();
    /// Tells an event if it is heard.
    static void Tell(QAccessibleEvent& event);
    /// Somebody else hears all that is told from now on; none for the toolkit again.
    static void TellInstead(Listener listener);

private:
    static Listener& Instead();
};

}
