#include "driver/Request.h"

#include "driver/RequestError.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <nlohmann/json.hpp>

#include <limits>

namespace tempodial {

namespace {

[[noreturn]] void Refuse(const std::string& name, const char* wanted)
{
    throw RequestError("the field \"" + name + "\" must be " + wanted);
}

}

Request::Request(const Json& object)
    : mObject(object)
{
    if (!object.is_object()) {
        throw RequestError("a command must be a JSON object");
    }
}

const Json& Request::Any(const std::string& name) const
{
    const auto* value = Find(name);
    if (value == nullptr) {
        throw RequestError("the field \"" + name + "\" is missing");
    }
    return *value;
}

std::string Request::Text(const std::string& name) const
{
    const auto& value = Any(name);
    if (!value.is_string()) {
        Refuse(name, "a text");
    }
    return value.get<std::string>();
}

std::string Request::Text(const std::string& name, const std::string& otherwise) const
{
    return Has(name) ? Text(name) : otherwise;
}

std::int32_t Request::Number(const std::string& name) const
{
    using Limits = std::numeric_limits<std::int32_t>;
    const auto& value = Any(name);
    const bool fits = value.is_number_unsigned()
        ? value.get<std::uint64_t>() <= std::uint64_t { Limits::max() }
        : value.is_number_integer() && value.get<std::int64_t>() >= Limits::min();
    if (!fits) {
        Refuse(name, "a whole number of 32 bits");
    }
    return value.get<std::int32_t>();
}

std::int32_t Request::Number(const std::string& name, std::int32_t otherwise) const
{
    return Has(name) ? Number(name) : otherwise;
}

std::int32_t Request::NumberFrom(std::int32_t least, const std::string& name, std::int32_t otherwise) const
{
    const auto number = Number(name, otherwise);
    if (number < least) {
        throw RequestError("the field \"" + name + "\" must be at least " + std::to_string(least));
    }
    return number;
}

std::int32_t Request::NumberUpTo(std::int32_t most, const std::string& name, std::int32_t otherwise) const
{
    const auto number = NumberFrom(0, name, otherwise);
    if (number > most) {
        throw RequestError("the field \"" + name + "\" must be at most " + std::to_string(most));
    }
    return number;
}

bool Request::Flag(const std::string& name) const
{
    const auto& value = Any(name);
    if (!value.is_boolean()) {
        Refuse(name, "true or false");
    }
    return value.get<bool>();
}

bool Request::Flag(const std::string& name, bool otherwise) const
{
    return Has(name) ? Flag(name) : otherwise;
}

Date Request::Moment(const std::string& name) const
{
    return ToMoment(name, Text(name));
}

std::vector<std::string> Request::Texts(const std::string& name) const
{
    const auto& value = Any(name);
    if (!value.is_array()) {
        Refuse(name, "a list of texts");
    }
    std::vector<std::string> texts;
    for (const auto& entry : value) {
        if (!entry.is_string()) {
            Refuse(name, "a list of texts");
        }
        texts.push_back(entry.get<std::string>());
    }
    return texts;
}

const Json& Request::Object(const std::string& name) const
{
    const auto& value = Any(name);
    if (!value.is_object()) {
        Refuse(name, "an object");
    }
    return value;
}

Date Request::ToMoment(const std::string& name, const std::string& text)
{
    // The seconds may be left out, as in the moments that a command line takes.
    constexpr std::size_t LengthWithoutSeconds = 16;
    try {
        return text.size() == LengthWithoutSeconds ? tempodial::ToMoment(name, text) : ToMomentWithSeconds(name, text);
    } catch (const UsageError& error) {
        throw RequestError(error.what());
    }
}

const Json* Request::Find(const std::string& name) const
{
    const auto found = mObject.find(name);
    return found == mObject.end() || found->is_null() ? nullptr : &*found;
}

}
