#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// What a value between both ends of the wire is.
enum class WireKind : std::uint8_t { Nothing, Null, Flag, Number, Real, Moment, Text, Object, Missing, List };

/// A value between both ends of the wire.
struct WireValue
{
    WireKind kind = WireKind::Nothing;
    /// A flag, 0 or 1; a number; a moment in seconds since 1899-12-30 00:00:00; the number of an object, 0 for none.
    std::int64_t number = 0;
    double real = 0;
    /// A text in UTF-8, or the class of an object.
    std::string text {};
    std::vector<WireValue> list {};

    static WireValue Null() { return { .kind = WireKind::Null }; }
    /// An argument that was left out; in an event the flag by which a handler refuses it.
    static WireValue Missing() { return { .kind = WireKind::Missing }; }
    static WireValue Flag(bool flag) { return { .kind = WireKind::Flag, .number = flag ? 1 : 0 }; }
    static WireValue Number(std::int64_t number) { return { .kind = WireKind::Number, .number = number }; }
    static WireValue Real(double real) { return { .kind = WireKind::Real, .real = real }; }
    static WireValue Moment(std::int64_t seconds) { return { .kind = WireKind::Moment, .number = seconds }; }
    static WireValue Text(std::string text) { return { .kind = WireKind::Text, .text = std::move(text) }; }
    static WireValue Object(std::int64_t number, std::string className)
    {
        return { .kind = WireKind::Object, .number = number, .text = std::move(className) };
    }
    static WireValue List(std::vector<WireValue> list) { return { .kind = WireKind::List, .list = std::move(list) }; }

    bool operator==(const WireValue&) const = default;
};

}
