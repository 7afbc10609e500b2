#pragma once

#include "base/Subscription.h"

#include <functional>
#include <utility>

namespace tempodial {

/// What whoever draws a form wants to know.
struct FormModelEvents
{
    /// Something that is seen may have changed.
    std::function<void()> Changed;
    /// The form is to be drawn at once, after `Changed`.
    std::function<void()> Refreshed;
    /// The form is to stand in front of other windows.
    std::function<void()> BroughtToFront;
    /// The form is gone for good.
    std::function<void()> Ended;
};

/// What a form shares with its controls.
class FormFrame
{
public:
    bool Visible() const { return mVisible; }
    void SetVisible(bool visible)
    {
        mVisible = visible;
        Changed();
    }
    /// The form is gone, so that a control of it which is still held can't be seen any more.
    void End() noexcept;

    /// The option button chosen by its address, null for none.
    const void* ChosenOption() const { return mChosenOption; }
    void SetChosenOption(const void* option) { mChosenOption = option; }

    /// Tells whoever draws the form.
    void Changed() const { mEvents.Raise(&FormModelEvents::Changed); }
    void Refresh() const
    {
        Changed();
        mEvents.Raise(&FormModelEvents::Refreshed);
    }
    void BringToFront() const { mEvents.Raise(&FormModelEvents::BroughtToFront); }
    Subscription Subscribe(FormModelEvents events) { return mEvents.Subscribe(std::move(events)); }

private:
    bool mVisible = false;
    const void* mChosenOption = nullptr;
    EventSource<FormModelEvents> mEvents;
};

inline void FormFrame::End() noexcept
{
    mVisible = false;
    try {
        mEvents.Raise(&FormModelEvents::Ended);
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // Whoever draws the form can't keep it.
    }
}

}
