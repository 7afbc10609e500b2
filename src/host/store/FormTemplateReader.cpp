#include "host/store/FormTemplateReader.h"

#include "base/Failure.h"
#include "host/files/FileDescriptor.h"
#include "host/store/ByteReader.h"
#include "host/store/CompoundFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

enum ValueType : std::uint16_t { Boolean = 0x000b, Text = 0x001f, Binary = 0x0102 };

constexpr std::uint16_t MessageClassId = 0x001a;
constexpr std::uint16_t DisplayNameId = 0x3001;
constexpr std::uint32_t FieldDefinitionsNumber = 0x8540;
const std::string NamesFolder = "__nameid_version1.0";
/// The set of the properties common to all items, {00062008-0000-0000-C000-000000000046}.
constexpr std::string_view CommonSet("\x08\x20\x06\x00\x00\x00\x00\x00\xc0\x00\x00\x00\x00\x00\x00\x46", 16);

std::string StreamName(std::uint16_t identifier, ValueType type)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string name = "__substg1.0_";
    const auto tag = std::uint32_t { identifier } << 16 | type;
    for (int shift = 28; shift >= 0; shift -= 4) {
        name += digits[tag >> shift & 0xf];
    }
    return name;
}

/// The properties of a message in a compound file.
class Message
{
public:
    explicit Message(const CompoundFile& file)
        : mFile(file)
    {
        ReadFixedValues();
        ReadNames();
    }

    std::string TextOf(std::uint16_t identifier) const
    {
        const auto bytes = mFile.Stream({ StreamName(identifier, Text) });
        return bytes ? ByteReader(*bytes).Utf16(bytes->size() / 2) : std::string();
    }
    std::string FieldDefinitions() const
    {
        return mFieldDefinitions ? mFile.Stream({ StreamName(*mFieldDefinitions, Binary) }).value_or("") : "";
    }
    /// The value of a user's field, nothing when the message has none.
    Variant Value(const ItemProperty& field) const
    {
        const auto named = mNamed.find(field.name);
        if (named == mNamed.end()) {
            return {};
        }
        if (field.type == PropertyType::Text && mFile.Stream({ StreamName(named->second, Text) })) {
            return TextOf(named->second);
        }
        const auto fixed = mBooleans.find(named->second);
        return field.type == PropertyType::YesNo && fixed != mBooleans.end() ? Variant(fixed->second) : Variant();
    }

private:
    void ReadFixedValues()
    {
        constexpr std::size_t headerSize = 32;
        const auto bytes = mFile.Stream({ "__properties_version1.0" });
        if (!bytes) {
            throw Failure(Error::Automation, "The file is no message");
        }
        ByteReader reader(*bytes);
        reader.Bytes(headerSize);
        while (!reader.AtEnd()) {
            const auto type = reader.Number16();
            const auto identifier = reader.Number16();
            reader.Number32();
            const auto value = reader.Number32();
            reader.Number32();
            if (type == Boolean) {
                mBooleans[identifier] = (value & 0xffff) != 0;
            }
        }
    }
    void ReadNames()
    {
        const auto sets = mFile.Stream({ NamesFolder, StreamName(2, Binary) }).value_or("");
        const auto entries = mFile.Stream({ NamesFolder, StreamName(3, Binary) }).value_or("");
        const auto names = mFile.Stream({ NamesFolder, StreamName(4, Binary) }).value_or("");
        ByteReader reader(entries);
        while (!reader.AtEnd()) {
            const auto key = reader.Number32();
            const auto kind = reader.Number16();
            const auto identifier = static_cast<std::uint16_t>(0x8000 + reader.Number16());
            if ((kind & 1) != 0) {
                ByteReader name(std::string_view(names).substr(std::min<std::size_t>(key, names.size())));
                mNamed[name.Utf16(name.Number32() / 2)] = identifier;
            } else if (key == FieldDefinitionsNumber && IsCommon(sets, kind >> 1)) {
                mFieldDefinitions = identifier;
            }
        }
    }
    static bool IsCommon(std::string_view sets, std::size_t index)
    {
        // The first sets of all are known without being listed.
        constexpr std::size_t known = 3;
        return index >= known && (index - known) * CommonSet.size() < sets.size()
            && sets.substr((index - known) * CommonSet.size(), CommonSet.size()) == CommonSet;
    }

    const CompoundFile& mFile;
    std::map<std::uint16_t, bool> mBooleans;
    std::map<std::string, std::uint16_t> mNamed;
    std::optional<std::uint16_t> mFieldDefinitions;
};

PropertyType TypeOf(std::uint16_t automationType)
{
    constexpr std::uint16_t date = 7;
    constexpr std::uint16_t yesNo = 11;
    return automationType == date ? PropertyType::DateTime
        : automationType == yesNo ? PropertyType::YesNo
                                  : PropertyType::Text;
}

/// A text in front of which its length stands in one byte, or in two behind the byte 255.
std::string_view PackedText(ByteReader& reader)
{
    std::size_t length = reader.Number8();
    if (length == 0xff) {
        length = reader.Number16();
    }
    return reader.Bytes(length);
}

std::vector<ItemProperty> Fields(const std::string& definitions)
{
    constexpr std::uint32_t usersOwn = 1;
    constexpr std::uint16_t secondFormat = 0x0103;
    std::vector<ItemProperty> fields;
    if (definitions.empty()) {
        return fields;
    }
    ByteReader reader(definitions);
    const auto format = reader.Number16();
    for (auto left = reader.Number32(); left > 0; --left) {
        ItemProperty field;
        const auto flags = reader.Number32();
        field.type = TypeOf(reader.Number16());
        reader.Number32();
        field.name = reader.Utf16(reader.Number16());
        for (int text = 0; text < 5; ++text) {
            PackedText(reader);
        }
        if (format == secondFormat) {
            reader.Number32();
            while (const auto size = reader.Number32()) {
                reader.Bytes(size);
            }
        }
        if ((flags & usersOwn) != 0 && FindProperty(fields, field.name) == nullptr) {
            fields.push_back(std::move(field));
        }
    }
    return fields;
}

}

FormTemplate FormTemplateReader::Read(const std::string& path)
{
    const auto bytes = FileDescriptor(NativePath(path), Opening::Reading).ReadAll();
    try {
        const CompoundFile file(bytes);
        const Message message(file);
        FormTemplate form;
        form.messageClass = message.TextOf(MessageClassId);
        form.displayName = message.TextOf(DisplayNameId);
        form.fields = Fields(message.FieldDefinitions());
        for (auto& field : form.fields) {
            field.value = message.Value(field);
        }
        form.page = file.Stream({ "TempodialPage" }).value_or("");
        if (form.messageClass.empty()) {
            throw Failure(Error::Automation, "The file has no message class");
        }
        return form;
    } catch (const Failure& failure) {
        throw Failure(failure.Number(), path + " is no form template: " + failure.Description());
    }
}

}
