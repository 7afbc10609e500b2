#include "review/SubjectWord.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "engine/foundation/ActivitySubject.h"
#include "host/system/Letters.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t MostWords = 10;
constexpr std::size_t LeastLetters = 3;

/// Calls a function with each run of letters and digits of a text.
template <class Sink> void ForEachRun(std::string_view text, Sink&& sink)
{
    std::size_t begin = 0;
    std::size_t offset = 0;
    while (offset < text.size()) {
        const auto character = DecodeUtf8(text, offset);
        if (!character.isValid || !IsLetterOrDigit(character.code)) {
            sink(text.substr(begin, offset - begin));
            begin = offset + character.size;
        }
        offset += character.size;
    }
    sink(text.substr(begin));
}

/// The words of the groups' subjects, and which of the groups' subjects each is in.
///
/// A word is in a subject when it is in one of the subject's own words, so it is looked for there alone.
class WordIndex
{
public:
    /// The groups must live as long as this.
    explicit WordIndex(const std::vector<ActivityGroup>& groups);

    /// The words with their time, largest first.
    std::vector<SubjectWord> Words() const;
    /// The groups in whose subjects a word of these is, by their places, in order.
    std::vector<std::size_t> GroupsWith(const std::string& word) const;
    std::int64_t MinutesOf(const std::vector<std::size_t>& groups) const;

private:
    struct Entry
    {
        /// The groups that have the word itself in their subjects.
        std::vector<std::size_t> groups;
        /// The places of the words that hold this one, itself among them.
        std::vector<std::size_t> holders;
    };

    void NoteHolder(std::size_t place);

    const std::vector<ActivityGroup>& mGroups;
    std::vector<std::string> mWords;
    std::vector<Entry> mEntries;
    std::unordered_map<std::string_view, std::size_t> mPlaces;
};

WordIndex::WordIndex(const std::vector<ActivityGroup>& groups)
    : mGroups(groups)
{
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t group = 0; group < groups.size(); ++group) {
        const auto subject = Fold(ActivitySubject(groups[group].application, groups[group].description));
        ForEachRun(subject, [&](std::string_view run) {
            if (run.size() < LeastLetters || static_cast<std::size_t>(Length(run)) < LeastLetters) {
                return;
            }
            const auto [place, isNew] = places.emplace(run, mEntries.size());
            if (isNew) {
                mWords.emplace_back(run);
                mEntries.emplace_back();
            }
            auto& having = mEntries[place->second].groups;
            if (having.empty() || having.back() != group) {
                having.push_back(group);
            }
        });
    }
    for (std::size_t place = 0; place < mWords.size(); ++place) {
        mPlaces.emplace(mWords[place], place);
    }
    for (std::size_t place = 0; place < mWords.size(); ++place) {
        NoteHolder(place);
    }
}

void WordIndex::NoteHolder(std::size_t place)
{
    constexpr std::size_t UsualSize = 48;
    const std::string_view holder = mWords[place];
    const auto note = [&](std::size_t held) {
        auto& holders = mEntries[held].holders;
        if (holders.empty() || holders.back() != place) {
            holders.push_back(place);
        }
    };
    if (holder.size() > UsualSize) {
        // It has more pieces than there are words.
        for (std::size_t held = 0; held < mWords.size(); ++held) {
            if (holder.find(mWords[held]) != std::string_view::npos) {
                note(held);
            }
        }
        return;
    }
    for (std::size_t begin = 0; begin + LeastLetters <= holder.size(); ++begin) {
        for (std::size_t size = LeastLetters; begin + size <= holder.size(); ++size) {
            if (const auto found = mPlaces.find(holder.substr(begin, size)); found != mPlaces.end()) {
                note(found->second);
            }
        }
    }
}

std::vector<std::size_t> WordIndex::GroupsWith(const std::string& word) const
{
    const auto& holders = mEntries[mPlaces.at(word)].holders;
    std::vector<std::size_t> groups;
    for (const auto holder : holders) {
        const auto& having = mEntries[holder].groups;
        groups.insert(groups.end(), having.begin(), having.end());
    }
    if (holders.size() > 1) {
        std::sort(groups.begin(), groups.end());
        groups.erase(std::unique(groups.begin(), groups.end()), groups.end());
    }
    return groups;
}

std::int64_t WordIndex::MinutesOf(const std::vector<std::size_t>& groups) const
{
    std::int64_t minutes = 0;
    for (const auto group : groups) {
        minutes += mGroups[group].minutes;
    }
    return minutes;
}

std::vector<SubjectWord> WordIndex::Words() const
{
    std::vector<SubjectWord> words;
    words.reserve(mWords.size());
    for (const auto& word : mWords) {
        words.push_back({ word, MinutesOf(GroupsWith(word)) });
    }
    std::sort(words.begin(), words.end(), [](const SubjectWord& one, const SubjectWord& other) {
        return std::tuple(-one.minutes, std::string_view(one.word))
            < std::tuple(-other.minutes, std::string_view(other.word));
    });
    return words;
}

}

std::vector<SubjectWord> SubjectWord::Largest(const std::vector<ActivityGroup>& groups)
{
    const WordIndex index(groups);
    std::vector<SubjectWord> largest;
    std::vector<std::vector<std::size_t>> covered;
    for (auto& word : index.Words()) {
        if (largest.size() == MostWords || word.minutes == 0) {
            break;
        }
        auto having = index.GroupsWith(word.word);
        const bool isCovered = std::any_of(covered.begin(), covered.end(), [&](const auto& other) {
            std::vector<std::size_t> both;
            std::set_intersection(having.begin(), having.end(), other.begin(), other.end(), std::back_inserter(both));
            return 2 * index.MinutesOf(both) > word.minutes;
        });
        if (!isCovered) {
            largest.push_back(std::move(word));
            covered.push_back(std::move(having));
        }
    }
    return largest;
}

}
