#pragma once

#include "addin/base/ComRef.h"
#include "addin/base/Windows.h"
#include "base/Date.h"
#include "base/Variant.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// A value as automation passes it; it frees what it holds.
class AutomationValue
{
public:
    AutomationValue() noexcept { VariantInit(&mVariant); }
    explicit AutomationValue(std::int32_t number);
    explicit AutomationValue(bool flag);
    explicit AutomationValue(const std::string& text);
    explicit AutomationValue(const char* text)
        : AutomationValue(std::string(text))
    {
    }
    explicit AutomationValue(Date moment);
    explicit AutomationValue(const Variant& value);
    explicit AutomationValue(const ComRef<IDispatch>& object);
    /// A list of texts, as an array of values.
    explicit AutomationValue(const std::vector<std::string>& texts);
    /// An argument that may be left out.
    template <class T>
    explicit AutomationValue(const std::optional<T>& argument)
        : AutomationValue(argument ? AutomationValue(*argument) : Missing())
    {
    }
    AutomationValue(AutomationValue&& other) noexcept;
    AutomationValue& operator=(AutomationValue&& other) noexcept;
    AutomationValue(const AutomationValue&) = delete;
    AutomationValue& operator=(const AutomationValue&) = delete;
    ~AutomationValue() { VariantClear(&mVariant); }

    /// An argument that is left out.
    static AutomationValue Missing();
    bool IsMissing() const { return mVariant.vt == VT_ERROR && mVariant.scode == DISP_E_PARAMNOTFOUND; }
    bool IsObject() const { return mVariant.vt == VT_DISPATCH || mVariant.vt == VT_UNKNOWN; }

    /// Where a call puts a value; it must hold none.
    VARIANT* Put() { return &mVariant; }
    const VARIANT& Get() const { return mVariant; }
    /// Gives the value to the caller, who frees it.
    [[nodiscard]] VARIANT Detach() noexcept;

    /// The value in the engine's terms; what is no number, flag or moment is read as text. An unset moment is nothing.
    Variant ToVariant() const;
    /// The value as text, a moment in the general form of the user's locale.
    std::string ToText() const;
    /// The object, nothing for none; another value fails (424).
    ComRef<IDispatch> ToObject() const;

private:
    AutomationValue ChangedTo(VARTYPE type) const;

    VARIANT mVariant;
};

}
