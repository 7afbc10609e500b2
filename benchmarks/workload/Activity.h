#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// Something that a person does at a PC, as the tracker sees it and as the work log tells of it.
struct Activity
{
    /// The tracker's index of the program, 0 to 9.
    int application = 0;
    /// The program and what was done with it, as an item has them.
    std::string type;
    std::string description;
    std::string people;
    /// The project, empty when no rule fits.
    std::string project;
    /// The values of a slot beside its times: names of elements and their texts.
    std::vector<std::pair<std::string, std::string>> values;
};

}
