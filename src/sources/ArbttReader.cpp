#include "sources/ArbttReader.h"

#include "slots/Program.h"
#include "sources/JsonEvents.h"
#include "sources/MomentText.h"
#include "sources/SourceProblem.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tempodial {

namespace {

constexpr double MillisecondsOfSecond = 1000;

/// Hears the dump, sample by sample.
class DumpListener final : public JsonListener
{
    using Path = std::vector<std::string>;

public:
    DumpListener(const SourceSettings& settings, SourceData& data)
        : mSettings(settings)
        , mData(data)
    {
        mData.computers.emplace_back();
        mData.computers.front().isTold = true;
    }

    void Begin(const Path& path, bool isArray) override
    {
        if (path.empty()) {
            mIsDump = isArray;
        } else if (path.size() == 1) {
            mSample = {};
        } else if (IsWindow(path)) {
            mWindow = {};
        }
    }

    void End(const Path& path, bool) override
    {
        if (path.size() == 1) {
            EndSample();
        } else if (IsWindow(path)) {
            mData.skipped.Add(Skipped::Hidden, mWindow.isHidden && !mWindow.isActive ? 1 : 0);
            if (mWindow.isActive) {
                mSample.active = mWindow.sighting;
            }
        }
    }

    void Value(const Path& path, const JsonScalar& value) override
    {
        constexpr std::size_t SampleMember = 2;
        constexpr std::size_t WindowMember = 4;
        const auto* text = std::get_if<std::string>(&value);
        const auto* number = std::get_if<double>(&value);
        const auto* flag = std::get_if<bool>(&value);
        if (path.size() == SampleMember) {
            if (path[1] == "date" && text != nullptr) {
                mSample.moment = ReadMoment(*text);
            } else if (path[1] == "rate" && number != nullptr) {
                mSample.rate = *number;
            } else if (path[1] == "inactive" && number != nullptr) {
                mSample.inactive = *number;
            }
        } else if (path.size() == WindowMember && path[1] == "windows") {
            if (text != nullptr && path[3] == "title") {
                mWindow.sighting.title = *text;
            } else if (text != nullptr && path[3] == "program") {
                mWindow.sighting.program = *text;
            } else if (flag != nullptr && path[3] == "active") {
                mWindow.isActive = *flag;
            } else if (flag != nullptr && path[3] == "hidden") {
                mWindow.isHidden = *flag;
            }
        }
    }

    /// True when the document was a list, as a dump is.
    bool IsDump() const { return mIsDump; }

    void Finish()
    {
        auto& presence = mData.computers.front().presence;
        presence.Bridge(IdleLimit(ProgramSort::Other));
        presence.Remove(mAway);
    }

private:
    struct Window
    {
        Sighting sighting;
        bool isActive = false;
        bool isHidden = false;
    };

    struct Sample
    {
        std::optional<WrittenMoment> moment;
        double rate = -1;
        double inactive = -1;
        std::optional<Sighting> active;
    };

    static bool IsWindow(const Path& path)
    {
        constexpr std::size_t Levels = 3;
        return path.size() == Levels && path[1] == "windows";
    }

    void EndSample()
    {
        constexpr double LongestRate = 3600 * MillisecondsOfSecond;
        constexpr double LongestInactive = 1e12;
        if (!mSample.moment || !(mSample.rate > 0) || mSample.rate > LongestRate || !(mSample.inactive >= 0)
            || mSample.inactive > LongestInactive) {
            mData.skipped.Add(Skipped::Unreadable);
            return;
        }
        if (++mSamples > MostSourceRecords) {
            throw BrokenSource("the file has more than 20 million samples: dump it in parts");
        }
        // Dates of a dump are in UTC also where they don't say so.
        const auto end = mSample.moment->Moment();
        const auto begin = end - std::llround(mSample.rate / MillisecondsOfSecond);
        const auto inactive = std::llround(mSample.inactive / MillisecondsOfSecond);
        const bool isAway = inactive > IdleLimit(ProgramSort::Other);
        ForLocalTimes(mSettings.zone, isAway ? end - inactive : begin, end, [&](std::int64_t from, std::int64_t to) {
            (isAway ? mAway : mData.computers.front().presence).Add(from, to);
        });
        if (mSample.active) {
            const auto index = mData.sightings.NumberOf(*mSample.active);
            ForLocalTimes(mSettings.zone, begin, end, [&](std::int64_t from, std::int64_t to) {
                mData.windows.push_back({ from, to, 0, index });
            });
        }
    }

    const SourceSettings& mSettings;
    SourceData& mData;
    Presence mAway;
    Sample mSample;
    Window mWindow;
    std::int64_t mSamples = 0;
    bool mIsDump = false;
};

}

SourceData ArbttReader::Read(std::istream& stream, const SourceSettings& settings)
{
    SourceData data;
    DumpListener listener(settings, data);
    ReadJson(stream, listener, data.skipped);
    if (!listener.IsDump()) {
        throw WrongSource("this is no dump of arbtt, which is a list: make one with arbtt-dump -t json");
    }
    listener.Finish();
    return data;
}

}
