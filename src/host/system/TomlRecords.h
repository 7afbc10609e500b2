#pragma once

#include <cstddef>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace tempodial {

/// A text that holds no such records; the message tells the line, what is wrong and what to do.
class TomlRecordsError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A record of texts in a file that people can read and edit, a table of an array of tables in TOML.
struct TomlRecord
{
    /// The texts by their names.
    std::map<std::string, std::string> texts;
    /// The line in which it begins, counted from 1; of no meaning for one that is written.
    std::size_t line = 0;

    /// The records of that name in a text. Throws a `TomlRecordsError` for a text that isn't TOML, and for one that
    /// holds anything else.
    static std::vector<TomlRecord> ReadAll(const std::string& name, const std::string& text);
    /// The text of a record with these members in their order, with an empty line in front.
    static std::string Text(const std::string& name, const std::vector<std::pair<std::string, std::string>>& members);
};

}
