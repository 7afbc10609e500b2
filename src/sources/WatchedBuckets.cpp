#include "sources/WatchedBuckets.h"

#include "slots/PlainText.h"
#include "sources/MomentText.h"
#include "sources/PageHost.h"

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t Milliseconds = 1000;
constexpr std::int64_t LongestEvent = 86400 * Milliseconds;
constexpr auto PresentStatus = "not-afk";
constexpr auto WindowType = "currentwindow";
constexpr auto IdleType = "afkstatus";
constexpr auto PageType = "web.tab.current";
/// How much of two titles has to be the same.
constexpr std::size_t ComparedTitle = 40;
/// The most buckets of no use that are named.
constexpr std::int64_t MostNamedBuckets = 20;

void Append(std::vector<WatchedBuckets::Event>& events, std::vector<WatchedBuckets::Event> more)
{
    if (events.empty()) {
        events = std::move(more);
    } else {
        events.insert(events.end(), more.begin(), more.end());
    }
}

/// True when one title begins as the other does, as a window's does that has the page's.
bool BeginsAlike(std::string_view window, std::string_view page)
{
    const auto length = std::min({ window.size(), page.size(), ComparedTitle });
    return length > 0 && window.substr(0, length) == page.substr(0, length);
}

}

WatchedBuckets::WatchedBuckets(const SourceSettings& settings, SourceData& data)
    : mSettings(settings)
    , mData(data)
    , mTexts(data.sightings.Texts())
{
}

void WatchedBuckets::AddEvent(Bucket& bucket, std::int64_t begin, std::int64_t length, const EventData& data)
{
    std::string_view title = data.title;
    auto rest = std::hash<std::string> {}(data.url);
    if (bucket.type == PageType) {
        rest ^= std::hash<std::string_view> {}(title);
        title = title.substr(0, ComparedTitle);
    }
    const Row row { mTexts.NumberOf(data.app), mTexts.NumberOf(title), mTexts.NumberOf(data.status),
        mTexts.NumberOf(PageHost(data.url)), static_cast<std::uint32_t>(rest), data.isPrivate };
    constexpr std::size_t Spread = 31;
    std::size_t hash = row.isPrivate ? 1 : 0;
    for (const auto part : { row.status, row.host, row.rest, row.app, row.title }) {
        hash = hash * Spread + part;
    }
    const auto next = static_cast<std::uint32_t>(mRows.size());
    const auto number = mIndex.Find(hash, next, [&](std::uint32_t known) { return mRows[known] == row; });
    if (number == next) {
        mRows.push_back(row);
    }
    bucket.events.push_back({ begin, begin + length, number });
}

void WatchedBuckets::Add(Bucket bucket)
{
    auto& host = mHosts[bucket.host];
    if (bucket.type == WindowType) {
        Append(host.windows, std::move(bucket.events));
    } else if (bucket.type == IdleType) {
        host.hasIdle = true;
        Append(host.idle, std::move(bucket.events));
    } else if (bucket.type == PageType) {
        Append(host.pages, std::move(bucket.events));
    } else {
        LeaveOut(bucket);
    }
}

void WatchedBuckets::LeaveOut(const Bucket& bucket)
{
    mData.skipped.Add(Skipped::Bucket);
    if (++mLeftOut > MostNamedBuckets) {
        return;
    }
    mData.remarks.push_back("left out the bucket \"" + Shortened(PlainText(bucket.name), LongestText)
        + "\", whose type "
        + (bucket.type.empty() ? "isn't told" : "is \"" + Shortened(PlainText(bucket.type), LongestName) + "\"")
        + ": windows, idle times and pages of browsers are read");
}

void WatchedBuckets::Finish()
{
    mIndex = {};
    if (mLeftOut > MostNamedBuckets) {
        mData.remarks.push_back(
            "left out " + std::to_string(mLeftOut - MostNamedBuckets) + " more buckets of such types");
    }
    for (auto& [name, host] : mHosts) {
        if (host.windows.empty() && host.idle.empty()) {
            continue;
        }
        const auto computer = static_cast<std::uint32_t>(mData.computers.size());
        AddPresence(host, mData.computers.emplace_back());
        Straighten(host.windows);
        Straighten(host.pages);
        mLatestEnds.clear();
        for (const auto& page : host.pages) {
            mLatestEnds.push_back(mLatestEnds.empty() ? page.end : std::max(mLatestEnds.back(), page.end));
        }
        mData.windows.reserve(mData.windows.size() + host.windows.size());
        for (const auto& event : host.windows) {
            AddWindow(event, host.pages, computer);
        }
        host = {};
    }
}

void WatchedBuckets::AddPresence(Host& host, SourceData::Computer& computer)
{
    computer.isTold = host.hasIdle;
    Straighten(host.idle);
    for (const auto& event : host.idle) {
        if (mTexts.Text(mRows[event.data].status) == PresentStatus) {
            ForLocalTimes(mSettings.zone, event.begin / Milliseconds, event.end / Milliseconds,
                [&](std::int64_t begin, std::int64_t end) { computer.presence.Add(begin, end); });
        }
    }
}

void WatchedBuckets::Straighten(std::vector<Event>& events)
{
    std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::tuple(a.begin, a.data, b.end) < std::tuple(b.begin, b.data, a.end);
    });
    const auto isSame = [this](const Event& a, const Event& b) {
        const bool isIt = a.begin == b.begin && a.data == b.data;
        mData.skipped.Add(Skipped::Duplicate, isIt ? 1 : 0);
        return isIt;
    };
    events.erase(std::unique(events.begin(), events.end(), isSame), events.end());
    auto kept = events.begin();
    for (auto next = events.begin(); next != events.end();) {
        auto event = *next++;
        mData.skipped.Add(Skipped::ZeroLength, event.end == event.begin ? 1 : 0);
        if (event.end - event.begin > LongestEvent) {
            const bool hasNeighbour = next != events.end() && next->begin - event.begin <= LongestEvent;
            mData.skipped.Add(hasNeighbour ? Skipped::Cut : Skipped::TooLong);
            event.end = hasNeighbour ? next->begin : event.begin;
        }
        if (event.end > event.begin) {
            *kept++ = event;
        }
    }
    events.erase(kept, events.end());
}

void WatchedBuckets::AddWindow(const Event& event, const std::vector<Event>& pages, std::uint32_t computer)
{
    const auto& row = mRows[event.data];
    const auto none = mTexts.NumberOf("");
    SightingTable::Row sighting { row.app, none, row.title, none, none, false };
    // Pages may overlap one another; none in front of the first whose predecessors reach so far is still there.
    const auto first = std::upper_bound(mLatestEnds.begin(), mLatestEnds.end(), event.begin);
    for (auto page = pages.begin() + (first - mLatestEnds.begin()); page != pages.end() && page->begin < event.end;
         ++page) {
        const auto& told = mRows[page->data];
        if (page->end > event.begin && BeginsAlike(TitleOf(row), TitleOf(told))) {
            sighting.host = sighting.host == none ? told.host : sighting.host;
            sighting.isPrivate = sighting.isPrivate || told.isPrivate;
        }
    }
    const auto number = mData.sightings.NumberOf(sighting);
    ForLocalTimes(mSettings.zone, event.begin / Milliseconds, event.end / Milliseconds,
        [&](std::int64_t begin, std::int64_t end) {
            mData.windows.push_back({ begin, end, computer, number });
        });
}

}
