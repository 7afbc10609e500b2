#pragma once

#include "slots/PrivacyRules.h"
#include "slots/ProgramTable.h"
#include "slots/Sighting.h"
#include "slots/SlotView.h"
#include "slots/TitleCleaner.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tempodial {

/// What a window in front comes to.
struct Seen
{
    /// A view; nothing, such as the bare desktop; nobody, since the screen is locked; or something that a rule takes as
    /// if nobody had been there.
    enum class Kind { View, Nothing, Locked, Dropped };

    Kind kind = Kind::Nothing;
    /// Set for a view only.
    SlotView view;
};

/// Makes views of sightings: looks the program up, holds the rules of what may be known, cleans the title and finds the
/// place in it.
class ViewMaker
{
public:
    ViewMaker(ProgramTable programs, PrivacyRules rules)
        : mPrograms(std::move(programs))
        , mRules(std::move(rules))
    {
    }

    Seen Make(const Sighting& sighting) const;
    /// The same of what somebody noted down, whose program and words stay as they are but for the rules.
    Seen MakeStated(const Sighting& sighting) const;

private:
    /// What the rules leave of a window; nothing when that is all of it.
    static std::optional<Seen> Ruled(
        const Sighting& sighting, const Program& program, const PrivacyRules::Verdict& verdict);
    static SlotView NameOnly(const Program& program);
    static SlotView Titled(const Program& program, const TitleCleaner::Cleaned& cleaned, const std::string& host);

    const Program& ProgramOf(const Sighting& sighting) const;

    ProgramTable mPrograms;
    PrivacyRules mRules;
    /// The programs that were looked up.
    mutable std::unordered_map<std::string, Program> mKnown;
};

/// A project's name as a tracker's file takes it: plain and not too long; empty when it stands for none.
std::string ProjectText(std::string_view name);

}
