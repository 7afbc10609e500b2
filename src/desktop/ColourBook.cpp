#include "desktop/ColourBook.h"

#include "base/SettingsReader.h"
#include "base/Text.h"
#include "desktop/Tone.h"
#include "session/ProductFacts.h"

#include <algorithm>
#include <array>

namespace tempodial {

namespace {

constexpr auto ToneSetting = "tone";
constexpr auto StripedSetting = "striped";
constexpr std::array ColouredWords { "project", "application" };

std::array<SettingWord<std::size_t>, ToneCount> ToneWords()
{
    std::array<SettingWord<std::size_t>, ToneCount> words;
    for (std::size_t tone = 0; tone < ToneCount; ++tone) {
        words[tone] = { Tones()[tone].name, tone };
    }
    return words;
}

}

ColourBook::ColourBook(const SettingsFile& file)
    : mPath(file.path)
{
    for (const auto& record : file.records) {
        SettingsReader reader(file, record);
        reader.RequireKind(ToneSetting);
        Entry entry;
        entry.kind = reader.Has(ColouredWords[1]) ? Coloured::Application : Coloured::Project;
        reader.Take(ColouredWords[static_cast<std::size_t>(entry.kind)], entry.name, "a text");
        if (entry.name.empty() || !reader.Has(ToneSetting)) {
            reader.Refuse(record.line, R"(a [[tone]] needs a "project" or an "application", and a "tone")");
        }
        reader.TakeWord(ToneSetting, entry.use.tone, ToneWords());
        reader.Take(StripedSetting, entry.use.isStriped, "true or false");
        reader.RequireNothingElse();
        entry.foldedName = Fold(entry.name);
        mEntries.push_back(std::move(entry));
    }
}

ColourBook::Entry* ColourBook::Find(Coloured kind, const std::string& foldedName)
{
    const auto found = std::find_if(mEntries.begin(), mEntries.end(),
        [&](const Entry& entry) { return entry.kind == kind && entry.foldedName == foldedName; });
    return found == mEntries.end() ? nullptr : &*found;
}

std::optional<ToneUse> ColourBook::ToneOf(Coloured kind, const std::string& name)
{
    if (name.empty() || (kind == Coloured::Project && EqualIgnoringCase(name, NoProject))) {
        return std::nullopt;
    }
    auto folded = Fold(name);
    if (const auto* known = Find(kind, folded)) {
        return known->use;
    }
    mEntries.push_back({ kind, name, std::move(folded), Next(kind) });
    mHasChanged = true;
    return mEntries.back().use;
}

ToneUse ColourBook::Next(Coloured kind) const
{
    std::array<std::size_t, ToneCount> users {};
    for (const auto& entry : mEntries) {
        if (entry.kind == kind) {
            ++users[entry.use.tone];
        }
    }
    const auto* const rarest = std::min_element(users.begin(), users.end());
    return { static_cast<std::size_t>(rarest - users.begin()), *rarest > 0 };
}

void ColourBook::Choose(Coloured kind, const std::string& name, std::size_t tone)
{
    if (ToneOf(kind, name)) {
        Find(kind, Fold(name))->use = { tone, false };
        mHasChanged = true;
    }
}

SettingsFile ColourBook::Keep()
{
    SettingsFile file { mPath, {} };
    for (const auto& entry : mEntries) {
        SettingsRecord record { ToneSetting, 0, {} };
        record.settings.push_back({ ColouredWords[static_cast<std::size_t>(entry.kind)], entry.name });
        record.settings.push_back({ ToneSetting, std::string(Tones()[entry.use.tone].name) });
        if (entry.use.isStriped) {
            record.settings.push_back({ StripedSetting, true });
        }
        file.records.push_back(std::move(record));
    }
    mHasChanged = false;
    return file;
}

}
