#include "slots/ProgramTable.h"

#include "base/Text.h"
#include "slots/PlainText.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::string_view ProgramEndings[] { ".exe", ".app", ".desktop", ".appimage" };
/// What the ids of programs begin with that are written like the name of a host.
constexpr std::string_view Domains[] { "app.", "ca.", "ch.", "co.", "com.", "de.", "dev.", "fr.", "io.", "md.", "me.",
    "net.", "nl.", "org.", "ru.", "tv.", "uk.", "us.", "xyz." };

std::string_view WithoutEnding(std::string_view id)
{
    for (const auto ending : ProgramEndings) {
        if (id.ends_with(ending) && id.size() > ending.size()) {
            id.remove_suffix(ending.size());
        }
    }
    return id;
}

void AddForm(std::vector<std::string>& forms, std::string_view form)
{
    if (!form.empty() && std::find(forms.begin(), forms.end(), form) == forms.end()) {
        forms.emplace_back(form);
    }
}

/// A name made of an id: its last part, with a capital.
std::string NameOfId(std::string_view id)
{
    const auto whole = PlainText(id);
    std::string_view name = WithoutEnding(whole);
    if (const auto folded = Fold(whole); ProgramTable::FormsOf(folded).size() > 1) {
        const auto last = ProgramTable::FormsOf(folded).back();
        const auto at = folded.find(last);
        if (folded.size() == whole.size() && at != std::string::npos) {
            name = std::string_view(whole).substr(at, last.size());
        }
    }
    std::string result(name);
    if (!result.empty() && result.front() >= 'a' && result.front() <= 'z') {
        result.front() = static_cast<char>(result.front() - 'a' + 'A');
    }
    return result.empty() ? "Unknown" : result;
}

}

ProgramTable::ProgramTable(std::vector<Program> programs)
    : mPrograms(std::move(programs))
{
    for (std::size_t i = 0; i < mPrograms.size(); ++i) {
        for (const auto& id : mPrograms[i].ids) {
            if (id.ends_with('*')) {
                mByStart.emplace_back(Fold(id.substr(0, id.size() - 1)), i);
            } else {
                mById.emplace(Fold(id), i);
            }
        }
        mByName.emplace(Fold(mPrograms[i].name), i);
    }
}

Program ProgramTable::Find(std::string_view id, std::string_view name) const
{
    for (const auto text : { id, name }) {
        if (const auto* known = Known(text)) {
            return *known;
        }
    }
    Program made;
    made.isUnknown = true;
    made.ids = FormsOf(Fold(PlainText(id)));
    made.name = NodeText(PlainText(name).empty() ? NameOfId(id) : name, LongestName);
    return made;
}

std::vector<std::string> ProgramTable::FormsOf(std::string_view id)
{
    std::vector<std::string> forms;
    AddForm(forms, id);
    auto reduced = id.substr(id.find_last_of("/\\") + 1);
    reduced = WithoutEnding(reduced);
    AddForm(forms, reduced);
    if (const auto bar = reduced.find('_'); bar != std::string_view::npos && bar > 0) {
        AddForm(forms, reduced.substr(bar + 1));
        AddForm(forms, reduced.substr(0, bar));
    }
    const bool isReversed = std::any_of(
        std::begin(Domains), std::end(Domains), [reduced](const auto domain) { return reduced.starts_with(domain); });
    if (isReversed && std::count(reduced.begin(), reduced.end(), '.') > 1) {
        AddForm(forms, reduced.substr(reduced.rfind('.') + 1));
    }
    return forms;
}

const Program* ProgramTable::Known(std::string_view id) const
{
    const auto forms = FormsOf(Fold(PlainText(id)));
    for (const auto* index : { &mById, &mByName }) {
        for (const auto& form : forms) {
            if (const auto found = index->find(form); found != index->end()) {
                return &mPrograms[found->second];
            }
        }
    }
    for (const auto& form : forms) {
        if (const auto* found = KnownByStart(form)) {
            return found;
        }
    }
    return nullptr;
}

const Program* ProgramTable::KnownByStart(const std::string& id) const
{
    const auto found = std::find_if(
        mByStart.begin(), mByStart.end(), [&id](const auto& entry) { return id.starts_with(entry.first); });
    return found == mByStart.end() ? nullptr : &mPrograms[found->second];
}

}
