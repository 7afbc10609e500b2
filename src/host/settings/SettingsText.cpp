#include "host/settings/SettingsText.h"

#include "base/Utf8.h"
#include "host/files/ReplacementFile.h"

#include <string_view>

namespace tempodial {

namespace {

constexpr std::string_view HexDigit = "0123456789ABCDEF";

/// A text in quotation marks.
std::string Quoted(std::string_view text)
{
    constexpr char32_t Delete = 0x7f;
    std::string quoted = "\"";
    for (std::size_t at = 0; at < text.size();) {
        const auto character = DecodeUtf8(text, at);
        at += character.size;
        if (!character.isValid) {
            AppendUtf8(quoted, ReplacementCharacter);
        } else if (character.code == '"' || character.code == '\\') {
            quoted += '\\';
            AppendUtf8(quoted, character.code);
        } else if (character.code < ' ' || character.code == Delete) {
            quoted += std::string("\\u00") + HexDigit[character.code >> 4U] + HexDigit[character.code & 0xfU];
        } else {
            AppendUtf8(quoted, character.code);
        }
    }
    return quoted + '"';
}

struct ValueText
{
    std::string operator()(const std::string& text) const { return Quoted(text); }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(const std::vector<std::string>& texts) const
    {
        std::string list;
        for (const auto& text : texts) {
            list += (list.empty() ? "" : ", ") + Quoted(text);
        }
        return "[" + list + "]";
    }
};

}

std::string SettingsText(const std::vector<SettingsRecord>& records)
{
    std::string text;
    for (const auto& record : records) {
        text += (text.empty() ? "[[" : "\n[[") + record.kind + "]]\n";
        for (const auto& setting : record.settings) {
            text += setting.name + " = " + std::visit(ValueText(), setting.value) + "\n";
        }
    }
    return text;
}

void WriteSettingsFile(const SettingsFile& file)
{
    ReplacementFile replacement(NativePath::Exactly(file.path));
    replacement.Write(SettingsText(file.records));
    replacement.Commit();
}

}
