#pragma once

#include <nlohmann/json_fwd.hpp>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

struct JsonMember;

/// A JSON document as it grows: made of plain values where they are known, with its members in their order. It keeps
/// the library that writes it out of the sources that make documents.
class JsonValue
{
public:
    /// Null.
    JsonValue();
    JsonValue(std::nullptr_t)
        : JsonValue()
    {
    }
    JsonValue(bool flag);
    template <std::integral Number>
    JsonValue(Number number)
        : JsonValue(static_cast<std::int64_t>(number), Integer())
    {
    }
    JsonValue(double number);
    JsonValue(const char* text);
    JsonValue(std::string text);
    /// An array of texts.
    JsonValue(const std::vector<std::string>& texts);
    /// An object.
    JsonValue(std::initializer_list<JsonMember> members);
    JsonValue(const JsonValue& other);
    JsonValue(JsonValue&& other) noexcept;
    JsonValue& operator=(JsonValue other) noexcept;
    ~JsonValue();

    /// An array without entries.
    static JsonValue Array();
    /// An object without members.
    static JsonValue Object();

    /// True for null.
    bool IsNull() const;
    /// Puts a value behind the entries of an array.
    void Append(JsonValue entry);
    /// Gives an object a member, or a member another value.
    void Set(const std::string& name, JsonValue value);
    /// The document on several lines, without a line feed behind the last. Bytes that aren't UTF-8 become U+FFFD.
    std::string Text() const;
    /// The same as a value of the library.
    const nlohmann::ordered_json& Value() const { return *mValue; }

private:
    struct Integer
    {
    };

    JsonValue(std::int64_t number, Integer);

    std::unique_ptr<nlohmann::ordered_json> mValue;
};

/// A member of an object that is made of its members.
struct JsonMember
{
    std::string name;
    /// Moves into the object, also out of a list of members, which is constant.
    mutable JsonValue value;
};

}
