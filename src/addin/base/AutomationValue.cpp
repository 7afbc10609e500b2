#include "addin/base/AutomationValue.h"

#include "addin/base/AutomationDate.h"
#include "addin/base/ResultFailure.h"
#include "addin/base/SystemText.h"

#include <limits>
#include <utility>

namespace tempodial {

namespace {

/// 1 January 4501, which stands for a moment that was never set.
constexpr double UnsetMoment = 949998;

}

AutomationValue::AutomationValue(std::int32_t number)
    : AutomationValue()
{
    mVariant.vt = VT_I4;
    mVariant.lVal = number;
}

AutomationValue::AutomationValue(bool flag)
    : AutomationValue()
{
    mVariant.vt = VT_BOOL;
    mVariant.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

AutomationValue::AutomationValue(const std::string& text)
    : AutomationValue()
{
    mVariant.bstrVal = NewBstr(text);
    mVariant.vt = VT_BSTR;
}

AutomationValue::AutomationValue(Date moment)
    : AutomationValue()
{
    mVariant.vt = VT_DATE;
    mVariant.date = ToAutomationDate(moment);
}

AutomationValue::AutomationValue(const Variant& value)
    : AutomationValue()
{
    if (const auto* text = value.If<std::string>()) {
        *this = AutomationValue(*text);
    } else if (const auto* number = value.If<std::int32_t>()) {
        *this = AutomationValue(*number);
    } else if (const auto* moment = value.If<Date>()) {
        *this = AutomationValue(*moment);
    } else if (const auto* flag = value.If<bool>()) {
        *this = AutomationValue(*flag);
    }
}

AutomationValue::AutomationValue(const ComRef<IDispatch>& object)
    : AutomationValue()
{
    mVariant.vt = VT_DISPATCH;
    mVariant.pdispVal = ComRef<IDispatch>(object).Detach();
}

AutomationValue::AutomationValue(const std::vector<std::string>& texts)
    : AutomationValue()
{
    auto* array = SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(texts.size()));
    if (array == nullptr) {
        throw Failure(Error::OutOfMemory);
    }
    mVariant.vt = VT_ARRAY | VT_VARIANT;
    mVariant.parray = array;
    LONG index = 0;
    for (const auto& text : texts) {
        AutomationValue element(text);
        Check(SafeArrayPutElement(array, &index, element.Put()));
        ++index;
    }
}

AutomationValue::AutomationValue(AutomationValue&& other) noexcept
    : mVariant(other.Detach())
{
}

AutomationValue& AutomationValue::operator=(AutomationValue&& other) noexcept
{
    std::swap(mVariant, other.mVariant);
    return *this;
}

AutomationValue AutomationValue::Missing()
{
    AutomationValue missing;
    missing.mVariant.vt = VT_ERROR;
    missing.mVariant.scode = DISP_E_PARAMNOTFOUND;
    return missing;
}

VARIANT AutomationValue::Detach() noexcept
{
    const auto variant = mVariant;
    VariantInit(&mVariant);
    return variant;
}

Variant AutomationValue::ToVariant() const
{
    switch (mVariant.vt) {
    case VT_EMPTY:
    case VT_NULL:
        return {};
    case VT_BOOL:
        return mVariant.boolVal != VARIANT_FALSE;
    case VT_DATE:
        return mVariant.date == UnsetMoment ? Variant() : Variant(FromAutomationDate(mVariant.date));
    case VT_I1:
    case VT_UI1:
    case VT_I2:
    case VT_UI2:
    case VT_I4:
    case VT_INT:
        return std::int32_t { ChangedTo(VT_I4).mVariant.lVal };
    case VT_UI4:
    case VT_UINT:
        if (mVariant.ulVal > static_cast<ULONG>(std::numeric_limits<std::int32_t>::max())) {
            throw Failure(Error::Overflow);
        }
        return static_cast<std::int32_t>(mVariant.ulVal);
    case VT_BSTR:
        return FromBstr(mVariant.bstrVal);
    case VT_DISPATCH:
        if (mVariant.pdispVal == nullptr) {
            throw Failure(Error::ObjectNotSet);
        }
        [[fallthrough]];
    default:
        return FromBstr(ChangedTo(VT_BSTR).mVariant.bstrVal);
    }
}

std::string AutomationValue::ToText() const
{
    return mVariant.vt == VT_DATE ? FromBstr(ChangedTo(VT_BSTR).mVariant.bstrVal) : ToVariant().ToText();
}

ComRef<IDispatch> AutomationValue::ToObject() const
{
    switch (mVariant.vt) {
    case VT_EMPTY:
        return {};
    case VT_DISPATCH:
        return ComRef<IDispatch>(mVariant.pdispVal);
    case VT_UNKNOWN: {
        const auto object = ComRef<IUnknown>(mVariant.punkVal).As<IDispatch>();
        if (mVariant.punkVal != nullptr && !object) {
            throw Failure(Error::ObjectRequired);
        }
        return object;
    }
    default:
        throw Failure(Error::ObjectRequired);
    }
}

AutomationValue AutomationValue::ChangedTo(VARTYPE type) const
{
    AutomationValue changed;
    auto source = mVariant;
    Check(VariantChangeTypeEx(changed.Put(), &source, LOCALE_USER_DEFAULT, VARIANT_ALPHABOOL, type));
    return changed;
}

}
