#pragma once

#include "slots/SlotLine.h"
#include "slots/SlotPicker.h"
#include "slots/TextSums.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What the log says of an activity.
struct Words
{
    std::string program;
    /// The tracker's index of the program.
    int kind = 0;
    std::string text;
    /// Empty when no rule gives one.
    std::string project;

    bool operator==(const Words&) const = default;
    /// Puts these words into a line.
    void PutInto(SlotLine& line) const;
};

/// The words of an activity as it grows: the title that fills half of its time, else the place that does, else its
/// three largest places. Who knows the whole activity has its last words at once.
class SlotWords
{
public:
    /// Adds a slot that belongs to the activity.
    void Add(const PickedSlot& slot);

    /// The words for all that was added.
    const Words& Current() const;
    /// Seconds of a slot that are spent on what these words say.
    std::int64_t SecondsIn(const PickedSlot& slot) const;

private:
    Words Found() const;

    std::string mProgram;
    /// The first slot's, for an activity of which no view is known.
    Words mFirst;
    /// The time of its program, and what that was spent on.
    std::int64_t mSeconds = 0;
    TextSums mTexts;
    TextSums mPlaces;
    TextSums mProjects;
    /// The words, unless something was added since.
    mutable std::optional<Words> mCurrent;
};

/// What an activity lists besides its own words.
class SlotDetails
{
public:
    /// What had enough time in a slot of the activity, isn't the activity, and wasn't listed in it before.
    std::vector<std::string> Of(const PickedSlot& slot, const Words& words);

private:
    std::vector<std::string> mListed;
};

}
