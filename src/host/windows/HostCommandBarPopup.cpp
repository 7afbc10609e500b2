#include "host/windows/HostCommandBarPopup.h"

#include "host/windows/HostCommandBar.h"

#include <utility>

namespace tempodial {

HostCommandBarPopup::HostCommandBarPopup(State state)
    : HostControl(std::move(state))
    , mMenu(MakeRef<HostCommandBar>(Now().caption, HostCommandBar::Origin::BuiltIn))
{
    mMenu->SetVisible(true);
}

Ref<CommandBarControls> HostCommandBarPopup::Controls()
{
    Now();
    return mMenu->Controls();
}

Ref<CommandBar> HostCommandBarPopup::CommandBar()
{
    Now();
    return mMenu;
}

Ref<HostCommandBarControl> HostCommandBarPopup::Duplicate() const
{
    auto copy = MakeRef<HostCommandBarPopup>(Now());
    for (const auto& entry : mMenu->Entries()) {
        copy->mMenu->Append(entry->Duplicate());
    }
    return copy;
}

void HostCommandBarPopup::PutOn(const Ref<HostCommandBar>& bar)
{
    HostControl::PutOn(bar);
    mMenu->Belong(shared_from_this(), bar->Frame());
}

void HostCommandBarPopup::MarkGone()
{
    HostControl::MarkGone();
    mMenu->MarkGone();
}

}
