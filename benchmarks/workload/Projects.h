#pragma once

#include <cstddef>
#include <string>

namespace tempodial {

/// The projects of the invented workload: a place name each, which is its rule as well.
class Projects
{
public:
    /// The number of projects that rules are made for unless a measurement says otherwise.
    static constexpr std::size_t Usual = 50;

    /// The name of a project; the first 500 differ, and none occurs in another.
    static std::string Name(std::size_t number);
    /// The word that subjects of the project hold and no others do.
    static std::string Rule(std::size_t number);
};

}
