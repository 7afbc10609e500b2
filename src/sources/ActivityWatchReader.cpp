#include "sources/ActivityWatchReader.h"

#include "sources/JsonEvents.h"
#include "sources/MomentText.h"
#include "sources/SourceProblem.h"
#include "sources/WatchedBuckets.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tempodial {

namespace {

/// Hears the export, bucket by bucket.
class ExportListener final : public JsonListener
{
    using Path = std::vector<std::string>;

public:
    ExportListener(const SourceSettings& settings, SourceData& data)
        : mSettings(settings)
        , mSkipped(data.skipped)
        , mBuckets(settings, data)
    {
    }

    void Begin(const Path& path, bool isArray) override
    {
        if (path.empty()) {
            mIsExport = !isArray;
        } else if (IsBucket(path)) {
            mBucket = {};
            mBucket.name = path[1];
        } else if (IsEvent(path)) {
            mEvent = {};
        }
        mHasBuckets = mHasBuckets || (path.size() == 1 && path[0] == "buckets" && !isArray);
    }

    void End(const Path& path, bool) override
    {
        if (IsBucket(path)) {
            mBuckets.Add(std::move(mBucket));
            mBucket = {};
        } else if (IsEvent(path)) {
            EndEvent();
        }
    }

    void Value(const Path& path, const JsonScalar& value) override
    {
        const auto* text = std::get_if<std::string>(&value);
        constexpr std::size_t BucketMember = 3;
        constexpr std::size_t EventMember = 5;
        constexpr std::size_t DataMember = 6;
        if (path.empty() || path.front() != "buckets") {
            return;
        }
        if (path.size() == BucketMember && text != nullptr) {
            (path[2] == "type" ? mBucket.type : path[2] == "hostname" ? mBucket.host : mIgnored) = *text;
        } else if (path.size() == EventMember && path[2] == "events") {
            if (path.back() == "timestamp" && text != nullptr) {
                mEvent.moment = ReadMoment(*text);
            } else if (path.back() == "duration") {
                const auto* seconds = std::get_if<double>(&value);
                mEvent.seconds = seconds == nullptr ? -1 : *seconds;
            }
        } else if (path.size() == DataMember && path[4] == "data") {
            TakeData(path.back(), value);
        }
    }

    /// True when the document had what an export has.
    bool IsExport() const { return mIsExport && mHasBuckets; }
    void Finish() { mBuckets.Finish(); }

private:
    struct Event
    {
        std::optional<WrittenMoment> moment;
        double seconds = 0;
        WatchedBuckets::EventData data;
    };

    static bool IsBucket(const Path& path) { return path.size() == 2 && path[0] == "buckets"; }
    static bool IsEvent(const Path& path)
    {
        constexpr std::size_t Levels = 4;
        return path.size() == Levels && path[0] == "buckets" && path[2] == "events";
    }

    void TakeData(const std::string& name, const JsonScalar& value)
    {
        const auto* text = std::get_if<std::string>(&value);
        auto& data = mEvent.data;
        if (text != nullptr) {
            (name == "app"             ? data.app
                    : name == "title"  ? data.title
                    : name == "status" ? data.status
                    : name == "url"    ? data.url
                                       : mIgnored)
                = *text;
        } else if (name == "incognito" && std::get_if<bool>(&value) != nullptr) {
            data.isPrivate = std::get<bool>(value);
        }
    }

    void EndEvent()
    {
        constexpr double LongestSeconds = 1e9;
        if (!mEvent.moment || !(mEvent.seconds >= 0) || mEvent.seconds > LongestSeconds) {
            mSkipped.Add(Skipped::Unreadable);
            return;
        }
        if (++mEvents > MostSourceRecords) {
            throw BrokenSource("the file has more than 20 million events: export fewer buckets");
        }
        constexpr std::int64_t Milliseconds = 1000;
        const auto& moment = *mEvent.moment;
        const auto begin = moment.offset ? moment.Moment() : mSettings.zone.MomentOf(moment.written);
        mBuckets.AddEvent(mBucket, begin * Milliseconds + moment.milliseconds,
            std::llround(mEvent.seconds * static_cast<double>(Milliseconds)), mEvent.data);
    }

    const SourceSettings& mSettings;
    Skipped& mSkipped;
    WatchedBuckets mBuckets;
    WatchedBuckets::Bucket mBucket;
    Event mEvent;
    std::int64_t mEvents = 0;
    bool mIsExport = false;
    bool mHasBuckets = false;
    std::string mIgnored;
};

}

SourceData ActivityWatchReader::Read(std::istream& stream, const SourceSettings& settings)
{
    SourceData data;
    ExportListener listener(settings, data);
    ReadJson(stream, listener, data.skipped);
    if (!listener.IsExport()) {
        throw WrongSource(
            "this is no export of ActivityWatch, which begins with {\"buckets\": export all buckets as JSON");
    }
    listener.Finish();
    return data;
}

}
