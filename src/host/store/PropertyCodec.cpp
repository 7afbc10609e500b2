#include "host/store/PropertyCodec.h"

#include "base/Ascii.h"
#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <bitset>
#include <charconv>
#include <cstddef>
#include <cstdint>

namespace tempodial {

const ItemProperty* FindProperty(const std::vector<ItemProperty>& properties, std::string_view name)
{
    for (const auto& property : properties) {
        if (property.name == name) {
            return &property;
        }
    }
    for (const auto& property : properties) {
        if (EqualIgnoringCase(property.name, name)) {
            return &property;
        }
    }
    return nullptr;
}

namespace {

/// True for what can't stand in a JSON string as it is.
constexpr auto NeedsEscape = [](char character) {
    return character == '"' || character == '\\' || static_cast<unsigned char>(character) < 0x20;
};

/// The same for any of eight characters: the high bit of a byte tells that it is less than another one.
constexpr bool NeedsEscapeIn(AsciiWord word)
{
    constexpr auto Limits = EachByte(0x20);
    constexpr auto Ones = EachByte(1);
    const auto quote = word ^ EachByte('"');
    const auto backslash = word ^ EachByte('\\');
    return ((((word - Limits) & ~word) | ((quote - Ones) & ~quote) | ((backslash - Ones) & ~backslash))
               & EachByte(0x80))
        != 0;
}

/// Length of what stands for itself at the beginning of a text.
std::size_t PlainLength(std::string_view text)
{
    std::size_t length = 0;
    while (length + sizeof(AsciiWord) <= text.size() && !NeedsEscapeIn(WordAt(text.data() + length))) {
        length += sizeof(AsciiWord);
    }
    const auto rest = text.substr(length);
    return length + static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), NeedsEscape) - rest.begin());
}

constexpr auto IsBlank
    = [](char character) { return character == ' ' || character == '\t' || character == '\r' || character == '\n'; };

void AppendText(std::string& json, std::string_view text)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    json += '"';
    while (!text.empty()) {
        const auto plain = PlainLength(text);
        json.append(text, 0, plain);
        text.remove_prefix(plain);
        if (text.empty()) {
            break;
        }
        const auto byte = static_cast<unsigned char>(text.front());
        text.remove_prefix(1);
        if (byte >= 0x20) {
            json += '\\';
            json += static_cast<char>(byte);
        } else {
            json += "\\u00";
            json += digits[byte >> 4];
            json += digits[byte & 15];
        }
    }
    json += '"';
}

/// An activity has so many properties when nobody has added any.
constexpr std::size_t UsualCount = 8;
/// So many texts can be wanted at once.
constexpr std::size_t MostWanted = 16;

/// Reads the JSON of user properties from left to right.
class PropertyReader
{
public:
    explicit PropertyReader(std::string_view json)
        : mRest(json)
    {
    }

    std::vector<ItemProperty> Properties()
    {
        std::vector<ItemProperty> properties;
        properties.reserve(UsualCount);
        ForEach([&] { ReadProperty(properties.emplace_back()); });
        return properties;
    }
    /// Reads the texts of these names as they are spelled; false when one of them isn't there as a text.
    bool Texts(std::span<const WantedText> wanted)
    {
        std::bitset<MostWanted> met;
        std::size_t read = 0;
        std::size_t next = 0;
        ForEach([&] {
            const auto place = PlaceOf(Text(mName), wanted, next);
            const bool isWanted = place < wanted.size() && !met[place];
            const auto type = BeginValue();
            const bool hasValue = Take(',');
            if (hasValue && type == PropertyType::Text) {
                const auto text = Text(mText);
                if (isWanted) {
                    *wanted[place].text = text;
                    ++read;
                }
            } else if (hasValue) {
                Value(type);
            }
            Expect(']');
            if (isWanted) {
                met.set(place);
                next = place + 1;
            }
        });
        return read == wanted.size();
    }

private:
    /// Calls a function at the beginning of each property.
    template <class Taking> void ForEach(Taking&& takeProperty)
    {
        Expect('{');
        if (!Take('}')) {
            do {
                takeProperty();
            } while (Take(','));
            Expect('}');
        }
        SkipBlanks();
        if (!mRest.empty()) {
            Fail();
        }
    }

    /// The place of a name, looked for from one place on and then before it; as many as there are for none.
    static std::size_t PlaceOf(std::string_view name, std::span<const WantedText> wanted, std::size_t from)
    {
        const auto isNamed = [name](const WantedText& text) { return text.name == name; };
        const auto begin = wanted.begin() + static_cast<std::ptrdiff_t>(from);
        auto found = std::find_if(begin, wanted.end(), isNamed);
        if (found == wanted.end()) {
            found = std::find_if(wanted.begin(), begin, isNamed);
            found = found == begin ? wanted.end() : found;
        }
        return static_cast<std::size_t>(found - wanted.begin());
    }

    [[noreturn]] static void Fail()
    {
        throw Failure(Error::Automation, "The user properties of an item can't be read");
    }

    void SkipBlanks()
    {
        while (!mRest.empty() && IsBlank(mRest.front())) {
            mRest.remove_prefix(1);
        }
    }
    bool Take(char character)
    {
        SkipBlanks();
        if (mRest.empty() || mRest.front() != character) {
            return false;
        }
        mRest.remove_prefix(1);
        return true;
    }
    void Expect(char character)
    {
        if (!Take(character)) {
            Fail();
        }
    }
    bool TakeWord(std::string_view word)
    {
        SkipBlanks();
        if (!mRest.starts_with(word)) {
            return false;
        }
        mRest.remove_prefix(word.size());
        return true;
    }

    void ReadProperty(ItemProperty& property)
    {
        property.name = Text(mName);
        property.type = BeginValue();
        if (Take(',')) {
            property.value = Value(property.type);
        }
        Expect(']');
    }
    /// Reads what stands between a name and its value.
    PropertyType BeginValue()
    {
        Expect(':');
        Expect('[');
        return Type(Number());
    }
    static PropertyType Type(std::int64_t number)
    {
        for (const auto type : { PropertyType::Text, PropertyType::DateTime, PropertyType::YesNo }) {
            if (static_cast<std::int64_t>(type) == number) {
                return type;
            }
        }
        Fail();
    }
    Variant Value(PropertyType type)
    {
        switch (type) {
        case PropertyType::Text:
            return std::string(Text(mText));
        case PropertyType::DateTime:
            return Date::FromSeconds(Number());
        case PropertyType::YesNo:
            if (TakeWord("true")) {
                return true;
            }
            if (TakeWord("false")) {
                return false;
            }
            break;
        }
        Fail();
    }
    std::int64_t Number()
    {
        SkipBlanks();
        std::int64_t number = 0;
        const auto [end, problem] = std::from_chars(mRest.data(), mRest.data() + mRest.size(), number);
        if (problem != std::errc()) {
            Fail();
        }
        mRest.remove_prefix(static_cast<std::size_t>(end - mRest.data()));
        return number;
    }
    /// A text, as it stands there when nothing in it is escaped, else taken into another one.
    std::string_view Text(std::string& unescaped)
    {
        Expect('"');
        const auto begin = mRest;
        if (TakePlain()) {
            return begin.substr(0, begin.size() - mRest.size() - 1);
        }
        unescaped.assign(begin, 0, begin.size() - mRest.size() - 1);
        while (true) {
            Escape(unescaped);
            const auto rest = mRest;
            const bool ended = TakePlain();
            unescaped.append(rest, 0, rest.size() - mRest.size() - 1);
            if (ended) {
                return unescaped;
            }
        }
    }
    /// Passes over what stands as it is and the sign behind it; true when that ends the text, false when it begins an
    /// escape.
    bool TakePlain()
    {
        const auto quote = mRest.find('"');
        if (quote == std::string_view::npos) {
            Fail();
        }
        // Two searches for one sign each are several times quicker than one for both.
        const auto escape = mRest.substr(0, quote).find('\\');
        mRest.remove_prefix(std::min(quote, escape) + 1);
        return escape == std::string_view::npos;
    }
    void Escape(std::string& text)
    {
        if (mRest.empty()) {
            Fail();
        }
        const char letter = mRest.front();
        mRest.remove_prefix(1);
        if (letter == 'u') {
            text += ControlCharacter();
        } else if (letter == '"' || letter == '\\') {
            text += letter;
        } else {
            Fail();
        }
    }
    char ControlCharacter()
    {
        // Only control characters are written like this; all others stand as they are.
        unsigned code = 0;
        const auto digits = mRest.substr(0, 4);
        const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
        if (problem != std::errc() || end != digits.data() + 4 || code >= 0x20) {
            Fail();
        }
        mRest.remove_prefix(4);
        return static_cast<char>(code);
    }

    std::string_view mRest;
    std::string mName;
    std::string mText;
};

}

std::string PropertyCodec::Encode(const std::vector<ItemProperty>& properties)
{
    constexpr std::size_t usualSize = 512;
    std::string json;
    json.reserve(usualSize);
    char separator = '{';
    for (const auto& property : properties) {
        json += separator;
        separator = ',';
        AppendText(json, property.name);
        json += ":[";
        json += std::to_string(static_cast<std::int32_t>(property.type));
        if (const auto* text = property.value.If<std::string>()) {
            json += ',';
            AppendText(json, *text);
        } else if (const auto* date = property.value.If<Date>()) {
            json += ',';
            json += std::to_string(date->Seconds());
        } else if (const auto* flag = property.value.If<bool>()) {
            json += *flag ? ",true" : ",false";
        }
        json += ']';
    }
    json += properties.empty() ? "{}" : "}";
    return json;
}

std::vector<ItemProperty> PropertyCodec::Decode(std::string_view json)
{
    return PropertyReader(json).Properties();
}

void PropertyCodec::Read(std::string_view json, std::span<const WantedText> wanted)
{
    if (PropertyReader(json).Texts(wanted)) {
        return;
    }
    const auto properties = Decode(json);
    for (const auto& [name, text] : wanted) {
        const auto* property = FindProperty(properties, name);
        *text = property == nullptr ? std::string() : property->value.ToText();
    }
}

}
