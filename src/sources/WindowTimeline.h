#pragma once

#include "slots/SlotPicker.h"
#include "slots/ViewMaker.h"
#include "sources/SourceData.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tempodial {

/// Makes slots of windows that overlap, last for a second, or stand in front of nobody: at each moment the window that
/// came last is the one in front, and only while somebody is there.
class WindowTimeline
{
public:
    WindowTimeline(const SourceData& data, const ViewMaker& views)
        : mData(data)
        , mViews(views)
    {
    }

    /// Makes the slots of all that the source holds. What comes to nothing is counted.
    void Make(Skipped& skipped);

    /// The slots that count, in their order.
    std::vector<PickedSlot> TakeSlots() { return std::move(mSlots); }
    /// The times that somebody was there.
    const Presence& Present() const { return mPresence; }

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

    const Seen& SeenAs(std::uint32_t sighting);
    std::vector<Piece> OfComputer(std::uint32_t computer, const std::vector<SeenWindow>& windows, Skipped& skipped);
    void Pick(const std::vector<Piece>& pieces, Skipped& skipped);

    const SourceData& mData;
    const ViewMaker& mViews;
    std::vector<std::optional<Seen>> mSeen;
    Presence mPresence;
    std::vector<PickedSlot> mSlots;
};

}
