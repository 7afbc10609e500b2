#include "terminal/JsonValue.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace tempodial {

using Json = nlohmann::ordered_json;

JsonValue::JsonValue()
    : mValue(std::make_unique<Json>())
{
}

JsonValue::JsonValue(bool flag)
    : mValue(std::make_unique<Json>(flag))
{
}

JsonValue::JsonValue(std::int64_t number, Integer)
    : mValue(std::make_unique<Json>(number))
{
}

JsonValue::JsonValue(double number)
    : mValue(std::make_unique<Json>(number))
{
}

JsonValue::JsonValue(const char* text)
    : mValue(std::make_unique<Json>(text))
{
}

JsonValue::JsonValue(std::string text)
    : mValue(std::make_unique<Json>(std::move(text)))
{
}

JsonValue::JsonValue(const std::vector<std::string>& texts)
    : mValue(std::make_unique<Json>(texts))
{
}

JsonValue::JsonValue(std::initializer_list<JsonMember> members)
    : mValue(std::make_unique<Json>(Json::object()))
{
    for (const auto& member : members) {
        Set(member.name, std::move(member.value));
    }
}

JsonValue::JsonValue(const JsonValue& other)
    : mValue(std::make_unique<Json>(*other.mValue))
{
}

JsonValue::JsonValue(JsonValue&& other) noexcept = default;

JsonValue& JsonValue::operator=(JsonValue other) noexcept
{
    std::swap(mValue, other.mValue);
    return *this;
}

JsonValue::~JsonValue() = default;

JsonValue JsonValue::Array()
{
    JsonValue array;
    *array.mValue = Json::array();
    return array;
}

JsonValue JsonValue::Object()
{
    JsonValue object;
    *object.mValue = Json::object();
    return object;
}

bool JsonValue::IsNull() const
{
    return mValue->is_null();
}

void JsonValue::Append(JsonValue entry)
{
    mValue->push_back(std::move(*entry.mValue));
}

void JsonValue::Set(const std::string& name, JsonValue value)
{
    (*mValue)[name] = std::move(*value.mValue);
}

std::string JsonValue::Text() const
{
    constexpr int Indentation = 2;
    return mValue->dump(Indentation, ' ', false, Json::error_handler_t::replace);
}

}
