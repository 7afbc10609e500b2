#pragma once

#include <string>

namespace tempodial {

/// With what the add-in for Windows is run.
struct RemotePrograms
{
    /// The folder with the program that stands in for Outlook and the add-in's module for tests.
    std::string folder;
    /// The module as it is installed, in the place of the other; "" for the other.
    std::string installed = {};
};

}
