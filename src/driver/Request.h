#pragma once

#include "base/Date.h"
#include "driver/Json.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The fields of a command. A field that is null counts as absent; one that is missing without a default, or of another
/// type, fails with `RequestError`.
class Request
{
public:
    /// Anything but an object fails.
    explicit Request(const Json& object);

    /// True when the field is there.
    bool Has(const std::string& name) const { return Find(name) != nullptr; }
    /// The field as it is.
    const Json& Any(const std::string& name) const;
    std::string Text(const std::string& name) const;
    std::string Text(const std::string& name, const std::string& otherwise) const;
    /// A whole number of 32 bits.
    std::int32_t Number(const std::string& name) const;
    std::int32_t Number(const std::string& name, std::int32_t otherwise) const;
    /// A whole number that isn't below a bound.
    std::int32_t NumberFrom(std::int32_t least, const std::string& name, std::int32_t otherwise) const;
    /// A whole number between 0 and a bound, both included.
    std::int32_t NumberUpTo(std::int32_t most, const std::string& name, std::int32_t otherwise) const;
    bool Flag(const std::string& name) const;
    bool Flag(const std::string& name, bool otherwise) const;
    /// A moment as an item's JSON has it.
    Date Moment(const std::string& name) const;
    std::vector<std::string> Texts(const std::string& name) const;
    /// An object.
    const Json& Object(const std::string& name) const;

    /// A text as a moment; `name` is the field's. Another text fails.
    static Date ToMoment(const std::string& name, const std::string& text);

private:
    const Json* Find(const std::string& name) const;

    const Json& mObject;
};

}
