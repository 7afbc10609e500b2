#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// Activities that come from one project to another, counted by these two.
class ProjectMoves
{
public:
    struct Move
    {
        std::string from;
        std::string to;
        std::int64_t activities = 0;
        std::int64_t minutes = 0;

        friend bool operator==(const Move&, const Move&) = default;
    };

    /// Counts an activity of that many minutes.
    void Add(const std::string& from, const std::string& to, std::int64_t minutes);
    /// How many activities were counted.
    std::int64_t Activities() const;
    /// The moves, of which that of the most time comes first.
    std::vector<Move> LargestFirst() const;

private:
    std::map<std::pair<std::string, std::string>, Move> mMoves;
};

}
