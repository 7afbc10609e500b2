#pragma once

#include "driver/ModelHand.h"

#include <functional>
#include <vector>

namespace tempodial {

class Desk;
class HostWindows;
class InspectorWindow;
class MainWindow;

/// A person at the desktop's windows: clicks, keys and menus. What no window shows, or no gesture does, is done at the
/// models.
class WidgetHand final : public ModelHand
{
public:
    /// The windows that are open now, null for none.
    using Windows = std::function<const HostWindows*()>;

    /// What is given must outlive it.
    WidgetHand(DriverHost& host, Desk& desk, Windows windows);

    void Close(const Ref<HostExplorer>& window) override;
    void Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items) override;
    void ClickCommand(const Ref<HostExplorer>& window, const CommandPath& command) override;
    Ref<HostInspector> Open(const Ref<StoreItem>& item) override;
    void GoTo(const Ref<HostExplorer>& window, const Ref<MAPIFolder>& folder) override;
    void ShowBeside(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders) override;
    void PickView(const Ref<HostExplorer>& window, const std::string& name) override;
    void Activate(const Ref<HostExplorer>& window) override;
    bool Save(const Ref<HostInspector>& window) override;
    bool Reschedule(const Ref<StoreItem>& item, Date start, Date end) override;
    void Edit(const Ref<HostInspector>& window, const std::string& control, const Variant& value) override;
    bool Close(const Ref<HostInspector>& window) override;
    void ClickCommand(const Ref<HostInspector>& window, const CommandPath& command) override;
    void Delete(const Ref<StoreItem>& item) override;

    using ModelHand::Open;

private:
    MainWindow* WindowOf(const Ref<HostExplorer>& explorer) const;
    /// The window of an activity, null when there is none, as for a mail.
    InspectorWindow* WindowOf(const Ref<HostInspector>& inspector) const;
    /// The window in front, null for none.
    MainWindow* FrontWindow() const;
    /// Chooses folders in the list of a window; false when it doesn't get there.
    bool ChooseFolders(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders);
    /// The window in front when it shows an item where the pointer gets at it, null otherwise.
    MainWindow* Reached(const StoreItem& item) const;
    /// The same when the item is selected there alone, so that a gesture on it changes no selection.
    MainWindow* ReachedAlone(const StoreItem& item) const;

    Desk& mDesk;
    Windows mWindows;
};

}
