#pragma once

#include "base/Ref.h"
#include "host/store/StoreItem.h"
#include "host/windows/ChangeEvents.h"
#include "host/windows/FormPageLayout.h"
#include "platform/objectmodel/Pages.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A control of the page of an item's window. One bound to a property shows "" or false while the item has no such
/// property, and adds it when it is set; one bound to "Start" or "End" holds a moment and reads texts by the locale.
/// Once the window is gone every member fails (462).
class HostPageControl final : public PageControl
{
public:
    /// A control of an item's page, which it tells of changes; what type a property has that it must add is as the
    /// form says.
    HostPageControl(
        FormPageLayout::Field layout, PropertyType type, Ref<StoreItem> item, std::shared_ptr<ChangeSource> changes);

    Variant Value() const override;
    /// Writes the item's field, which stays unsaved. A value that the field can't take fails (13), an end before the
    /// start (5), and nothing is changed.
    void SetValue(const Variant& value) override;
    std::string Text() const override;
    void SetText(const std::string& text) override { SetValue(text); }
    void SetList(const std::vector<std::string>& list) override;
    void AddItem(const std::string& text) override;

    /// What it is, and where it stands.
    const FormPageLayout::Field& Layout() const { return mLayout; }
    /// The entries of a combo box.
    const std::vector<std::string>& List() const { return mList; }
    /// The window is gone.
    void MarkGone() { mItem = nullptr; }

private:
    StoreItem& Item() const;
    Ref<UserProperty> Property() const;
    void CheckCombo() const;
    Date ToMoment(const Variant& value) const;

    FormPageLayout::Field mLayout;
    PropertyType mType;
    Ref<StoreItem> mItem;
    std::shared_ptr<ChangeSource> mChanges;
    /// What a control holds that isn't bound.
    Variant mOwn;
    std::vector<std::string> mList;
};

}
