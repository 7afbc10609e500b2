#include "slots/PrivacyRules.h"

#include "base/Text.h"
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

/// What browsers put into the titles of private windows, in the languages in which they are used most.
constexpr const char* PrivateTitles[] { "*private browsing*", "*inprivate*", "*incognito*", "*private window*",
    "*private mode*", "*privater modus*", "*privates fenster*", "*inkognito*", "*navigation priv\u00e9e*",
    "*fen\u00eatre priv\u00e9e*", "*navegaci\u00f3n privada*", "*ventana privada*", "*inc\u00f3gnito*",
    "*navigazione anonima*", "*finestra anonima*", "*in incognito*", "*navega\u00e7\u00e3o privativa*",
    "*navega\u00e7\u00e3o privada*", "*navega\u00e7\u00e3o an\u00f4nima*", "*an\u00f3nima*", "*priv\u00e9navigatie*",
    "*priv\u00e9venster*", "*tryb prywatny*", "*przegl\u0105danie prywatne*", "*privat surfning*", "*privat browsing*",
    "*privat nettlesing*", "*yksityinen selaus*", "*anonymn\u00ed prohl\u00ed\u017een\u00ed*", "*anonym\u00edn\u00ed*",
    "*priv\u00e1t b\u00f6ng\u00e9sz\u00e9s*", "*navigare privat\u0103*", "*gizli gezinti*", "*gizli pencere*",
    "*\u03b9\u03b4\u03b9\u03c9\u03c4\u03b9\u03ba\u03ae "
    "\u03c0\u03b5\u03c1\u03b9\u03ae\u03b3\u03b7\u03c3\u03b7*",
    "*\u043f\u0440\u0438\u0432\u0430\u0442\u043d\u044b\u0439 \u043f\u0440\u043e\u0441\u043c\u043e\u0442\u0440*",
    "*\u043f\u0440\u0438\u0432\u0430\u0442\u043d\u043e\u0435 \u043e\u043a\u043d\u043e*",
    "*\u0438\u043d\u043a\u043e\u0433\u043d\u0438\u0442\u043e*",
    "*\u043f\u0440\u0438\u0432\u0430\u0442\u043d\u0438\u0439 \u043f\u0435\u0440\u0435\u0433\u043b\u044f\u0434*",
    "*\u30d7\u30e9\u30a4\u30d9\u30fc\u30c8\u30d6\u30e9\u30a6\u30b8\u30f3\u30b0*",
    "*\u30b7\u30fc\u30af\u30ec\u30c3\u30c8*", "*\u9690\u79c1\u6d4f\u89c8*", "*\u9690\u79c1\u7a97\u53e3*",
    "*\u65e0\u75d5*", "*\u96b1\u79c1\u700f\u89bd*", "*\u7121\u75d5*", "*\uc0ac\uc0dd\ud65c \ubcf4\ud638*",
    "*\uc2dc\ud06c\ub9bf*" };

PrivacyRule NameOnly(std::optional<TextPattern> program, std::optional<TextPattern> title)
{
    return { std::move(program), std::move(title), PrivacyRule::Action::ProgramOnly, "" };
}

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
    mRules.push_back(NameOnly(TextPattern(PasswordManagers), std::nullopt));
    for (const auto* title : PrivateTitles) {
        mRules.push_back(NameOnly(std::nullopt, TextPattern(title)));
    }
}

const PrivacyRule* PrivacyRules::Find(const Sighting& sighting, const Program& program) const
{
    const auto folded = Fold(sighting.title);
    for (const auto index : RulesOf(sighting, program)) {
        const auto& rule = mRules[index];
        if (!rule.title || rule.title->Matches(sighting.title, folded)) {
            return &rule;
        }
    }
    return nullptr;
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
