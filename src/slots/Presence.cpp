#include "slots/Presence.h"

#include <algorithm>

namespace tempodial {

void Presence::Add(std::int64_t begin, std::int64_t end)
{
    if (end <= begin) {
        return;
    }
    if (mIsUnited && !mStretches.empty() && begin >= mStretches.back().begin) {
        // Times mostly come in their order.
        if (begin <= mStretches.back().end) {
            mStretches.back().end = std::max(mStretches.back().end, end);
            return;
        }
    } else {
        mIsUnited = mStretches.empty();
    }
    mStretches.push_back({ begin, end });
}

void Presence::Remove(const Presence& times)
{
    Unite();
    const auto& removed = times.Stretches();
    auto next = removed.begin();
    std::vector<Stretch> rest;
    for (auto stretch : mStretches) {
        while (next != removed.end() && next->end <= stretch.begin) {
            ++next;
        }
        for (auto cut = next; cut != removed.end() && cut->begin < stretch.end; ++cut) {
            if (stretch.begin < cut->begin) {
                rest.push_back({ stretch.begin, cut->begin });
            }
            stretch.begin = cut->end;
        }
        if (stretch.begin < stretch.end) {
            rest.push_back(stretch);
        }
    }
    mStretches = std::move(rest);
}

void Presence::Bridge(std::int64_t gap)
{
    Unite();
    std::vector<Stretch> bridged;
    for (const auto& stretch : mStretches) {
        if (!bridged.empty() && stretch.begin - bridged.back().end <= gap) {
            bridged.back().end = stretch.end;
        } else {
            bridged.push_back(stretch);
        }
    }
    mStretches = std::move(bridged);
}

const std::vector<Presence::Stretch>& Presence::Stretches() const
{
    Unite();
    return mStretches;
}

std::int64_t Presence::Within(std::int64_t begin, std::int64_t end) const
{
    std::int64_t seconds = 0;
    ForEach(begin, end, [&seconds](std::int64_t from, std::int64_t to) { seconds += to - from; });
    return seconds;
}

std::vector<Presence::Stretch>::const_iterator Presence::FirstBehind(std::int64_t moment) const
{
    Unite();
    return std::upper_bound(mStretches.begin(), mStretches.end(), moment,
        [](std::int64_t at, const Stretch& other) { return at < other.end; });
}

std::int64_t Presence::Seconds() const
{
    std::int64_t seconds = 0;
    for (const auto& stretch : Stretches()) {
        seconds += stretch.end - stretch.begin;
    }
    return seconds;
}

void Presence::Unite() const
{
    if (mIsUnited) {
        return;
    }
    std::sort(
        mStretches.begin(), mStretches.end(), [](const Stretch& a, const Stretch& b) { return a.begin < b.begin; });
    std::vector<Stretch> united;
    for (const auto& stretch : mStretches) {
        if (!united.empty() && stretch.begin <= united.back().end) {
            united.back().end = std::max(united.back().end, stretch.end);
        } else {
            united.push_back(stretch);
        }
    }
    mStretches = std::move(united);
    mIsUnited = true;
}

}
