#pragma once

#include "sources/SightingList.h"
#include "sources/SourceReader.h"

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

/// ActivityWatch's buckets as they are read, brought together by computer: what is seen more than once counts once,
/// pages say of their windows which site they are and whether they are private.
class WatchedBuckets
{
public:
    /// What an event holds of what is used.
    struct EventData
    {
        std::string app, title, status, url;
        bool isPrivate = false;
    };

    /// Milliseconds since 1970 began in UTC, and where the event's data stand.
    struct Event
    {
        std::int64_t begin = 0;
        std::int64_t end = 0;
        std::uint32_t data = 0;
    };

    struct Bucket
    {
        std::string type, host;
        std::vector<Event> events;
    };

    WatchedBuckets(const SourceSettings& settings, SourceData& data)
        : mSettings(settings)
        , mData(data)
        , mSightings(data.sightings)
    {
    }

    /// Adds an event to a bucket; its times are milliseconds, counted since 1970 began in UTC.
    void AddEvent(Bucket& bucket, std::int64_t begin, std::int64_t length, const EventData& data);
    /// Adds a bucket that is whole.
    void Add(Bucket bucket);
    /// Makes of all buckets what an import needs.
    void Finish();

private:
    /// The events of a computer, by what they tell.
    struct Host
    {
        std::vector<Event> windows, idle, pages;
        bool hasIdle = false;
    };

    void Straighten(std::vector<Event>& events);
    void AddWindow(const Event& event, const std::vector<Event>& pages, std::uint32_t computer);

    const SourceSettings& mSettings;
    SourceData& mData;
    SightingList mSightings;
    std::vector<EventData> mEventData;
    std::unordered_map<std::string, std::uint32_t> mEventDataIndex;
    std::map<std::string, Host> mHosts;
    /// For each page of the computer in hand where the pages up to it end at the latest.
    std::vector<std::int64_t> mLatestEnds;
};

}
