#include "slots/PrivacyRules.h"

#include "base/Text.h"
#include "slots/PrivateMarks.h"
#include "slots/ProgramTable.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// Programs that keep secrets.
constexpr auto PasswordManagers
    = "/^(keepass(xc|2)?|.*bitwarden|1password|enpass|lastpass|dashlane|nordpass|proton[ -]?pass"
      "|(org\\.gnome\\.world\\.)?secrets|seahorse|(org\\.gnome\\.)?seahorse\\.application"
      "|kwalletmanager5?|(org\\.kde\\.)?kwalletmanager5?|qtpass|buttercup|pass(word)? ?safe"
      "|keychain access|gnome-passwordsafe)$/";

bool IsProgram(const TextPattern& pattern, const Sighting& sighting, const Program& program)
{
    const auto matches = [&pattern](const std::string& text) { return !text.empty() && pattern.Matches(text); };
    if (matches(sighting.program) || matches(sighting.programName) || matches(program.name)
        || std::any_of(program.ids.begin(), program.ids.end(), matches)) {
        return true;
    }
    const auto forms = ProgramTable::FormsOf(sighting.program);
    return std::any_of(forms.begin(), forms.end(), matches);
}

}

PrivacyRules::PrivacyRules(std::vector<PrivacyRule> own)
    : mRules(std::move(own))
{
    mRules.push_back({ TextPattern(PasswordManagers), std::nullopt, PrivacyRule::Action::ProgramOnly, "" });
}

PrivacyRules::Verdict PrivacyRules::Find(const Sighting& sighting, const Program& program) const
{
    auto verdict = FindStated(sighting, program);
    if (verdict.hiding == nullptr && IsPrivateWindow(sighting.title, program)) {
        verdict.hiding = &mPrivateWindow;
    }
    return verdict;
}

PrivacyRules::Verdict PrivacyRules::FindStated(const Sighting& sighting, const Program& program) const
{
    Verdict verdict;
    const auto folded = Fold(sighting.title);
    for (const auto index : RulesOf(sighting, program)) {
        const auto& rule = mRules[index];
        const bool isOwn = index + 1 < mRules.size();
        if ((isOwn && verdict.project != nullptr) || (rule.title && !rule.title->Matches(sighting.title, folded))) {
            continue;
        }
        if (rule.action != PrivacyRule::Action::Project) {
            verdict.hiding = &rule;
            break;
        }
        verdict.project = &rule;
    }
    return verdict;
}

const std::vector<std::size_t>& PrivacyRules::RulesOf(const Sighting& sighting, const Program& program) const
{
    constexpr char Between = '\x1f';
    constexpr std::size_t MostPrograms = 1000;
    if (mByProgram.size() > MostPrograms) {
        mByProgram.clear();
    }
    const auto key = sighting.program + Between + sighting.programName + Between + program.name;
    const auto [found, isNew] = mByProgram.try_emplace(key);
    for (std::size_t i = 0; isNew && i < mRules.size(); ++i) {
        if (!mRules[i].program || IsProgram(*mRules[i].program, sighting, program)) {
            found->second.push_back(i);
        }
    }
    return found->second;
}

}
