#include "slots/SlotWords.h"

#include "slots/PlainText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t PlacesOfMixed = 3;
constexpr std::string_view BetweenPlaces = ", ";
/// Seconds in a slot that make something a detail, and the most that an activity has.
constexpr std::int64_t DetailSeconds = 30;
constexpr std::size_t MostDetails = 12;

/// The text that fills half of the time, nothing when none does or when it is empty.
std::optional<TextSums::TextTime> Half(const TextSums& sums, std::int64_t seconds)
{
    auto largest = sums.Largest(1);
    if (largest.empty() || largest.front().text.empty() || largest.front().seconds * 2 < seconds) {
        return std::nullopt;
    }
    return std::move(largest.front());
}

/// The node that holds what an activity of a kind is about.
std::string_view TextNode(int kind)
{
    constexpr std::string_view Nodes[] { "WindowText", "WindowText", "WordDocName", "ExcelDocName", "PPTDocName",
        "OutlookSubject" };
    const auto index = static_cast<std::size_t>(kind);
    return index < std::size(Nodes) ? Nodes[index] : Nodes[0];
}

}

void Words::PutInto(SlotLine& line) const
{
    line.Application(kind);
    const auto name = NodeText(program, LongestName);
    if (kind == 0) {
        line.Node("AppName", name.empty() ? "Unknown" : name);
    }
    // Without words an activity would be called "Various", which says less than the name twice.
    const auto node = NodeText(text, LongestText);
    if (const auto& words = node.empty() ? name : node; !words.empty()) {
        line.Node(TextNode(kind), words);
    }
    if (!project.empty()) {
        line.Node("Project", project);
    }
}

void SlotWords::Add(const PickedSlot& slot)
{
    if (mProgram.empty()) {
        mProgram = slot.program;
        mFirst = { slot.program, 0, slot.text, slot.project };
    }
    for (const auto& [view, seconds] : slot.views) {
        if (view.program == mProgram) {
            mSeconds += seconds;
            mTexts.Add(view.text, seconds, view.kind);
            mPlaces.Add(view.place, seconds, view.kind);
            mProjects.Add(view.project, seconds, view.kind);
        }
    }
    mCurrent.reset();
}

const Words& SlotWords::Current() const
{
    if (!mCurrent) {
        mCurrent = Found();
    }
    return *mCurrent;
}

Words SlotWords::Found() const
{
    if (mSeconds == 0) {
        return mFirst;
    }
    Words words { mProgram, 0, "", mProjects.Largest(1).front().text };
    auto half = Half(mTexts, mSeconds);
    half = half ? half : Half(mPlaces, mSeconds);
    if (half) {
        words.text = half->text;
        words.kind = half->kind;
        return words;
    }
    std::size_t count = 0;
    // One of them may be empty.
    for (const auto& place : mPlaces.Largest(PlacesOfMixed + 1)) {
        if (!place.text.empty() && count < PlacesOfMixed) {
            words.kind = count == 0 ? place.kind : words.kind;
            words.text.append(count == 0 ? "" : BetweenPlaces).append(place.text);
            ++count;
        }
    }
    return words;
}

std::int64_t SlotWords::SecondsIn(const PickedSlot& slot) const
{
    const auto& words = Current();
    std::int64_t seconds = 0;
    for (const auto& time : slot.views) {
        const bool isSaid = time.view.text == words.text || time.view.place == words.text;
        seconds += time.view.program == words.program && isSaid ? time.seconds : 0;
    }
    return seconds;
}

std::vector<std::string> SlotDetails::Of(const PickedSlot& slot, const Words& words)
{
    std::vector<std::pair<std::string, std::int64_t>> found;
    for (const auto& [view, seconds] : slot.views) {
        const bool isOwn = view.program == words.program;
        const auto text = isOwn ? view.text : view.program + (view.text.empty() ? "" : ": " + view.text);
        if (seconds < DetailSeconds || text.empty() || (isOwn && text == words.text)) {
            continue;
        }
        found.emplace_back(text, seconds);
    }
    std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    std::vector<std::string> details;
    for (const auto& [text, seconds] : found) {
        const bool isListed = std::find(mListed.begin(), mListed.end(), text) != mListed.end();
        if (!isListed && mListed.size() < MostDetails) {
            mListed.push_back(text);
            details.push_back(text);
        }
    }
    return details;
}

}
