#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// An argument as a command declares it.
struct ArgumentOutline
{
    /// What it is called: the names of an option, such as "-h" and "--help", or one name for an argument that is told
    /// by its place.
    std::vector<std::string> names;
    /// What its value is called; empty for an option without one, and for an argument told by its place.
    std::string value;
    std::string help;
    bool isOption = false;
    bool isRequired = false;
    /// True when it may be given several times.
    bool isRepeated = false;
};

/// A command as its parser knows it.
struct CommandOutline
{
    /// The words that choose it, empty for the program itself.
    std::string name;
    std::string summary;
    /// What its help says behind the arguments.
    std::string details;
    /// Its own arguments, those told by their place in their order.
    std::vector<ArgumentOutline> arguments;
};

}
