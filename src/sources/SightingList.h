#pragma once

#include "slots/Sighting.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

/// Puts sightings into a list, each once.
class SightingList
{
public:
    /// Takes the list, which must live as long.
    explicit SightingList(std::vector<Sighting>& list)
        : mList(list)
    {
    }

    /// Where a sighting stands in the list.
    std::uint32_t Index(const Sighting& sighting)
    {
        constexpr char Between = '\x1f';
        auto key = sighting.program + Between + sighting.programName + Between + sighting.host + Between
            + (sighting.isPrivate ? "1" : "0") + Between + sighting.title;
        const auto [found, isNew] = mIndex.emplace(std::move(key), static_cast<std::uint32_t>(mList.size()));
        if (isNew) {
            mList.push_back(sighting);
        }
        return found->second;
    }

private:
    std::vector<Sighting>& mList;
    std::unordered_map<std::string, std::uint32_t> mIndex;
};

}
