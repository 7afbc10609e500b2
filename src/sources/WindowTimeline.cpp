#include "sources/WindowTimeline.h"

#include "slots/Program.h"
#include "slots/SlotTimes.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace tempodial {

void WindowTimeline::Make(Skipped& skipped)
{
    mSeen.resize(mData.sightings.size());
    std::vector<std::vector<SeenWindow>> windows(mData.computers.size());
    for (const auto& window : mData.windows) {
        if (window.end > window.begin) {
            windows[window.computer].push_back(window);
        }
    }
    std::vector<Piece> pieces;
    for (std::uint32_t computer = 0; computer < windows.size(); ++computer) {
        auto own = OfComputer(computer, windows[computer], skipped);
        windows[computer] = {};
        pieces.insert(pieces.end(), own.begin(), own.end());
    }
    if (windows.size() > 1) {
        pieces = InFront(std::move(pieces));
    }
    Pick(pieces, skipped);
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
    auto& seen = mSeen[sighting];
    if (!seen) {
        seen = mViews.Make(mData.sightings[sighting]);
    }
    return *seen;
}

std::vector<WindowTimeline::Piece> WindowTimeline::OfComputer(
    std::uint32_t computer, const std::vector<SeenWindow>& windows, Skipped& skipped)
{
    auto presence = mData.computers[computer].presence;
    std::vector<Piece> whole;
    whole.reserve(windows.size());
    for (const auto& window : windows) {
        whole.push_back({ window.begin, window.end, window.begin, window.sighting });
        if (!mData.computers[computer].isTold) {
            presence.Add(window.begin, window.end);
        }
    }
    if (!mData.computers[computer].isTold) {
        presence.Bridge(IdleLimit(ProgramSort::Other));
    }
    for (const auto& window : windows) {
        skipped.Add(Skipped::NoPresence, presence.Within(window.begin, window.end) == 0 ? 1 : 0);
    }
    const auto front = InFront(std::move(whole));
    Presence away;
    for (const auto& piece : front) {
        const auto kind = SeenAs(piece.sighting).kind;
        if (kind == Seen::Kind::Locked || kind == Seen::Kind::Dropped) {
            away.Add(piece.begin, piece.end);
        }
        skipped.Add(Skipped::Dropped, kind == Seen::Kind::Dropped ? 1 : 0);
    }
    presence.Remove(away);
    std::vector<Piece> pieces;
    auto stretch = presence.Stretches().begin();
    for (const auto& piece : front) {
        while (stretch != presence.Stretches().end() && stretch->end <= piece.begin) {
            ++stretch;
        }
        for (auto next = stretch; next != presence.Stretches().end() && next->begin < piece.end; ++next) {
            pieces.push_back(
                { std::max(piece.begin, next->begin), std::min(piece.end, next->end), piece.came, piece.sighting });
        }
    }
    for (const auto& one : presence.Stretches()) {
        mPresence.Add(one.begin, one.end);
    }
    return pieces;
}

void WindowTimeline::Pick(const std::vector<Piece>& pieces, Skipped& skipped)
{
    SlotPicker picker;
    auto piece = pieces.begin();
    std::int64_t next = 0;
    for (const auto& stretch : mPresence.Stretches()) {
        // A slot in which one stretch ends and the next begins is one slot.
        auto start = std::max(next, stretch.begin - stretch.begin % SlotSeconds);
        for (; start < stretch.end; start += SlotSeconds) {
            SlotTimes times;
            times.start = start;
            times.presence = mPresence.Within(start, start + SlotSeconds);
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
            skipped.Add(Skipped::UnderHalf, Counts(times.presence) ? 0 : 1);
            if (auto slot = picker.Pick(times)) {
                mSlots.push_back(std::move(*slot));
            }
        }
        next = start;
    }
}

}
