#include "host/system/TomlRecords.h"

#include "host/settings/TomlNesting.h"
#include "host/system/RegistryText.h"

#include <toml++/toml.h>

namespace tempodial {

namespace {

[[noreturn]] void RefuseRecords(std::size_t line, const std::string& reason, const std::string& advice)
{
    throw TomlRecordsError("line " + std::to_string(line) + ": " + reason + ": " + advice);
}

toml::table ParsedRecords(const std::string& text)
{
    constexpr auto Advice = "correct that line";
    if (const auto line = LineNestedTooDeeply(text)) {
        RefuseRecords(*line, "it is nested more than 32 deep", Advice);
    }
    try {
        return toml::parse(text);
    } catch (const toml::parse_error& error) {
        RefuseRecords(error.source().begin.line, "this is no TOML", Advice);
    }
}

TomlRecord ReadRecord(const toml::table& table)
{
    TomlRecord record { .line = table.source().begin.line };
    for (const auto& [name, node] : table) {
        const auto* text = node.as_string();
        if (text == nullptr) {
            RefuseRecords(node.source().begin.line, std::string(name.str()) + " is no text", "put it in quotes");
        }
        record.texts.emplace(name.str(), text->get());
    }
    return record;
}

}

std::vector<TomlRecord> TomlRecord::ReadAll(const std::string& name, const std::string& text)
{
    const auto advice = "give records that each begin with [[" + name + "]]";
    const auto root = ParsedRecords(text);
    std::vector<TomlRecord> records;
    for (const auto& [known, node] : root) {
        const auto* array = node.as_array();
        if (known.str() != name || array == nullptr) {
            RefuseRecords(node.source().begin.line, "\"" + std::string(known.str()) + "\" is no such record", advice);
        }
        for (const auto& entry : *array) {
            const auto* table = entry.as_table();
            if (table == nullptr) {
                RefuseRecords(entry.source().begin.line, "this is no record", advice);
            }
            records.push_back(ReadRecord(*table));
        }
    }
    return records;
}

std::string TomlRecord::Text(const std::string& name, const std::vector<std::pair<std::string, std::string>>& members)
{
    auto text = "\n[[" + name + "]]\n";
    for (const auto& [member, value] : members) {
        text += member + " = " + RegistryValueText(toml::value<std::string>(value)) + "\n";
    }
    return text;
}

}
