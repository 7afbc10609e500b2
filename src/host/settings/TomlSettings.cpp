#include "host/settings/TomlSettings.h"

#include "base/Failure.h"
#include "host/files/FileDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/settings/TomlNesting.h"

#include <toml++/toml.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t LargestSettings = std::size_t { 16 } << 20;

std::string SettingsContent(const std::string& path)
{
    try {
        const FileDescriptor file(NativePath::Exactly(path), Opening::Reading);
        return file.ReadAll(LargestSettings);
    } catch (const Failure& failure) {
        const bool isMissing = failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound);
        if (isMissing && StatusAt(NativePath::Exactly(path), Links::Taken)) {
            throw SettingsFileError(
                path, "it is a link to a file that isn't there: bring that file back, or take the link away");
        }
        if (isMissing) {
            return {};
        }
        throw SettingsFileError(path,
            failure.Is(Error::OutOfMemory) ? "it is larger than 16 MiB, which no settings are: move it away"
                                           : failure.Description() + ": make it a readable file, or move it away");
    }
}

SettingValue ValueOf(const std::string& path, const std::string& name, const toml::node& node)
{
    if (const auto* text = node.as_string()) {
        return text->get();
    }
    if (const auto* number = node.as_integer()) {
        return number->get();
    }
    if (const auto* flag = node.as_boolean()) {
        return flag->get();
    }
    const auto* array = node.as_array();
    const auto line = node.source().begin.line;
    if (array == nullptr) {
        throw SettingsFileError(path, line, name + " is neither a text nor a number nor a list of texts");
    }
    std::vector<std::string> texts;
    for (const auto& entry : *array) {
        const auto* text = entry.as_string();
        if (text == nullptr) {
            throw SettingsFileError(path, line, name + " is a list of something else than texts");
        }
        texts.push_back(text->get());
    }
    return texts;
}

SettingsRecord RecordOf(const std::string& path, const std::string& kind, const toml::table& table)
{
    SettingsRecord record { kind, table.source().begin.line, {} };
    for (const auto& [key, node] : table) {
        const std::string name(key.str());
        record.settings.push_back({ name, ValueOf(path, name, node), key.source().begin.line });
    }
    return record;
}

}

SettingsFile ReadSettingsFile(const std::string& path)
{
    SettingsFile file { path, {} };
    const auto content = SettingsContent(path);
    if (const auto line = LineNestedTooDeeply(content)) {
        throw SettingsFileError(path, *line, "it is nested more than 32 deep");
    }
    toml::table root;
    try {
        root = toml::parse(content, path);
    } catch (const toml::parse_error& error) {
        throw SettingsFileError(path, error.source().begin.line,
            "this is no value, no name and no heading (a quotation mark or a bracket may be missing)");
    }
    for (const auto& [key, node] : root) {
        const std::string kind(key.str());
        const auto* tables = node.as_array();
        if (tables == nullptr || !tables->is_array_of_tables()) {
            throw SettingsFileError(path, key.source().begin.line,
                "\"" + kind + "\" stands alone: write it below a heading such as [[rule]]");
        }
        for (const auto& table : *tables) {
            file.records.push_back(RecordOf(path, kind, *table.as_table()));
        }
    }
    std::sort(file.records.begin(), file.records.end(), [](const auto& a, const auto& b) { return a.line < b.line; });
    return file;
}

}
