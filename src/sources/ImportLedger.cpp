#include "sources/ImportLedger.h"

#include "base/Fnv1a.h"
#include "base/Number.h"
#include "sources/MomentText.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tempodial {

namespace {

constexpr auto WrittenKind = "day";
constexpr auto PlannedKind = "planned";
constexpr std::string_view HexDigits = "0123456789abcdef";
constexpr std::size_t BitsOfDigit = 4;
constexpr std::size_t DigitsOfSlots = SlotsOfDay / BitsOfDigit;

std::string HexOf(const std::bitset<SlotsOfDay>& slots)
{
    std::string hex;
    for (std::size_t digit = 0; digit < DigitsOfSlots; ++digit) {
        std::size_t value = 0;
        for (std::size_t bit = 0; bit < BitsOfDigit; ++bit) {
            value |= slots[digit * BitsOfDigit + bit] ? std::size_t { 1 } << bit : 0;
        }
        hex += HexDigits[value];
    }
    return hex;
}

bool ReadHex(const std::string& hex, std::bitset<SlotsOfDay>& slots)
{
    if (hex.size() != DigitsOfSlots) {
        return false;
    }
    for (std::size_t digit = 0; digit < DigitsOfSlots; ++digit) {
        const auto value = HexDigits.find(hex[digit]);
        if (value == std::string_view::npos) {
            return false;
        }
        for (std::size_t bit = 0; bit < BitsOfDigit; ++bit) {
            slots[digit * BitsOfDigit + bit] = (value >> bit & 1U) != 0;
        }
    }
    return true;
}

std::string IsoText(Date day)
{
    const auto parts = day.ToParts();
    return Padded(parts.year, 4) + "-" + Padded(parts.month, 2) + "-" + Padded(parts.day, 2);
}

/// What entries are known by, and marks, hold nothing that a text in quotes can't.
bool IsKey(const std::string& key)
{
    return !key.empty() && key.find_first_not_of("0123456789abcdef-") == std::string::npos;
}

std::string DayText(const char* kind, Date day, const LedgerDay& what)
{
    auto text = std::string("\n[[") + kind + "]]\nday = \"" + IsoText(day) + "\"\n";
    if (what.slots.any()) {
        text += "slots = \"" + HexOf(what.slots) + "\"\n";
    }
    if (!what.entries.empty()) {
        text += "entries = [";
        for (const auto& entry : what.entries) {
            text += (entry == *what.entries.begin() ? "\"" : ", \"") + entry + "\"";
        }
        text += "]\n";
    }
    return text;
}

/// What the keys of all entries of these times begin with.
std::string TimesOf(std::int64_t start, std::int64_t end)
{
    return std::to_string(start) + "-" + std::to_string(end) + "-";
}

}

std::string LedgerDay::EntryKey(std::int64_t start, std::int64_t end, const std::string& source,
    const std::string& text, const std::string& project)
{
    constexpr unsigned TopShift = 60;
    constexpr std::string_view End("\0", 1);
    Fnv1a words;
    for (const auto& part : { source, text, project }) {
        words.Add(part);
        words.Add(End);
    }
    auto hash = words.Hash();
    auto key = TimesOf(start, end);
    for (std::size_t digit = 0; digit < sizeof(hash) * 2; ++digit) {
        key += HexDigits[hash >> TopShift];
        hash <<= BitsOfDigit;
    }
    return key;
}

std::set<std::string> LedgerDay::EntriesAt(std::int64_t start, std::int64_t end) const
{
    const auto times = TimesOf(start, end);
    std::set<std::string> keys;
    for (auto key = entries.lower_bound(times); key != entries.end() && key->starts_with(times); ++key) {
        keys.insert(*key);
    }
    return keys;
}

void LedgerDay::Add(const LedgerDay& other)
{
    slots |= other.slots;
    entries.insert(other.entries.begin(), other.entries.end());
}

ImportLedger::ImportLedger(const SettingsFile& file)
{
    for (const auto& record : file.records) {
        const auto refuse = [&file, &record](const std::string& reason) {
            throw SettingsFileError(file.path, record.line,
                reason + " (only imports write this file; without it they go by what is in the log)");
        };
        if (record.kind != WrittenKind && record.kind != PlannedKind) {
            refuse("[[" + record.kind + "]] isn't known here");
        }
        std::optional<Date> day;
        LedgerDay what;
        std::string mark;
        for (const auto& setting : record.settings) {
            const auto* text = std::get_if<std::string>(&setting.value);
            const auto* texts = std::get_if<std::vector<std::string>>(&setting.value);
            if (setting.name == "day" && text != nullptr && IsYearFirst(*text)) {
                day = ReadDay(*text, DateOrder::FromTheFile);
            } else if (setting.name == "slots" && text != nullptr && ReadHex(*text, what.slots)) {
                continue;
            } else if (setting.name == "entries" && texts != nullptr
                && std::all_of(texts->begin(), texts->end(), IsKey)) {
                what.entries.insert(texts->begin(), texts->end());
            } else if (setting.name == "mark" && text != nullptr && record.kind == PlannedKind && IsKey(*text)) {
                mark = *text;
            } else {
                refuse(setting.name + " can't be read");
            }
        }
        if (!day) {
            refuse("there is no day");
        } else if (record.kind == WrittenKind) {
            mDays[*day].Add(what);
        } else {
            Plan(*day, what, mark);
        }
    }
}

const LedgerDay& ImportLedger::Of(Date day) const
{
    static const LedgerDay nothing;
    const auto found = mDays.find(day);
    return found == mDays.end() ? nothing : found->second;
}

std::map<Date, std::string> ImportLedger::Planned() const
{
    std::map<Date, std::string> marks;
    for (const auto& [day, part] : mPlanned) {
        marks[day] = part.mark;
    }
    return marks;
}

void ImportLedger::Close(Date day, bool isWritten)
{
    const auto planned = mPlanned.extract(day);
    if (isWritten && !planned.empty()) {
        mDays[day].Add(planned.mapped().what);
    }
}

std::string ImportLedger::Text() const
{
    std::string text
        = "# What imports have written, so that nothing comes twice and nothing that was deleted comes back.\n";
    for (const auto& [day, what] : mDays) {
        text += DayText(WrittenKind, day, what);
    }
    for (const auto& [day, part] : mPlanned) {
        text += DayText(PlannedKind, day, part.what);
        text += part.mark.empty() ? "" : "mark = \"" + part.mark + "\"\n";
    }
    return text;
}

}
