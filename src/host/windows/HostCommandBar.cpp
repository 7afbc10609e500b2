#include "host/windows/HostCommandBar.h"

#include "base/Failure.h"
#include "host/windows/BuiltInCommand.h"
#include "host/windows/HostCommandBarButton.h"
#include "host/windows/HostCommandBarControls.h"
#include "host/windows/HostCommandBarPopup.h"
#include "host/windows/HostCommandBarSplitButton.h"
#include "host/windows/HostCommandBars.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

Ref<HostCommandBarControl> Make(HostCommandBarControl::State state)
{
    switch (state.type) {
    case CommandBarControlType::Popup:
        return MakeRef<HostCommandBarPopup>(std::move(state));
    case CommandBarControlType::SplitButtonPopup:
        return MakeRef<HostCommandBarSplitButton>(std::move(state));
    case CommandBarControlType::Button:
        break;
    }
    return MakeRef<HostCommandBarButton>(std::move(state));
}

/// A control made of a built-in command, menus with their entries.
Ref<HostCommandBarControl> Make(const BuiltInCommand& command)
{
    HostCommandBarControl::State state;
    state.type = command.type;
    state.id = command.id;
    state.caption = command.caption;
    auto control = Make(std::move(state));
    for (const auto entry : command.entries) {
        control.As<HostCommandBarPopup>()->Menu()->Append(Make(*BuiltInCommand::Of(entry)));
    }
    return control;
}

}

HostCommandBar::HostCommandBar(std::string name, Origin origin, std::shared_ptr<HostCommandBarFrame> frame)
    : mName(std::move(name))
    , mOrigin(origin)
    , mFrame(std::move(frame))
{
}

std::string HostCommandBar::Name() const
{
    CheckThere();
    return mName;
}

BarPosition HostCommandBar::Position() const
{
    CheckThere();
    return mPosition;
}

void HostCommandBar::SetPosition(BarPosition position)
{
    CheckThere();
    if (std::exchange(mPosition, position) != position) {
        Changed();
    }
}

bool HostCommandBar::Visible() const
{
    CheckThere();
    return mVisible;
}

void HostCommandBar::SetVisible(bool visible)
{
    CheckThere();
    if (std::exchange(mVisible, visible) != visible) {
        Changed();
    }
}

Ref<CommandBarControls> HostCommandBar::Controls()
{
    CheckThere();
    return MakeRef<HostCommandBarControls>(shared_from_this());
}

Ref<CommandBarControl> HostCommandBar::FindControl(const ControlSearch& search)
{
    CheckThere();
    const auto found = std::find_if(mEntries.begin(), mEntries.end(), [&](const auto& control) {
        const auto& now = control->Now();
        return (!search.id || *search.id == now.id) && (!search.tag || *search.tag == now.tag);
    });
    return found == mEntries.end() ? nullptr : found->template As<CommandBarControl>();
}

void HostCommandBar::Delete()
{
    CheckThere();
    const auto bars = mBars.lock();
    if (mOrigin == Origin::BuiltIn || !bars) {
        throw Failure(Error::InvalidCall, "The bar \"" + mName + "\" can't be deleted");
    }
    bars->Remove(shared_from_this());
}

Ref<HostCommandBarControl> HostCommandBar::Add(const CommandBarAddition& addition)
{
    CheckThere();
    if (addition.before && (*addition.before < 1 || static_cast<std::size_t>(*addition.before) > mEntries.size())) {
        throw Failure(Error::InvalidCall, "The bar \"" + mName + "\" has no such position");
    }
    const auto id = addition.id.value_or(0);
    Ref<HostCommandBarControl> control;
    if (id == 0 || id == HostCommandBarControl::OwnId) {
        if (addition.type == CommandBarControlType::SplitButtonPopup) {
            throw Failure(Error::InvalidCall, "Split buttons are made of built-in commands only");
        }
        HostCommandBarControl::State state;
        state.type = addition.type;
        control = Make(std::move(state));
    } else {
        const auto* command = BuiltInCommand::Of(id);
        if (command == nullptr || command->type != addition.type) {
            throw Failure(Error::InvalidCall, "There is no command " + std::to_string(id) + " of that kind");
        }
        control = Make(*command);
    }
    control->Change(&HostCommandBarControl::State::parameter, addition.parameter);
    Insert(addition.before ? static_cast<std::size_t>(*addition.before) - 1 : mEntries.size(), control);
    return control;
}

void HostCommandBar::Append(const Ref<HostCommandBarControl>& control)
{
    Insert(mEntries.size(), control);
}

void HostCommandBar::Remove(const Ref<HostCommandBarControl>& control)
{
    std::erase(mEntries, control);
    control->MarkGone();
    Changed();
}

void HostCommandBar::Changed() const
{
    if (mFrame) {
        mFrame->changes.Tell();
    }
}

void HostCommandBar::CheckUsable() const
{
    CheckThere();
    if (!mVisible) {
        throw Failure(Error::InvalidCall, "The bar \"" + mName + "\" is hidden");
    }
    if (const auto menu = mMenu.lock()) {
        menu->CheckUsable();
    }
}

void HostCommandBar::Belong(
    const std::weak_ptr<HostCommandBarControl>& menu, const std::shared_ptr<HostCommandBarFrame>& frame)
{
    mMenu = menu;
    mFrame = frame;
    for (const auto& control : mEntries) {
        control->PutOn(shared_from_this());
    }
}

void HostCommandBar::MarkGone()
{
    mGone = true;
    for (const auto& control : std::exchange(mEntries, {})) {
        control->MarkGone();
    }
}

void HostCommandBar::CheckThere() const
{
    if (mGone) {
        throw Failure(Error::ObjectNotFound);
    }
}

void HostCommandBar::Insert(std::size_t index, const Ref<HostCommandBarControl>& control)
{
    mEntries.insert(mEntries.begin() + static_cast<std::ptrdiff_t>(index), control);
    control->PutOn(shared_from_this());
    Changed();
}

}
