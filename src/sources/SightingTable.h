#pragma once

#include "slots/Sighting.h"
#include "sources/TextPool.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tempodial {

/// What windows said, each once and under a number, however many say the same.
class SightingTable
{
public:
    /// A sighting in numbers of texts.
    struct Row
    {
        std::uint32_t program, programName, title, host, project;
        bool isPrivate;

        bool operator==(const Row&) const = default;
    };

    /// The number of a sighting.
    std::uint32_t NumberOf(const Sighting& sighting);
    std::uint32_t NumberOf(const Row& row);
    /// The sighting of a number.
    Sighting operator[](std::size_t number) const;
    std::size_t size() const { return mRows.size(); }

    /// The texts of the sightings; others may stand there, too.
    TextPool& Texts() { return mTexts; }

private:
    TextPool mTexts;
    std::vector<Row> mRows;
    NumberIndex mIndex;
};

}
