#pragma once

#include <optional>
#include <string>

namespace tempodial {

/// Whether the program begins with the desktop session: a file in the user's folder of what begins there.
class Autostart
{
public:
    /// The path of the usual profile's in the user's folder of configurations.
    static constexpr auto FileName = "autostart/io.github.tempodial.Tempodial.desktop";

    /// Takes the user's folder of configurations, and the program's path; that of a profile unless it is the one that
    /// the program takes by itself. Each profile has a file of its own.
    Autostart(const std::string& configFolder, std::string program, std::optional<std::string> profile);

    /// Where the file is, or would be.
    const std::string& Path() const { return mPath; }
    bool IsOn() const;
    /// Writes the file or takes it away; fails as files do.
    void Set(bool isOn) const;

private:
    std::string mPath;
    std::string mProgram;
    std::optional<std::string> mProfile;
};

}
