#pragma once

#include "base/Date.h"

#include <cstdint>
#include <string>
#include <variant>

namespace tempodial {

/// A value that may hold nothing, a text, a 32-bit whole number, a date or a boolean.
class Variant
{
public:
    Variant() = default;
    Variant(std::string text)
        : mValue(std::move(text))
    {
    }
    Variant(const char* text)
        : mValue(std::string(text))
    {
    }
    Variant(std::int32_t number)
        : mValue(number)
    {
    }
    Variant(Date date)
        : mValue(date)
    {
    }
    Variant(bool value)
        : mValue(value)
    {
    }

    /// True when it holds no value.
    bool IsEmpty() const { return std::holds_alternative<std::monostate>(mValue); }
    /// The value when it is of that type, else null.
    template <class T> const T* If() const { return std::get_if<T>(&mValue); }
    /// The value as text: nothing gives the empty text; a date fails (13), since its text belongs to a locale.
    std::string ToText() const;
    /// The value as a 32-bit number: nothing gives 0, texts are read, true is -1; fails (13) or (6).
    std::int32_t ToInt32() const;
    /// The value as a boolean: nothing is false, a number is true when it isn't 0, "True" and "False" are read; else
    /// (13).
    bool ToBoolean() const;
    /// The value as a date: nothing gives the zero date; anything but a date fails (13).
    Date ToDate() const;

    friend bool operator==(const Variant&, const Variant&) = default;

private:
    std::variant<std::monostate, std::string, std::int32_t, Date, bool> mValue;
};

}
