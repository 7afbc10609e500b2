#pragma once

#include <string>
#include <utility>

namespace tempodial {

/// Whether the program begins with the desktop session: a file in the user's folder of what begins there.
class Autostart
{
public:
    /// Its path in the user's folder of configurations.
    static constexpr auto FileName = "autostart/io.github.tempodial.Tempodial.desktop";

    /// Takes the path of that file and of the program.
    Autostart(std::string path, std::string program)
        : mPath(std::move(path))
        , mProgram(std::move(program))
    {
    }

    bool IsOn() const;
    /// Writes the file or takes it away; fails as files do.
    void Set(bool isOn) const;

private:
    std::string mPath;
    std::string mProgram;
};

}
