#pragma once

#include "base/Ref.h"
#include "platform/controls/EventPump.h"

#include <QElapsedTimer>
#include <functional>

namespace tempodial {

/// The pending messages of a host with windows. A job asks for them at every line that it takes, so the windows get
/// their turn only now and then.
class QtEventPump final : public EventPump
{
public:
    /// Takes the pump of the mailbox, which is asked each time, and what brings the windows up to date.
    QtEventPump(Ref<EventPump> inner, std::function<void()> follow)
        : mInner(std::move(inner))
        , mFollow(std::move(follow))
    {
    }

    void ProcessPending() override;

private:
    Ref<EventPump> mInner;
    std::function<void()> mFollow;
    QElapsedTimer mSince;
};

}
