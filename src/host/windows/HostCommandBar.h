#pragma once

#include "base/Ref.h"
#include "host/windows/HostCommandBarControl.h"
#include "host/windows/HostCommandBarFrame.h"
#include "platform/commandbars/CommandBar.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

class HostCommandBars;

/// A bar of commands of a window, or of the entries of a menu, as a plain model.
class HostCommandBar final : public CommandBar, public std::enable_shared_from_this<HostCommandBar>
{
public:
    /// Who made a bar; one of the host's own stays.
    enum class Origin { BuiltIn, Program };

    /// An empty bar, hidden and in no place; a menu's has no frame until the menu is on a bar.
    HostCommandBar(std::string name, Origin origin, std::shared_ptr<HostCommandBarFrame> frame = nullptr);

    std::string Name() const override;
    BarPosition Position() const override;
    void SetPosition(BarPosition position) override;
    bool Visible() const override;
    void SetVisible(bool visible) override;
    Ref<CommandBarControls> Controls() override;
    Ref<CommandBarControl> FindControl(const ControlSearch& search) override;
    void Delete() override;

    /// The controls in their order.
    const std::vector<Ref<HostCommandBarControl>>& Entries() const { return mEntries; }
    /// Adds a control as `CommandBarControls.Add` does.
    Ref<HostCommandBarControl> Add(const CommandBarAddition& addition);
    /// Places a control that is on no bar yet at the end.
    void Append(const Ref<HostCommandBarControl>& control);
    /// Takes a control off, which is gone from then on.
    void Remove(const Ref<HostCommandBarControl>& control);
    /// What it shares with the other bars of its window, nothing for a menu that is on no bar.
    const std::shared_ptr<HostCommandBarFrame>& Frame() const { return mFrame; }
    /// Tells whoever draws the bars that this one may look otherwise.
    void Changed() const;
    /// Fails (5) when a person can't see it.
    void CheckUsable() const;
    /// It holds the entries of that menu.
    void Belong(const std::weak_ptr<HostCommandBarControl>& menu, const std::shared_ptr<HostCommandBarFrame>& frame);
    /// It is one of those bars, which it takes itself out of when it is deleted.
    void Belong(const std::weak_ptr<HostCommandBars>& bars) { mBars = bars; }
    /// It is gone, with its controls.
    void MarkGone();
    /// Fails (-2147221233) when it is gone.
    void CheckThere() const;

private:
    void Insert(std::size_t index, const Ref<HostCommandBarControl>& control);

    std::string mName;
    Origin mOrigin;
    std::shared_ptr<HostCommandBarFrame> mFrame;
    BarPosition mPosition = BarPosition::Floating;
    bool mVisible = false;
    bool mGone = false;
    std::vector<Ref<HostCommandBarControl>> mEntries;
    std::weak_ptr<HostCommandBarControl> mMenu;
    std::weak_ptr<HostCommandBars> mBars;
};

}
