#pragma once

#include "base/Ref.h"
#include "host/windows/HostCommandBar.h"
#include "platform/commandbars/CommandBars.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// The command bars of a window. They may come into being later than the window; until then there are none, and none
/// can be added. Once the window is gone every member fails (462).
class HostCommandBars final : public CommandBars, public std::enable_shared_from_this<HostCommandBars>
{
public:
    std::int32_t Count() override;
    Ref<CommandBar> Item(std::int32_t index) override;
    Ref<CommandBar> ItemNamed(const std::string& name) override;
    Ref<CommandBar> Add(const std::string& name) override;

    /// Subscribes whoever draws the bars.
    Subscription SubscribeToChanges(ChangeEvents events) { return mFrame->changes.Subscribe(std::move(events)); }
    /// The bars of a window on a folder come into being: "Standard" and "Menu Bar". Does nothing when they are there.
    void MakeForExplorer(const std::function<void(std::int32_t id)>& run);
    /// The bar of a window on an item comes into being: "Standard". Does nothing when it is there.
    void MakeForInspector(const std::function<void(std::int32_t id)>& run);
    /// The bars in their order, none before they came into being and after the window is gone.
    const std::vector<Ref<HostCommandBar>>& All() const { return mBars; }
    /// Takes a bar out, which is gone from then on.
    void Remove(const Ref<HostCommandBar>& bar);
    /// The window is gone, and with it all bars.
    void MarkGone();

private:
    void CheckOpen() const;
    /// True for the first time, when the bars are to come into being.
    bool Begin(const std::function<void(std::int32_t id)>& run);
    void AddBuiltIn(const std::string& name, BarPosition position, const std::vector<std::int32_t>& commands);
    Ref<HostCommandBar> Find(const std::string& name) const;

    std::vector<Ref<HostCommandBar>> mBars;
    std::shared_ptr<HostCommandBarFrame> mFrame = std::make_shared<HostCommandBarFrame>();
    bool mReady = false;
    bool mGone = false;
};

}
