#pragma once

#include "sources/NumberIndex.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// Keeps texts, each once and many to a piece of memory, under numbers.
class TextPool
{
public:
    /// The number of a text.
    std::uint32_t NumberOf(std::string_view text);
    /// The text of a number, as long as no other is added.
    std::string_view Text(std::uint32_t number) const;

private:
    struct Place
    {
        std::uint32_t piece, begin, size;
    };

    std::vector<std::string> mPieces;
    std::vector<Place> mPlaces;
    NumberIndex mIndex;
};

}
