#include "host/system/RegistryText.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace tempodial {

namespace {

std::string Inline(const toml::node& node);

/// A name, in quotes unless it may stand without. The library's own formatter leaves them off for names with an
/// apostrophe, a tab or a line end, which nobody can read then.
std::string Name(std::string_view name)
{
    constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    const bool isBare = !name.empty() && name.find_first_not_of(plain) == std::string_view::npos;
    return isBare ? std::string(name) : RegistryValueText(toml::value<std::string>(name));
}

/// A table or an array in one line, with the parts given.
template <class Parts, class Part>
std::string List(std::string_view begin, const Parts& parts, std::string_view end, Part&& part)
{
    std::string text(begin);
    std::string_view separator = " ";
    for (auto at = parts.begin(); at != parts.end(); ++at) {
        text += separator;
        text += part(at);
        separator = ", ";
    }
    return text + (parts.empty() ? "" : " ") + std::string(end);
}

std::string Inline(const toml::node& node)
{
    if (const auto* table = node.as_table()) {
        return List("{", *table, "}", [](auto at) { return Name(at->first.str()) + " = " + Inline(at->second); });
    }
    if (const auto* array = node.as_array()) {
        return List("[", *array, "]", [](auto at) { return Inline(*at); });
    }
    return RegistryValueText(node);
}

void Append(const toml::table& table, const std::string& path, std::string& text)
{
    const auto isTable = [](const auto& entry) { return entry.second.is_table(); };
    if (!path.empty() && (table.empty() || !std::all_of(table.begin(), table.end(), isTable))) {
        text += (text.empty() ? "[" : "\n[") + path + "]\n";
    }
    for (const auto& [name, node] : table) {
        if (!node.is_table()) {
            text += Name(name.str()) + " = " + Inline(node) + "\n";
        }
    }
    for (const auto& [name, node] : table) {
        if (const auto* below = node.as_table()) {
            Append(*below, (path.empty() ? "" : path + ".") + Name(name.str()), text);
        }
    }
}

}

std::string RegistryValueText(const toml::node& value)
{
    std::ostringstream text;
    text << toml::toml_formatter(value, toml::format_flags::allow_unicode_strings);
    return text.str();
}

std::string RegistryText(const toml::table& root)
{
    std::string text;
    Append(root, "", text);
    return text;
}

}
