#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace tempodial {

/// The time that somebody was there, as a union: however often a time is added, it counts once. Times are seconds.
class Presence
{
public:
    /// A stretch of time, its end not included.
    struct Stretch
    {
        std::int64_t begin, end;

        bool operator==(const Stretch&) const = default;
    };

    /// Adds a time; one that ends before it begins is none.
    void Add(std::int64_t begin, std::int64_t end);
    /// Takes times out again.
    void Remove(const Presence& times);
    /// Takes the times as one that have no more than so many seconds between them.
    void Bridge(std::int64_t gap);

    /// The stretches, in order, none touching another.
    const std::vector<Stretch>& Stretches() const;
    /// Seconds of presence between two moments.
    std::int64_t Within(std::int64_t begin, std::int64_t end) const;
    /// Calls back with the stretches between two moments, cut where those are.
    template <class Callback> void ForEach(std::int64_t begin, std::int64_t end, Callback&& callback) const
    {
        for (auto stretch = FirstBehind(begin); stretch != mStretches.end() && stretch->begin < end; ++stretch) {
            callback(std::max(stretch->begin, begin), std::min(stretch->end, end));
        }
    }
    /// Seconds of presence in all.
    std::int64_t Seconds() const;

private:
    /// The first stretch that ends behind a moment.
    std::vector<Stretch>::const_iterator FirstBehind(std::int64_t moment) const;
    /// Brings what was added into order, in place.
    void Unite() const;

    mutable std::vector<Stretch> mStretches;
    mutable bool mIsUnited = true;
};

}
