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

/// Seconds of equal texts, each text once, in the order in which they came.
struct TextTime
{
    std::string text;
    std::int64_t seconds;
    /// The tracker's index of the largest view of it, and that view's seconds.
    int kind;
    std::int64_t largest;
};

template <class TextOf> std::vector<TextTime> Times(const std::vector<ViewTime>& views, TextOf&& textOf)
{
    std::vector<TextTime> times;
    for (const auto& time : views) {
        const std::string& text = textOf(time.view);
        const auto found
            = std::find_if(times.begin(), times.end(), [&text](const auto& other) { return other.text == text; });
        if (found == times.end()) {
            times.push_back({ text, time.seconds, time.view.kind, time.seconds });
            continue;
        }
        found->seconds += time.seconds;
        if (time.seconds > found->largest) {
            found->largest = time.seconds;
            found->kind = time.view.kind;
        }
    }
    std::stable_sort(times.begin(), times.end(), [](const auto& a, const auto& b) { return a.seconds > b.seconds; });
    return times;
}

std::int64_t Sum(const std::vector<ViewTime>& views)
{
    std::int64_t seconds = 0;
    for (const auto& time : views) {
        seconds += time.seconds;
    }
    return seconds;
}

/// The text that fills half of the time, nothing when none does or when it is empty.
const TextTime* Half(const std::vector<TextTime>& times, std::int64_t seconds)
{
    if (times.empty() || times.front().text.empty() || times.front().seconds * 2 < seconds) {
        return nullptr;
    }
    return &times.front();
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
    for (const auto& time : slot.views) {
        if (time.view.program == mProgram) {
            AddTime(mViews, time.view, time.seconds);
        }
    }
}

Words SlotWords::Current() const
{
    const auto seconds = Sum(mViews);
    if (seconds == 0) {
        return mFirst;
    }
    Words words { mProgram, 0, "",
        Times(
            mViews, [](const SlotView& view) -> auto& { return view.project; })
            .front()
            .text };
    const auto texts = Times(
        mViews, [](const SlotView& view) -> auto& { return view.text; });
    const auto places = Times(
        mViews, [](const SlotView& view) -> auto& { return view.place; });
    const auto* half = Half(texts, seconds);
    half = half == nullptr ? Half(places, seconds) : half;
    if (half != nullptr) {
        words.text = half->text;
        words.kind = half->kind;
        return words;
    }
    std::size_t count = 0;
    for (const auto& place : places) {
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
    const auto words = Current();
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
