#include "review/ProjectMoves.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace tempodial {

void ProjectMoves::Add(const std::string& from, const std::string& to, std::int64_t minutes)
{
    auto& move = mMoves.try_emplace({ from, to }, Move { from, to, 0, 0 }).first->second;
    ++move.activities;
    move.minutes += minutes;
}

std::int64_t ProjectMoves::Activities() const
{
    std::int64_t count = 0;
    for (const auto& [projects, move] : mMoves) {
        count += move.activities;
    }
    return count;
}

std::vector<ProjectMoves::Move> ProjectMoves::LargestFirst() const
{
    std::vector<Move> moves;
    std::transform(
        mMoves.begin(), mMoves.end(), std::back_inserter(moves), [](const auto& entry) { return entry.second; });
    std::stable_sort(moves.begin(), moves.end(), [](const Move& one, const Move& other) {
        return std::tuple(one.minutes, one.activities) > std::tuple(other.minutes, other.activities);
    });
    return moves;
}

}
