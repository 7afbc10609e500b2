#pragma once

#include "scenarios/DrivenPerson.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// Something short that a person does, so short that each of the add-in's calls in it can be made to fail.
struct ShortScript
{
    std::string name;
    /// What comes before, in which nothing fails.
    std::function<void(DrivenPerson& person)> prepare;
    std::function<void(DrivenPerson& person)> run;

    friend std::ostream& operator<<(std::ostream& stream, const ShortScript& script) { return stream << script.name; }
};

/// An import of a few slots with a continuation and a detail; the life of a project; a report; the work log's folder
/// renamed, moved and gone; start-up and shut-down.
std::vector<ShortScript> ShortScripts();

}
