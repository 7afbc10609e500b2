#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// What lets a user's session start the recorder, and sync each hour: units of systemd, and an entry for sessions
/// without it.
class UserUnits
{
public:
    /// Takes the profile's folder.
    explicit UserUnits(std::string profile);

    /// Writes the files and starts the units; gives the paths. Fails with `CommandError` when a file can't be written.
    std::vector<std::string> Install() const;
    /// Stops the units and removes the files that are there; gives their paths.
    std::vector<std::string> Uninstall() const;
    /// Tells the session of what has changed; false when it doesn't answer.
    static bool Start();
    static bool Stop();
    static bool Reload();

private:
    struct UnitFile
    {
        std::string path;
        std::string source;
    };

    static std::vector<UnitFile> Files();
    std::string Text(const std::string& source) const;

    std::string mProfile;
};

}
