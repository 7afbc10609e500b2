#pragma once

#include "driver/Hand.h"

#include <vector>

namespace tempodial {

class DriverHost;

/// A person at the models, without a screen.
class ModelHand : public Hand
{
public:
    /// The host must outlive it.
    explicit ModelHand(DriverHost& host)
        : mHost(host)
    {
    }

    Ref<HostExplorer> OpenExplorer(const Ref<MAPIFolder>& folder, bool barsReady) override;
    void Activate(const Ref<HostExplorer>& window) override;
    void Close(const Ref<HostExplorer>& window) override;
    void GoTo(const Ref<HostExplorer>& window, const Ref<MAPIFolder>& folder) override;
    void ShowBeside(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders) override;
    void Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items) override;
    void PickView(const Ref<HostExplorer>& window, const std::string& name) override;
    void ClickCommand(const Ref<HostExplorer>& window, const CommandPath& command) override;
    Ref<HostInspector> Open(const Ref<StoreItem>& item) override;
    Ref<HostInspector> Open(const Ref<HostMail>& mail) override;
    void Edit(const Ref<HostInspector>& window, const std::string& control, const Variant& value) override;
    bool Save(const Ref<HostInspector>& window) override;
    bool Close(const Ref<HostInspector>& window) override;
    void ClickCommand(const Ref<HostInspector>& window, const CommandPath& command) override;
    bool Reschedule(const Ref<StoreItem>& item, Date start, Date end) override;
    void Delete(const Ref<StoreItem>& item) override;

private:
    DriverHost& mHost;
};

}
