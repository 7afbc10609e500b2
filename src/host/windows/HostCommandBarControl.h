#pragma once

#include "base/Ref.h"
#include "platform/commandbars/CommandBarControl.h"

#include <cstdint>
#include <memory>
#include <string>

namespace tempodial {

class HostCommandBar;

/// The host's side of a control of a command bar: what all kinds of them have in common.
class HostCommandBarControl : public std::enable_shared_from_this<HostCommandBarControl>
{
public:
    /// The number of a control that a program made.
    static constexpr std::int32_t OwnId = 1;

    /// What a control holds.
    struct State
    {
        CommandBarControlType type = CommandBarControlType::Button;
        std::int32_t id = OwnId;
        std::string caption;
        std::string tag;
        /// A text of the program's own.
        std::string parameter;
        bool enabled = true;
        bool visible = true;
        bool beginGroup = false;
    };

    explicit HostCommandBarControl(State state);
    HostCommandBarControl(const HostCommandBarControl&) = delete;
    HostCommandBarControl& operator=(const HostCommandBarControl&) = delete;
    virtual ~HostCommandBarControl() = default;

    /// What it holds; fails (-2147221233) when it is gone.
    const State& Now() const;
    /// Changes what it holds and tells whoever draws the bars; fails (-2147221233) when it is gone.
    template <class Value> void Change(Value State::*member, const Value& value)
    {
        Now();
        if (mState.*member != value) {
            mState.*member = value;
            TellOfChange();
        }
    }
    /// A person works it: a button runs. One that is hidden, disabled, on no visible bar or no button fails (5).
    virtual void Click();
    /// Fails (5) when a person can't work it.
    void CheckUsable() const;
    /// An equal control that is on no bar yet; who listens to this one doesn't listen to it.
    virtual Ref<HostCommandBarControl> Duplicate() const = 0;
    /// It is on that bar from now on.
    virtual void PutOn(const Ref<HostCommandBar>& bar);
    /// It is gone, with all that belongs to it.
    virtual void MarkGone() { mGone = true; }
    /// Takes it off its bar.
    void Remove();
    /// Places an equal control at the end of a bar; nothing fails (91).
    Ref<CommandBarControl> CopyTo(const Ref<CommandBar>& bar) const;

protected:
    /// The bar that it is on; fails (-2147221233) when it is gone.
    Ref<HostCommandBar> Bar() const;
    /// Tells whoever draws the bars that it may look otherwise.
    void TellOfChange() const;

private:
    State mState;
    std::weak_ptr<HostCommandBar> mBar;
    bool mGone = false;
};

}
