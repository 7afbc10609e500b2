#pragma once

#include "base/Date.h"
#include "slots/SlotPicker.h"
#include "slots/ViewMaker.h"
#include "sources/SourceData.h"

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace tempodial {

/// Makes slots of windows that overlap, last for a second, or stand in front of nobody: at each moment the window that
/// came last is the one in front, and only while somebody is there.
class WindowTimeline
{
public:
    /// What a day comes to.
    struct Day
    {
        Date date;
        /// Seconds that somebody was there.
        std::int64_t presence = 0;
        /// The slots that count, in their order.
        std::vector<PickedSlot> slots;
    };

    /// Takes what a source holds, and orders its windows; what comes to nothing is counted on the days in question.
    WindowTimeline(SourceData& data, const ViewMaker& views, std::function<bool(Date)> isInQuestion);

    /// Makes the days on which somebody was there, one after the other and in their order.
    void Make(Skipped& skipped, const std::function<void(Day)>& take);

private:
    /// A window alone in front.
    struct Piece
    {
        std::int64_t begin, end;
        /// When the whole window came.
        std::int64_t came;
        std::uint32_t sighting;
    };

    static std::vector<Piece> InFront(std::vector<Piece> pieces);

    /// Lets windows of more than a day end when the computer's next one begins, or leaves them out.
    void CutLong(Skipped& skipped);
    void FindPresence(Skipped& skipped);
    /// Makes the windows that the day behind a midnight has a part of the open ones.
    void GoOnTo(std::int64_t midnight);
    const Seen& SeenAs(std::uint32_t sighting);
    /// What was in front of a computer's person on a day, of which the presence is what counts.
    std::vector<Piece> OfComputer(std::uint32_t computer, std::int64_t midnight, Presence& presence, Skipped& skipped);
    void CountDropped(const SeenWindow& window, std::int64_t midnight, Skipped& skipped);
    Day Picked(std::int64_t midnight, const Presence& presence, const std::vector<Piece>& pieces, Skipped& skipped);

    SourceData& mData;
    const ViewMaker& mViews;
    std::function<bool(Date)> mIsInQuestion;
    std::vector<Presence> mPresence;
    /// The windows that have begun and may reach into the day in hand, in their order, and the next one that begins.
    std::vector<SeenWindow> mOpen;
    std::size_t mNext = 0;
    /// What windows come to, as far as that was asked lately.
    std::unordered_map<std::uint32_t, Seen> mSeen;
    SlotPicker mPicker;
};

}
