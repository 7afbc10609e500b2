#pragma once

#include "host/store/ForgetJournal.h"
#include "session/DataFiles.h"
#include "session/Forgetting.h"
#include "session/Profile.h"
#include "session/SlotTexts.h"
#include "session/TextSweep.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tempodial {

/// Looks in a profile for what is to be forgotten.
class ForgetSearch
{
public:
    /// Looks everywhere, and changes nothing. Fails as the store and files do.
    ForgetSearch(const Profile& profile, const ForgetJournal& journal, const ForgetCriteria& criteria);

    const ForgetCounts& Counts() const { return mCounts; }
    /// All that has to be done.
    const ForgetOrder& Order() const { return mOrder; }

private:
    /// A line of a tracker's file.
    struct Line
    {
        /// The file, by its place among all, and the line's number in it from 0.
        std::size_t file = 0;
        std::size_t number = 0;
        std::string text;
        SlotTexts slot;
        /// An import has taken it.
        bool isReached = false;
        /// The text that is looked for stands in it.
        bool isMatch = false;
    };
    using Span = std::pair<Date, Date>;

    void ReadLines();
    void LookAtStates();
    void LookAtLines();
    void LookAtSteps();
    void LookAtProject();
    void LookAtTexts();

    void Take(const ActivityState& state);
    bool Meets(const ActivityState& state) const;
    /// True when a line that has the text looked for became a part of an activity.
    bool HasMatchingLine(const ActivityState& state) const;
    bool MeetsByItself(const std::string& dayKey, const Line& line) const;
    bool IsOfForgotten(const std::string& dayKey, const Line& line) const;
    static bool Touches(const std::string& dayKey, const Line& line, const Span& span);
    void AddTexts(const ActivityState& state);
    bool HoldsMatch(const std::string& text) const;

    const Profile& mProfile;
    const ForgetJournal& mJournal;
    ForgetCriteria mCriteria;
    std::string mMatch;

    std::vector<DataFile> mFiles;
    std::map<std::string, std::vector<Line>> mLines;
    std::unordered_set<std::int64_t> mPresent;
    std::unordered_set<std::int64_t> mItems;
    std::unordered_set<std::int64_t> mSteps;
    std::map<std::string, std::vector<Span>> mSpans;
    /// An activity of the project stays.
    bool mIsProjectLeft = false;
    TextSweep mTexts;
    ForgetOrder mOrder;
    ForgetCounts mCounts;
};

}
