#pragma once

#include "slots/Program.h"
#include "slots/Sighting.h"
#include "slots/TextPattern.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

/// A rule of what may be known of a window; a pattern that is absent matches everything.
struct PrivacyRule
{
    /// What becomes of a window that matches: it was never there, only its program is told, other words stand for its
    /// title, or it belongs to a project.
    enum class Action { Drop, ProgramOnly, Replace, Project };

    std::optional<TextPattern> program;
    /// Of the title as the desktop gave it.
    std::optional<TextPattern> title;
    Action action = Action::Drop;
    /// The other words, or the project.
    std::string text;
};

/// The rules that windows are looked at by before anything of them is kept; the first that matches decides, a user's
/// own before those that the product has. A rule that gives a project hides nothing, so that the product's own protect
/// what it matches as before.
class PrivacyRules
{
public:
    /// What the rules say.
    struct Verdict
    {
        /// The rule that hides something, nothing when none does.
        const PrivacyRule* hiding = nullptr;
        /// The rule that gives a project, nothing when none does.
        const PrivacyRule* project = nullptr;
    };

    explicit PrivacyRules(std::vector<PrivacyRule> own = {});

    /// What they say of a window of a program.
    Verdict Find(const Sighting& sighting, const Program& program) const;
    /// What they say of something that somebody noted down, in whose words nothing marks a private window.
    Verdict FindStated(const Sighting& sighting, const Program& program) const;

private:
    /// The rules, by their place, that a program's windows are looked at by.
    const std::vector<std::size_t>& RulesOf(const Sighting& sighting, const Program& program) const;

    /// The own ones, and behind them that of the programs that keep secrets.
    std::vector<PrivacyRule> mRules;
    PrivacyRule mPrivateWindow { std::nullopt, std::nullopt, PrivacyRule::Action::ProgramOnly, "" };
    /// The same for the programs that were asked for.
    mutable std::unordered_map<std::string, std::vector<std::size_t>> mByProgram;
};

}
