#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace tempodial {

/// What is on the screen during an invented activity.
struct DemoActivity
{
    /// The application's index, as the tracker counts applications.
    int application;
    /// Names of nodes, each with its text.
    std::array<std::pair<std::string_view, std::string_view>, 5> nodes;
};

/// Number of kinds of applications.
inline constexpr std::size_t DemoKinds = 10;

/// The activities that an invented working life consists of; each kind of application has at least one.
std::span<const DemoActivity> DemoActivities();

}
