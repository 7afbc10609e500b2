#pragma once

#include "base/Ref.h"
#include "host/store/FormTemplate.h"
#include "host/store/StoreItem.h"
#include "host/windows/ChangeEvents.h"
#include "host/windows/FormPageLayout.h"
#include "host/windows/HostPageControl.h"
#include "platform/objectmodel/Pages.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// The page of an item's window, as the item's form lays it out.
class HostPage final : public Page, public std::enable_shared_from_this<HostPage>
{
public:
    HostPage(FormPageLayout layout, const FormTemplate& form, const Ref<StoreItem>& item);

    Ref<PageControls> Controls() override;

    /// Subscribes whoever draws the page: what its controls show, and their lists.
    Subscription SubscribeToChanges(ChangeEvents events) { return mChanges->Subscribe(std::move(events)); }
    /// Its name and rows.
    const FormPageLayout& Layout() const { return mLayout; }
    /// The controls from the top left.
    const std::vector<Ref<HostPageControl>>& All() const { return mControls; }
    /// The control of a name, case ignored; an unknown name fails (-2147221233).
    const Ref<HostPageControl>& Control(const std::string& name) const;
    /// The window is gone, and with it the controls.
    void MarkGone();

private:
    FormPageLayout mLayout;
    std::vector<Ref<HostPageControl>> mControls;
    std::shared_ptr<ChangeSource> mChanges = std::make_shared<ChangeSource>();
    Subscription mItemChanges;
};

}
