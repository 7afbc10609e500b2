#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "base/Variant.h"
#include "driver/CommandPath.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostExplorer.h"
#include "host/windows/HostInspector.h"
#include "host/windows/HostMail.h"
#include "platform/objectmodel/MAPIFolder.h"

#include <string>
#include <vector>

namespace tempodial {

/// What a person does at the host's windows and to its items, by whatever they are shown with. Everything
/// fails as what it works on does, and with `RequestError` where a person can't do it.
class Hand
{
public:
    virtual ~Hand() = default;

    /// Opens a window on a folder, with or without its command bars.
    virtual Ref<HostExplorer> OpenExplorer(const Ref<MAPIFolder>& folder, bool barsReady) = 0;
    virtual void Activate(const Ref<HostExplorer>& window) = 0;
    virtual void Close(const Ref<HostExplorer>& window) = 0;
    virtual void GoTo(const Ref<HostExplorer>& window, const Ref<MAPIFolder>& folder) = 0;
    virtual void ShowBeside(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders) = 0;
    virtual void Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items) = 0;
    virtual void PickView(const Ref<HostExplorer>& window, const std::string& name) = 0;
    virtual void ClickCommand(const Ref<HostExplorer>& window, const CommandPath& command) = 0;
    /// Opens a window on an item; nothing when a handler refused it.
    virtual Ref<HostInspector> Open(const Ref<StoreItem>& item) = 0;
    virtual Ref<HostInspector> Open(const Ref<HostMail>& mail) = 0;
    /// Edits a control of the page that a window shows.
    virtual void Edit(const Ref<HostInspector>& window, const std::string& control, const Variant& value) = 0;
    /// False when a handler refused it.
    virtual bool Save(const Ref<HostInspector>& window) = 0;
    /// False when a handler refused it.
    virtual bool Close(const Ref<HostInspector>& window) = 0;
    virtual void ClickCommand(const Ref<HostInspector>& window, const CommandPath& command) = 0;
    /// Drags an item to other times; false when a handler refused it.
    virtual bool Reschedule(const Ref<StoreItem>& item, Date start, Date end) = 0;
    virtual void Delete(const Ref<StoreItem>& item) = 0;
};

}
