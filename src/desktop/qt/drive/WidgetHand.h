#pragma once

#include "driver/ModelHand.h"

#include <functional>
#include <vector>

namespace tempodial {

class Desk;
class MainWindow;

/// A person at the desktop's windows: clicks, keys and menus. What no window shows yet is done at the models.
class WidgetHand final : public ModelHand
{
public:
    /// Finds the window of an explorer, null for none.
    using WindowFinder = std::function<MainWindow*(const Ref<HostExplorer>& explorer)>;

    /// What is given must outlive it.
    WidgetHand(DriverHost& host, Desk& desk, WindowFinder windowOf);

    void Close(const Ref<HostExplorer>& window) override;
    void Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items) override;
    void ClickCommand(const Ref<HostExplorer>& window, const CommandPath& command) override;
    Ref<HostInspector> Open(const Ref<StoreItem>& item) override;
    void Delete(const Ref<StoreItem>& item) override;

    using ModelHand::ClickCommand;
    using ModelHand::Close;
    using ModelHand::Open;

private:
    /// Does something at the windows; fails with `RequestError` when the desk is told that something failed.
    void Work(const std::function<void()>& work);
    /// The window in front, null for none.
    MainWindow* FrontWindow() const;

    Desk& mDesk;
    WindowFinder mWindowOf;
};

}
