#include "sources/WindowTimeline.h"

#include "slots/Program.h"
#include "slots/SlotTimes.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace tempodial {

namespace {

/// What windows come to is kept from day to day up to so many.
constexpr std::size_t MostSeen = 50000;

std::int64_t MidnightOf(std::int64_t seconds)
{
    return Date::FromSeconds(seconds).Day().Seconds();
}

}

WindowTimeline::WindowTimeline(SourceData& data, const ViewMaker& views, std::function<bool(Date)> isInQuestion)
    : mData(data)
    , mViews(views)
    , mIsInQuestion(std::move(isInQuestion))
{
    // Of two that come at once the shorter one is in front.
    std::sort(mData.windows.begin(), mData.windows.end(), [](const SeenWindow& a, const SeenWindow& b) {
        return std::tuple(a.begin, b.end, a.sighting) < std::tuple(b.begin, a.end, b.sighting);
    });
}

void WindowTimeline::Make(Skipped& skipped, const std::function<void(Day)>& take)
{
    CutLong(skipped);
    FindPresence(skipped);
    Presence all;
    for (const auto& presence : mPresence) {
        for (const auto& stretch : presence.Stretches()) {
            all.Add(stretch.begin, stretch.end);
        }
    }
    std::int64_t next = std::numeric_limits<std::int64_t>::min();
    for (const auto& stretch : all.Stretches()) {
        for (auto midnight = std::max(next, MidnightOf(stretch.begin)); midnight < stretch.end;
             midnight += DaySeconds) {
            next = midnight + DaySeconds;
            GoOnTo(midnight);
            Presence present;
            std::vector<Piece> pieces;
            for (std::uint32_t computer = 0; computer < mPresence.size(); ++computer) {
                const auto own = OfComputer(computer, midnight, present, skipped);
                pieces.insert(pieces.end(), own.begin(), own.end());
            }
            if (mPresence.size() > 1) {
                pieces = InFront(std::move(pieces));
            }
            take(Picked(midnight, present, pieces, skipped));
        }
    }
}

void WindowTimeline::CutLong(Skipped& skipped)
{
    constexpr auto Never = std::numeric_limits<std::int64_t>::max();
    std::vector<std::int64_t> next(mData.computers.size(), Never);
    for (auto at = mData.windows.size(); at > 0; --at) {
        auto& window = mData.windows[at - 1];
        auto& neighbour = next[window.computer];
        if (window.end - window.begin > DaySeconds) {
            const bool isNear = neighbour != Never && neighbour - window.begin <= DaySeconds;
            skipped.Add(isNear ? Skipped::Cut : Skipped::TooLong);
            window.end = isNear ? neighbour : window.begin;
        }
        neighbour = window.begin;
    }
    std::erase_if(mData.windows, [](const SeenWindow& window) { return window.end <= window.begin; });
}

void WindowTimeline::FindPresence(Skipped& skipped)
{
    for (const auto& computer : mData.computers) {
        mPresence.push_back(computer.presence);
    }
    for (const auto& window : mData.windows) {
        if (!mData.computers[window.computer].isTold) {
            mPresence[window.computer].Add(window.begin, window.end);
        }
    }
    for (std::size_t i = 0; i < mPresence.size(); ++i) {
        if (!mData.computers[i].isTold) {
            mPresence[i].Bridge(IdleLimit(ProgramSort::Other));
        }
    }
    for (const auto& window : mData.windows) {
        const bool isOfNobody = mPresence[window.computer].Within(window.begin, window.end) == 0;
        if (isOfNobody && mIsInQuestion(Date::FromSeconds(window.begin).Day())) {
            skipped.Add(Skipped::NoPresence);
        }
    }
}

void WindowTimeline::GoOnTo(std::int64_t midnight)
{
    if (mSeen.size() > MostSeen) {
        mSeen.clear();
    }
    std::erase_if(mOpen, [midnight](const SeenWindow& window) { return window.end <= midnight; });
    for (; mNext < mData.windows.size() && mData.windows[mNext].begin < midnight + DaySeconds; ++mNext) {
        if (mData.windows[mNext].end > midnight) {
            mOpen.push_back(mData.windows[mNext]);
        }
    }
}

std::vector<WindowTimeline::Piece> WindowTimeline::InFront(std::vector<Piece> pieces)
{
    std::sort(pieces.begin(), pieces.end(),
        [](const Piece& a, const Piece& b) { return std::pair(a.begin, a.came) < std::pair(b.begin, b.came); });
    std::vector<Piece> front;
    // Those that have begun, in the order in which they came; the last that hasn't ended is in front.
    std::vector<Piece> open;
    std::int64_t now = 0;
    const auto goOnTo = [&front, &open, &now](std::int64_t moment) {
        while (!open.empty() && now < moment) {
            const auto piece = open.back();
            const auto until = std::min(piece.end, moment);
            if (until > now) {
                front.push_back({ now, until, piece.came, piece.sighting });
                now = until;
            }
            if (piece.end <= now) {
                open.pop_back();
            }
        }
        now = moment;
    };
    constexpr auto Later = [](const Piece& a, const Piece& b) { return a.came < b.came; };
    for (const auto& piece : pieces) {
        goOnTo(piece.begin);
        open.insert(std::upper_bound(open.begin(), open.end(), piece, Later), piece);
    }
    goOnTo(std::numeric_limits<std::int64_t>::max());
    return front;
}

const Seen& WindowTimeline::SeenAs(std::uint32_t sighting)
{
    const auto [seen, isNew] = mSeen.try_emplace(sighting);
    if (isNew) {
        seen->second = mViews.Make(mData.sightings[sighting]);
    }
    return seen->second;
}

std::vector<WindowTimeline::Piece> WindowTimeline::OfComputer(
    std::uint32_t computer, std::int64_t midnight, Presence& presence, Skipped& skipped)
{
    const auto end = midnight + DaySeconds;
    std::vector<Piece> whole;
    for (const auto& window : mOpen) {
        if (window.computer == computer && mPresence[computer].Within(window.begin, window.end) > 0) {
            whole.push_back(
                { std::max(window.begin, midnight), std::min(window.end, end), window.begin, window.sighting });
            CountDropped(window, midnight, skipped);
        }
    }
    Presence own;
    mPresence[computer].ForEach(midnight, end, [&own](std::int64_t from, std::int64_t to) { own.Add(from, to); });
    Presence away;
    const auto front = InFront(std::move(whole));
    for (const auto& piece : front) {
        const auto kind = SeenAs(piece.sighting).kind;
        if (kind == Seen::Kind::Locked || kind == Seen::Kind::Dropped) {
            away.Add(piece.begin, piece.end);
        }
    }
    own.Remove(away);
    std::vector<Piece> pieces;
    for (const auto& piece : front) {
        own.ForEach(piece.begin, piece.end, [&pieces, &piece](std::int64_t from, std::int64_t to) {
            pieces.push_back({ from, to, piece.came, piece.sighting });
        });
    }
    for (const auto& stretch : own.Stretches()) {
        presence.Add(stretch.begin, stretch.end);
    }
    return pieces;
}

void WindowTimeline::CountDropped(const SeenWindow& window, std::int64_t midnight, Skipped& skipped)
{
    // A window over midnight counts on the first day that it is seen on.
    if (mPresence[window.computer].Within(window.begin, midnight) == 0
        && mIsInQuestion(Date::FromSeconds(window.begin).Day())
        && SeenAs(window.sighting).kind == Seen::Kind::Dropped) {
        skipped.Add(Skipped::Dropped);
    }
}

WindowTimeline::Day WindowTimeline::Picked(
    std::int64_t midnight, const Presence& presence, const std::vector<Piece>& pieces, Skipped& skipped)
{
    Day day { Date::FromSeconds(midnight), presence.Seconds(), {} };
    const bool isInQuestion = mIsInQuestion(day.date);
    auto piece = pieces.begin();
    auto next = midnight;
    for (const auto& stretch : presence.Stretches()) {
        // A slot in which one stretch ends and the next begins is one slot.
        auto start = std::max(next, stretch.begin - stretch.begin % SlotSeconds);
        for (; start < stretch.end; start += SlotSeconds) {
            SlotTimes times;
            times.start = start;
            times.presence = presence.Within(start, start + SlotSeconds);
            while (piece != pieces.end() && piece->end <= start) {
                ++piece;
            }
            for (auto here = piece; here != pieces.end() && here->begin < start + SlotSeconds; ++here) {
                const auto& seen = SeenAs(here->sighting);
                const auto seconds = std::min(here->end, start + SlotSeconds) - std::max(here->begin, start);
                if (seen.kind == Seen::Kind::View && seconds > 0) {
                    times.Add(seen.view, seconds);
                }
            }
            if (isInQuestion && !Counts(times.presence)) {
                skipped.Add(Skipped::UnderHalf);
            }
            if (auto slot = mPicker.Pick(times)) {
                day.slots.push_back(std::move(*slot));
            }
        }
        next = start;
    }
    return day;
}

}
