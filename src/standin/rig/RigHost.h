#pragma once

#include "wire/RigLink.h"
#include "wire/WireValue.h"

#include <string>
#include <vector>

namespace tempodial {

/// The host, as it is asked by the module for what its surroundings would answer.
class RigHost
{
public:
    /// Takes what the program offers.
    explicit RigHost(const RigLink& link)
        : mLink(link)
    {
    }

    /// Asks; what the host fails with is a `Failure`.
    WireValue Ask(const std::string& word, const std::vector<WireValue>& arguments = {}) const;

private:
    RigLink mLink;
};

}
