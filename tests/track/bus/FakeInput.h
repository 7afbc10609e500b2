#pragma once

#include "track/wayland/WaylandConnection.h"

namespace tempodial {

/// Moves the pointer of a compositor that lets tests do so, as KWin does.
class FakeInput
{
public:
    FakeInput();
    ~FakeInput();
    FakeInput(const FakeInput&) = delete;
    FakeInput& operator=(const FakeInput&) = delete;

    bool IsThere() const { return mInput != nullptr; }
    /// Moves it by a little.
    void Move() const;

private:
    WaylandConnection mConnection;
    wl_proxy* mInput;
};

}
