#pragma once

#include <string>
#include <vector>

namespace tempodial {

class Desk;
class HostWindows;

/// What the windows of items show otherwise than the models have it, each a sentence: which windows there are, and in
/// each its title, its commands and the fields of its page.
std::vector<std::string> ShownItemDifferences(const Desk& desk, const HostWindows& windows);

}
