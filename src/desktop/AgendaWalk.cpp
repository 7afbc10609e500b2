#include "desktop/AgendaWalk.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tempodial {

std::optional<std::size_t> AgendaWalk::Above(std::size_t piece) const
{
    const auto day = mLayout.OfDay(mLayout.Pieces()[piece].day);
    return piece > day.begin ? std::optional(piece - 1) : std::nullopt;
}

std::optional<std::size_t> AgendaWalk::Below(std::size_t piece) const
{
    const auto day = mLayout.OfDay(mLayout.Pieces()[piece].day);
    return piece + 1 < day.end ? std::optional(piece + 1) : std::nullopt;
}

std::optional<std::size_t> AgendaWalk::FirstOf(int day) const
{
    const auto pieces = mLayout.OfDay(day);
    return pieces.IsEmpty() ? std::nullopt : std::optional(pieces.begin);
}

std::optional<std::size_t> AgendaWalk::LastOf(int day) const
{
    const auto pieces = mLayout.OfDay(day);
    return pieces.IsEmpty() ? std::nullopt : std::optional(pieces.end - 1);
}

std::optional<std::size_t> AgendaWalk::Nearest(int day, std::int32_t second) const
{
    const auto pieces = mLayout.OfDay(day);
    std::optional<std::size_t> nearest;
    std::pair<std::int32_t, std::int32_t> least;
    for (auto index = pieces.begin; index < pieces.end; ++index) {
        const auto& span = mLayout.Pieces()[index].span;
        // Of several at that moment the one that begins nearest to it.
        const std::pair distance { std::max({ span.from - second, second - span.to, 0 }),
            std::abs(span.from - second) };
        if (!nearest || distance < least) {
            nearest = index;
            least = distance;
        }
    }
    return nearest;
}

std::optional<std::size_t> AgendaWalk::Beside(std::size_t piece, int step) const
{
    const auto& from = mLayout.Pieces()[piece];
    const auto middle = from.span.from + from.span.Seconds() / 2;
    for (auto day = from.day + step; day >= 0 && day < mLayout.Days(); day += step) {
        if (const auto found = Nearest(day, middle)) {
            return found;
        }
    }
    return std::nullopt;
}

}
