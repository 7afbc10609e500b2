#pragma once

#include "sources/NumberIndex.h"
#include "sources/SourceReader.h"

#include <cstdint>
#include <map>
#include <string>
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
        std::string name, type, host;
        std::vector<Event> events;
    };

    WatchedBuckets(const SourceSettings& settings, SourceData& data);

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

    /// An event's data in numbers of texts. Of an address only the site is kept, and what tells it from others.
    struct Row
    {
        std::uint32_t app, title, status, host, rest;
        bool isPrivate;

        bool operator==(const Row&) const = default;
    };

    void LeaveOut(const Bucket& bucket);
    void AddPresence(Host& host, SourceData::Computer& computer);
    void Straighten(std::vector<Event>& events);
    void AddWindow(const Event& event, const std::vector<Event>& pages, std::uint32_t computer);
    std::string_view TitleOf(const Row& row) const { return mTexts.Text(row.title); }

    const SourceSettings& mSettings;
    SourceData& mData;
    TextPool& mTexts;
    std::vector<Row> mRows;
    NumberIndex mIndex;
    std::map<std::string, Host> mHosts;
    std::int64_t mLeftOut = 0;
    /// For each page of the computer in hand where the pages up to it end at the latest.
    std::vector<std::int64_t> mLatestEnds;
};

}
