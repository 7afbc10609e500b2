#include "sources/SourceTest.h"

#include <sstream>

namespace tempodial {

SourceData SourceTest::Read(const std::string& source, const std::string& text, bool asSightings)
{
    std::istringstream stream(text);
    const SourceSettings settings { mZone, mNow, mDates, asSightings,
        [](std::string bytes) { return "<" + bytes + ">"; } };
    for (const auto& known : AllSources()) {
        if (known.name == source) {
            return known.makeReader()->Read(stream, settings);
        }
    }
    ADD_FAILURE() << "there is no source " << source;
    return {};
}

std::string SourceTest::Refusal(const std::string& source, const std::string& text)
{
    try {
        Read(source, text);
    } catch (const WrongSource& problem) {
        return problem.what();
    }
    return "";
}

std::string SourceTest::Breakage(const std::string& source, const std::string& text)
{
    try {
        Read(source, text);
    } catch (const BrokenSource& problem) {
        return problem.what();
    }
    return "";
}

std::vector<std::string> SourceTest::Told(const SourceData& data)
{
    std::vector<std::string> told;
    for (const auto& entry : data.entries) {
        told.push_back(Moment(entry.start) + " " + Moment(entry.end) + " " + entry.words.program + "|"
            + entry.words.title + "|" + entry.project);
    }
    return told;
}

std::string SourceTest::Moment(std::int64_t seconds)
{
    const auto date = Date::FromSeconds(seconds);
    return date.DayKey() + " " + date.HourMinute();
}

}
