#pragma once

#include "desktop/AgendaLayout.h"

#include <cstddef>
#include <optional>

namespace tempodial {

/// Where the arrow keys go from a piece of the agenda. All answers are places of pieces; nothing where the way ends.
class AgendaWalk
{
public:
    /// The layout must live as long as this.
    explicit AgendaWalk(const AgendaLayout& layout)
        : mLayout(layout)
    {
    }

    /// The next one up or down in the day.
    std::optional<std::size_t> Above(std::size_t piece) const;
    std::optional<std::size_t> Below(std::size_t piece) const;
    /// Of the nearest day before or behind that has any the one nearest in time.
    std::optional<std::size_t> Left(std::size_t piece) const { return Beside(piece, -1); }
    std::optional<std::size_t> Right(std::size_t piece) const { return Beside(piece, 1); }
    /// The first and the last of a day.
    std::optional<std::size_t> FirstOf(int day) const;
    std::optional<std::size_t> LastOf(int day) const;
    /// The one of a day that is nearest to a second of it.
    std::optional<std::size_t> Nearest(int day, std::int32_t second) const;

private:
    std::optional<std::size_t> Beside(std::size_t piece, int step) const;

    const AgendaLayout& mLayout;
};

}
