#include "driver/ModelHand.h"

#include "driver/CommandBarsJson.h"
#include "driver/DriverHost.h"
#include "session/ActivityGesture.h"

namespace tempodial {

Ref<HostExplorer> ModelHand::OpenExplorer(const Ref<MAPIFolder>& folder, bool barsReady)
{
    return mHost.Windows().OpenExplorer(folder, barsReady);
}

void ModelHand::Activate(const Ref<HostExplorer>& window)
{
    mHost.Windows().ActivateExplorer(window);
}

void ModelHand::Close(const Ref<HostExplorer>& window)
{
    mHost.Windows().CloseExplorer(window);
}

void ModelHand::GoTo(const Ref<HostExplorer>& window, const Ref<MAPIFolder>& folder)
{
    window->GoTo(folder);
}

void ModelHand::ShowBeside(const Ref<HostExplorer>& window, const std::vector<Ref<MAPIFolder>>& folders)
{
    window->ShowBeside(folders);
}

void ModelHand::Select(const Ref<HostExplorer>& window, const std::vector<Ref<OutlookItem>>& items)
{
    window->Select(items);
}

void ModelHand::PickView(const Ref<HostExplorer>& window, const std::string& name)
{
    window->PickView(name);
}

void ModelHand::ClickCommand(const Ref<HostExplorer>& window, const CommandPath& command)
{
    const auto control = FindCommand(*window->Bars(), command.bar, command.captions);
    ClickCommandAsStep(mHost.Profile(), *window, *control);
}

Ref<HostInspector> ModelHand::Open(const Ref<StoreItem>& item)
{
    return mHost.Windows().OpenInspector(item);
}

Ref<HostInspector> ModelHand::Open(const Ref<HostMail>& mail)
{
    return mHost.Windows().OpenMail(mail);
}

void ModelHand::Edit(const Ref<HostInspector>& window, const std::string& control, const Variant& value)
{
    window->Edit(control, value);
}

bool ModelHand::Save(const Ref<HostInspector>& window)
{
    return SaveAsStep(mHost.Profile(), *window);
}

bool ModelHand::Close(const Ref<HostInspector>& window)
{
    return window->Close();
}

void ModelHand::ClickCommand(const Ref<HostInspector>& window, const CommandPath& command)
{
    const auto control = FindCommand(*window->Bars(), command.bar, command.captions);
    ClickCommandAsStep(mHost.Profile(), *window, *control);
}

bool ModelHand::Reschedule(const Ref<StoreItem>& item, Date start, Date end)
{
    return RescheduleAsStep(mHost.Profile(), item, start, end);
}

void ModelHand::Delete(const Ref<StoreItem>& item)
{
    GestureAsStep(mHost.Profile(), { item }, "Delete", [&] { Person(mHost.Mailbox()).Delete(item); });
}

}
