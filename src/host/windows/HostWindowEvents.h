#pragma once

#include "base/Ref.h"

#include <functional>

namespace tempodial {

/// What whoever draws a window of the host wants to know, beside what the add-in hears.
struct HostWindowEvents
{
    /// Something that is seen may have changed. It is told while other work goes on, so it is only to be taken note of.
    std::function<void()> Changed;
    /// The window is to stand in front of others.
    std::function<void()> BroughtToFront;
    /// The window is gone for good.
    std::function<void()> Ended;
    /// A view was applied to the folder of an explorer, perhaps the one that it had; it is only to be taken note of
    /// too.
    std::function<void()> ViewApplied;
};

/// What whoever draws the host's windows of a kind wants to know.
template <class Window> struct HostWindowsEvents
{
    /// A window has come to the screen, behind the others; if it is to stand in front, that is told next.
    std::function<void(const Ref<Window>& window)> Opened;
};

}
