#include "driver/ModelHand.h"

#include "driver/CommandBarsJson.h"
#include "driver/DriverHost.h"
#include "session/ActivityGesture.h"
#include "session/FormClick.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <variant>

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
    bool isSaved = false;
    GestureAsStep(mHost.Profile(), { window->CurrentItem() }, "Save", [&] { isSaved = window->Save(); });
    return isSaved;
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
    const bool isMoved = SecondsBetween(start, end) == SecondsBetween(item->Start(), item->End());
    bool isDone = false;
    GestureAsStep(mHost.Profile(), { item }, isMoved ? "Move" : "Resize",
        [&] { isDone = Person(mHost.Mailbox()).Reschedule(item, start, end); });
    return isDone;
}

void ModelHand::Delete(const Ref<StoreItem>& item)
{
    GestureAsStep(mHost.Profile(), { item }, "Delete", [&] { Person(mHost.Mailbox()).Delete(item); });
}

std::vector<FormSnapshot> ModelHand::Forms()
{
    return mHost.Forms().Forms();
}

void ModelHand::Type(const FormKey& form, const std::string& control, const std::string& text)
{
    mHost.Forms().Type(form, control, text);
}

void ModelHand::Choose(const FormKey& form, const std::string& control, const EntryKey& entry)
{
    mHost.Forms().Choose(form, control, entry);
}

void ModelHand::Check(const FormKey& form, const std::string& control, bool checked)
{
    mHost.Forms().Check(form, control, checked);
}

void ModelHand::Click(const FormKey& form, const std::string& control)
{
    const auto click = [&] { mHost.Forms().Click(form, control); };
    const auto forms = Forms();
    // The newest of a class comes last.
    const auto found = std::find_if(forms.rbegin(), forms.rend(), [&](const FormSnapshot& known) {
        const auto* name = std::get_if<std::string>(&form);
        return name == nullptr ? known.number == std::get<std::int32_t>(form)
                               : known.visible && known.className == *name;
    });
    if (found == forms.rend()) {
        click();
    } else {
        ClickAsStep(mHost.Profile(), found->className, found->title, click);
    }
}

bool ModelHand::Close(const FormKey& form)
{
    return mHost.Forms().Close(form);
}

}
