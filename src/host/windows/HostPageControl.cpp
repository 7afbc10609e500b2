#include "host/windows/HostPageControl.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "platform/system/LocaleFormats.h"

#include <utility>

namespace tempodial {

namespace {

constexpr auto StartField = "Start";
constexpr auto EndField = "End";

}

HostPageControl::HostPageControl(
    FormPageLayout::Field layout, PropertyType type, Ref<StoreItem> item, std::shared_ptr<ChangeSource> changes)
    : mLayout(std::move(layout))
    , mType(type)
    , mItem(std::move(item))
    , mChanges(std::move(changes))
{
}

Variant HostPageControl::Value() const
{
    const auto& item = Item();
    if (mLayout.field == StartField) {
        return item.Start();
    }
    if (mLayout.field == EndField) {
        return item.End();
    }
    const auto property = mLayout.field.empty() ? nullptr : Property();
    const auto value = mLayout.field.empty() ? mOwn : property ? property->Value() : Variant();
    if (mLayout.kind == FormPageLayout::Kind::Check) {
        return value.ToBoolean();
    }
    if (const auto* date = value.If<Date>()) {
        return item.Formats().General(*date);
    }
    return value.ToText();
}

void HostPageControl::SetValue(const Variant& value)
{
    auto& item = Item();
    if (mLayout.field == StartField) {
        item.SetStart(ToMoment(value));
    } else if (mLayout.field == EndField) {
        item.SetEnd(ToMoment(value));
    } else if (mLayout.field.empty()) {
        mOwn = mLayout.kind == FormPageLayout::Kind::Check ? Variant(value.ToBoolean()) : Variant(value.ToText());
        mChanges->Tell();
    } else {
        // A value that the property can't take must not leave one behind that wasn't there.
        const auto checked = mLayout.kind == FormPageLayout::Kind::Check ? Variant(value.ToBoolean()) : value;
        auto property = Property();
        if (!property) {
            property = item.UserProperties()->Add(mLayout.field, mType, false);
        }
        property->SetValue(checked);
    }
}

std::string HostPageControl::Text() const
{
    const auto value = Value();
    if (const auto* date = value.If<Date>()) {
        return mItem->Formats().General(*date);
    }
    return value.ToText();
}

void HostPageControl::SetList(const std::vector<std::string>& list)
{
    CheckCombo();
    mList = list;
    mChanges->Tell();
}

void HostPageControl::AddItem(const std::string& text)
{
    CheckCombo();
    mList.push_back(text);
    mChanges->Tell();
}

StoreItem& HostPageControl::Item() const
{
    if (!mItem) {
        throw Failure(Error::ServerUnavailable);
    }
    return *mItem;
}

Ref<UserProperty> HostPageControl::Property() const
{
    return Item().UserProperties()->Item(mLayout.field);
}

void HostPageControl::CheckCombo() const
{
    Item();
    if (mLayout.kind != FormPageLayout::Kind::Combo) {
        throw Failure(Error::NotSupported);
    }
}

Date HostPageControl::ToMoment(const Variant& value) const
{
    if (const auto* text = value.If<std::string>()) {
        return mItem->Formats().Parse(*text);
    }
    if (const auto* date = value.If<Date>()) {
        return *date;
    }
    throw Failure(Error::TypeMismatch);
}

}
