#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tempodial {

/// A value that a person writes into a file of settings: a text, a number, yes or no, or several texts.
using SettingValue = std::variant<std::string, std::int64_t, bool, std::vector<std::string>>;

/// A named value of a record.
struct Setting
{
    std::string name;
    SettingValue value;
    /// The line on which it stands, from 1.
    std::size_t line = 0;
};

/// A record of a file of settings: values under a heading.
struct SettingsRecord
{
    /// The heading, such as "rule".
    std::string kind;
    std::size_t line = 0;
    std::vector<Setting> settings;
};

/// A file of settings that is edited by hand, read: its path and its records in their order.
struct SettingsFile
{
    std::string path;
    std::vector<SettingsRecord> records;
};

/// A file of settings that can't be used; the message names the file, the line and what to do.
class SettingsFileError : public std::runtime_error
{
public:
    SettingsFileError(const std::string& path, std::size_t line, const std::string& reason)
        : std::runtime_error(path + ", line " + std::to_string(line) + ": " + reason + ": correct that line")
    {
    }
    /// Of a file that can't be read at all.
    SettingsFileError(const std::string& path, const std::string& reason)
        : std::runtime_error(path + " can't be read: " + reason)
    {
    }
};

}
