#pragma once

#include <string>

namespace tempodial {

/// What is said of the window in front, as a desktop or another tracker gives it.
struct Sighting
{
    /// The program's id, such as a window's class or the name of an executable, or its name.
    std::string program;
    /// The program's name as the desktop has it, empty when it isn't known.
    std::string programName;
    std::string title;
    /// The site of a page, empty when it isn't known.
    std::string host;
    /// True for a window whose title nobody is to know.
    bool isPrivate = false;
    /// The project that it is said to belong to, empty when nothing is said.
    std::string project = {};
};

}
