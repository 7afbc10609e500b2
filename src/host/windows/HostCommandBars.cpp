#include "host/windows/HostCommandBars.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/windows/BarNames.h"
#include "host/windows/BuiltInCommand.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tempodial {

std::int32_t HostCommandBars::Count()
{
    CheckOpen();
    return static_cast<std::int32_t>(mBars.size());
}

Ref<CommandBar> HostCommandBars::Item(std::int32_t index)
{
    if (index < 1 || index > Count()) {
        throw Failure(Error::InvalidCall);
    }
    return mBars[static_cast<std::size_t>(index) - 1];
}

Ref<CommandBar> HostCommandBars::ItemNamed(const std::string& name)
{
    CheckOpen();
    auto found = Find(name);
    if (!found) {
        throw Failure(Error::InvalidCall);
    }
    return found;
}

Ref<CommandBar> HostCommandBars::Add(const std::string& name)
{
    CheckOpen();
    if (!mReady || Find(name)) {
        throw Failure(Error::InvalidCall);
    }
    auto bar = MakeRef<HostCommandBar>(name, HostCommandBar::Origin::Program, mFrame);
    bar->Belong(weak_from_this());
    mBars.push_back(bar);
    bar->Changed();
    return bar;
}

void HostCommandBars::MakeForExplorer(const std::function<void(std::int32_t id)>& run)
{
    if (!Begin(run)) {
        return;
    }
    using Command = BuiltInCommand;
    AddBuiltIn(ButtonBarName, BarPosition::Top, { Command::Print, Command::Delete, Command::Find, Command::Help });
    AddBuiltIn(MenuBarName, BarPosition::MenuBar,
        { Command::FileMenu, Command::EditMenu, Command::ViewMenu, Command::GoMenu, Command::ToolsMenu,
            Command::ActionsMenu, Command::HelpMenu });
}

void HostCommandBars::MakeForInspector(const std::function<void(std::int32_t id)>& run)
{
    if (!Begin(run)) {
        return;
    }
    using Command = BuiltInCommand;
    AddBuiltIn(ButtonBarName, BarPosition::Top,
        { Command::SaveAndClose, Command::Print, Command::Delete, Command::PreviousItem, Command::NextItem,
            Command::Help });
}

void HostCommandBars::Remove(const Ref<HostCommandBar>& bar)
{
    std::erase(mBars, bar);
    bar->MarkGone();
    mFrame->changes.Tell();
}

void HostCommandBars::MarkGone()
{
    mGone = true;
    for (const auto& bar : std::exchange(mBars, {})) {
        bar->MarkGone();
    }
}

void HostCommandBars::CheckOpen() const
{
    if (mGone) {
        throw Failure(Error::ServerUnavailable);
    }
}

bool HostCommandBars::Begin(const std::function<void(std::int32_t id)>& run)
{
    CheckOpen();
    if (std::exchange(mReady, true)) {
        return false;
    }
    mFrame->run = run;
    return true;
}

void HostCommandBars::AddBuiltIn(
    const std::string& name, BarPosition position, const std::vector<std::int32_t>& commands)
{
    const auto bar = MakeRef<HostCommandBar>(name, HostCommandBar::Origin::BuiltIn, mFrame);
    bar->SetPosition(position);
    bar->SetVisible(true);
    for (const auto id : commands) {
        bar->Add({ BuiltInCommand::Of(id)->type, id, "", {}, false });
    }
    mBars.push_back(bar);
    bar->Changed();
}

Ref<HostCommandBar> HostCommandBars::Find(const std::string& name) const
{
    const auto found = std::find_if(
        mBars.begin(), mBars.end(), [&](const auto& bar) { return EqualIgnoringCase(bar->Name(), name); });
    return found == mBars.end() ? nullptr : *found;
}

}
