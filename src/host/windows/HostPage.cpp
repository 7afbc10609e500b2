#include "host/windows/HostPage.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// The controls of a page, which they keep alive.
class Controls final : public PageControls
{
public:
    explicit Controls(Ref<HostPage> page)
        : mPage(std::move(page))
    {
    }

    Ref<PageControl> Item(const std::string& name) override { return mPage->Control(name); }

private:
    Ref<HostPage> mPage;
};

PropertyType TypeOf(const FormPageLayout::Field& field, const FormTemplate& form)
{
    if (const auto* property = FindProperty(form.fields, field.field)) {
        return property->type;
    }
    return field.kind == FormPageLayout::Kind::Check ? PropertyType::YesNo : PropertyType::Text;
}

}

HostPage::HostPage(FormPageLayout layout, const FormTemplate& form, const Ref<StoreItem>& item)
    : mLayout(std::move(layout))
    , mItemChanges(item->SubscribeWindow({ .LetGo = {}, .Changed = [changes = mChanges] { changes->Tell(); } }))
{
    for (const auto& row : mLayout.rows) {
        for (const auto& field : row) {
            mControls.push_back(MakeRef<HostPageControl>(field, TypeOf(field, form), item, mChanges));
        }
    }
}

Ref<PageControls> HostPage::Controls()
{
    return MakeRef<tempodial::Controls>(shared_from_this());
}

const Ref<HostPageControl>& HostPage::Control(const std::string& name) const
{
    const auto found = std::find_if(mControls.begin(), mControls.end(),
        [&](const auto& control) { return EqualIgnoringCase(control->Layout().name, name); });
    if (found == mControls.end()) {
        throw Failure(Error::ObjectNotFound);
    }
    return *found;
}

void HostPage::MarkGone()
{
    mItemChanges.End();
    for (const auto& control : mControls) {
        control->MarkGone();
    }
}

}
