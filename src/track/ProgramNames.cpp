#include "track/ProgramNames.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/files/FileDescriptor.h"

#include <cstdlib>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::size_t LargestEntry = std::size_t { 1 } << 20;
constexpr std::size_t MostNames = 1000;

std::string FileText(const std::string& path)
{
    try {
        return FileDescriptor(NativePath::Exactly(path), Opening::Reading).ReadAll(LargestEntry);
    } catch (const Failure&) {
        return {};
    }
}

std::string Environment(const char* name, const std::string& otherwise)
{
    const auto* value = std::getenv(name);
    return value == nullptr || *value == '\0' ? otherwise : value;
}

/// The name that an entry's first group gives.
std::string NameIn(const std::string& entry)
{
    constexpr std::string_view Key = "Name=";
    bool isInEntry = false;
    for (const auto& line : Split(entry, "\n")) {
        if (line.starts_with('[')) {
            isInEntry = line.starts_with("[Desktop Entry]");
        } else if (isInEntry && line.starts_with(Key)) {
            return Trim(line.substr(Key.size()));
        }
    }
    return {};
}

}

ProgramNames::ProgramNames()
{
    const auto home = Environment("HOME", "");
    mFolders.push_back(Environment("XDG_DATA_HOME", home + "/.local/share"));
    for (const auto& folder : Split(Environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share"), ":")) {
        mFolders.push_back(folder);
    }
}

std::string ProgramNames::IdOf(const FrontWindow& window)
{
    if (!window.program.empty() || window.process <= 0) {
        return window.program;
    }
    const auto name = FileText("/proc/" + std::to_string(window.process) + "/comm");
    return name.substr(0, name.find('\n'));
}

std::string ProgramNames::NameOf(const std::string& id)
{
    if (id.empty() || id.find('/') != std::string::npos) {
        return {};
    }
    if (mKnown.size() > MostNames) {
        mKnown.clear();
    }
    const auto [known, isNew] = mKnown.try_emplace(id);
    if (isNew) {
        known->second = Entry(id);
    }
    return known->second;
}

std::string ProgramNames::Entry(const std::string& id) const
{
    for (const auto& folder : mFolders) {
        for (const auto& form : { id, Fold(id) }) {
            auto name = NameIn(FileText(folder + "/applications/" + form + ".desktop"));
            if (!name.empty()) {
                return name;
            }
        }
    }
    return {};
}

}
