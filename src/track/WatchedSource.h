#pragma once

#include <chrono>
#include <poll.h>

namespace tempodial {

/// Something that has news now and then: whoever owns it waits for its descriptor, with others, and lets it take them.
/// It has no timers of its own.
class WatchedSource
{
public:
    WatchedSource() = default;
    virtual ~WatchedSource() = default;
    WatchedSource(const WatchedSource&) = delete;
    WatchedSource& operator=(const WatchedSource&) = delete;

    /// What is waited for, negative when nothing ever comes.
    virtual int Descriptor() const = 0;
    /// The events of `poll` that are waited for.
    virtual short Events() const { return POLLIN; }
    /// Takes what has come, and sends what is to be sent, without waiting; it is called when the descriptor has an
    /// event, and at each tick. False when the other side is gone, and then nothing else is asked of it.
    virtual bool Dispatch() = 0;
};

/// In what surroundings a source works.
struct WatchSettings
{
    /// After how long without input a source that is told of idleness, and can't ask, is to be told. Shorter in tests,
    /// whose clock is faster.
    std::chrono::milliseconds idleNotice { 15000 };
};

}
