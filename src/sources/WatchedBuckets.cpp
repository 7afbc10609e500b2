#include "sources/WatchedBuckets.h"

#include "sources/MomentText.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace tempodial {

namespace {

constexpr std::int64_t Milliseconds = 1000;
constexpr std::int64_t LongestEvent = 86400 * Milliseconds;
constexpr auto PresentStatus = "not-afk";

void Append(std::vector<WatchedBuckets::Event>& events, std::vector<WatchedBuckets::Event> more)
{
    events.insert(events.end(), more.begin(), more.end());
}

/// The site of a page's address.
std::string HostOfPage(std::string_view url)
{
    const auto scheme = url.find("://");
    if (scheme == std::string_view::npos || !url.starts_with("http")) {
        return {};
    }
    url.remove_prefix(scheme + 3);
    url = url.substr(0, url.find_first_of("/?#"));
    const auto account = url.rfind('@');
    url.remove_prefix(account == std::string_view::npos ? 0 : account + 1);
    return std::string(url.substr(0, url.find(':')));
}

/// True when one title begins as the other does, as a window's does that has the page's.
bool BeginsAlike(std::string_view window, std::string_view page)
{
    constexpr std::size_t Compared = 40;
    const auto length = std::min({ window.size(), page.size(), Compared });
    return length > 0 && window.substr(0, length) == page.substr(0, length);
}

}

void WatchedBuckets::AddEvent(Bucket& bucket, std::int64_t begin, std::int64_t length, const EventData& data)
{
    constexpr char Between = '\x1f';
    auto key = data.app + Between + data.title + Between + data.status + Between + data.url + Between
        + (data.isPrivate ? "1" : "0");
    const auto [found, isNew] = mEventDataIndex.emplace(std::move(key), static_cast<std::uint32_t>(mEventData.size()));
    if (isNew) {
        mEventData.push_back(data);
    }
    bucket.events.push_back({ begin, begin + length, found->second });
}

void WatchedBuckets::Add(Bucket bucket)
{
    auto& host = mHosts[bucket.host];
    if (bucket.type == "currentwindow") {
        Append(host.windows, std::move(bucket.events));
    } else if (bucket.type == "afkstatus") {
        host.hasIdle = true;
        Append(host.idle, std::move(bucket.events));
    } else if (bucket.type == "web.tab.current") {
        Append(host.pages, std::move(bucket.events));
    } else {
        mData.skipped.Add(Skipped::Bucket);
    }
}

void WatchedBuckets::Finish()
{
    mEventDataIndex.clear();
    for (auto& [name, host] : mHosts) {
        if (host.windows.empty() && host.idle.empty()) {
            continue;
        }
        const auto computer = static_cast<std::uint32_t>(mData.computers.size());
        mData.computers.emplace_back();
        mData.computers.back().isTold = host.hasIdle;
        Straighten(host.idle);
        for (const auto& event : host.idle) {
            if (mEventData[event.data].status == PresentStatus) {
                ForLocalTimes(mSettings.zone, event.begin / Milliseconds, event.end / Milliseconds,
                    [&](std::int64_t begin, std::int64_t end) { mData.computers.back().presence.Add(begin, end); });
            }
        }
        Straighten(host.windows);
        Straighten(host.pages);
        mLatestEnds.clear();
        for (const auto& page : host.pages) {
            mLatestEnds.push_back(mLatestEnds.empty() ? page.end : std::max(mLatestEnds.back(), page.end));
        }
        for (const auto& event : host.windows) {
            AddWindow(event, host.pages, computer);
        }
        host = {};
    }
}

void WatchedBuckets::Straighten(std::vector<Event>& events)
{
    std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::tuple(a.begin, a.data, b.end) < std::tuple(b.begin, b.data, a.end);
    });
    std::vector<Event> kept;
    for (const auto& event : events) {
        if (!kept.empty() && kept.back().begin == event.begin && kept.back().data == event.data) {
            mData.skipped.Add(Skipped::Duplicate);
        } else {
            kept.push_back(event);
        }
    }
    events.clear();
    for (std::size_t i = 0; i < kept.size(); ++i) {
        auto event = kept[i];
        if (event.end - event.begin > LongestEvent) {
            const bool hasNeighbour = i + 1 < kept.size() && kept[i + 1].begin - event.begin <= LongestEvent;
            mData.skipped.Add(hasNeighbour ? Skipped::Cut : Skipped::TooLong);
            event.end = hasNeighbour ? kept[i + 1].begin : event.begin;
        }
        if (event.end > event.begin) {
            events.push_back(event);
        }
    }
}

void WatchedBuckets::AddWindow(const Event& event, const std::vector<Event>& pages, std::uint32_t computer)
{
    const auto& data = mEventData[event.data];
    Sighting sighting;
    sighting.program = data.app;
    sighting.title = data.title;
    // Pages may overlap one another; none in front of the first whose predecessors reach so far is still there.
    const auto first = std::upper_bound(mLatestEnds.begin(), mLatestEnds.end(), event.begin);
    for (auto page = pages.begin() + (first - mLatestEnds.begin()); page != pages.end() && page->begin < event.end;
         ++page) {
        const auto& pageData = mEventData[page->data];
        if (page->end > event.begin && BeginsAlike(data.title, pageData.title)) {
            sighting.host = sighting.host.empty() ? HostOfPage(pageData.url) : sighting.host;
            sighting.isPrivate = sighting.isPrivate || pageData.isPrivate;
        }
    }
    const auto index = mSightings.Index(sighting);
    ForLocalTimes(mSettings.zone, event.begin / Milliseconds, event.end / Milliseconds,
        [&](std::int64_t begin, std::int64_t end) {
            mData.windows.push_back({ begin, end, computer, index });
        });
}

}
