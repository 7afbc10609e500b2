#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace tempodial {

/// All that a sync leaves behind, in a form in which two profiles can be compared.
struct ProfileState
{
    /// The activities as JSON without their identities, one a line, in order; headings of detail lists are left out,
    /// since a run that goes on after another puts one more in front.
    std::vector<std::string> items;
    std::string history;
    /// The tracker's files with what they hold.
    std::map<std::string, std::string> trackerFiles;

    friend bool operator==(const ProfileState&, const ProfileState&) = default;
};

/// The state of a profile, read through the program itself as of a moment.
ProfileState StateOf(const std::filesystem::path& profile, const std::string& now);

/// The content of a file, empty when it is absent.
std::string ContentOf(const std::filesystem::path& file);

}
