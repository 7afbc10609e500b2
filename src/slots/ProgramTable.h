#pragma once

#include "slots/Program.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tempodial {

/// The programs that are known, by id and by name, whatever the case.
class ProgramTable
{
public:
    /// Takes programs of which an earlier one goes before a later one.
    explicit ProgramTable(std::vector<Program> programs);

    /// The program of an id or a name, with the name that the desktop gives it; one that isn't known is made of them.
    Program Find(std::string_view id, std::string_view name = {}) const;
    /// The forms in which an id may stand in the table: as it is, without the marks of its packaging, and its last
    /// part.
    static std::vector<std::string> FormsOf(std::string_view id);

private:
    const Program* Known(std::string_view id) const;
    const Program* KnownByStart(const std::string& id) const;

    std::vector<Program> mPrograms;
    std::unordered_map<std::string, std::size_t> mById;
    std::unordered_map<std::string, std::size_t> mByName;
    /// Beginnings of ids.
    std::vector<std::pair<std::string, std::size_t>> mByStart;
};

}
