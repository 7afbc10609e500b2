#include "host/system/IcuTimeZone.h"

#include "base/Failure.h"
#include "base/UnixTime.h"

#include <unicode/locid.h>
#include <unicode/strenum.h>
#include <unicode/timezone.h>
#include <unicode/tznames.h>

namespace tempodial {

namespace {

constexpr std::int64_t SecondsOfQuarter = 900;
constexpr double Milliseconds = 1000;

}

struct IcuTimeZone::Zone
{
    std::unique_ptr<icu::TimeZone> zone;
};

IcuTimeZone::IcuTimeZone(const std::string& name)
    : mZone(std::make_unique<Zone>())
{
    mZone->zone.reset(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)));
    if (!mZone->zone || *mZone->zone == icu::TimeZone::getUnknown()) {
        throw Failure(Error::InvalidCall);
    }
}

IcuTimeZone::IcuTimeZone()
    : mZone(std::make_unique<Zone>())
{
    mZone->zone.reset(icu::TimeZone::createDefault());
}

IcuTimeZone::~IcuTimeZone() = default;

std::int64_t IcuTimeZone::OffsetAt(std::int64_t moment)
{
    const auto quarter = moment / SecondsOfQuarter - (moment % SecondsOfQuarter < 0 ? 1 : 0);
    if (quarter != mQuarter) {
        std::int32_t raw = 0;
        std::int32_t daylight = 0;
        auto status = U_ZERO_ERROR;
        mZone->zone->getOffset(static_cast<double>(moment) * Milliseconds, 0, raw, daylight, status);
        mOffset = U_SUCCESS(status) ? (raw + daylight) / static_cast<std::int32_t>(Milliseconds) : 0;
        mQuarter = quarter;
    }
    return mOffset;
}

std::int64_t IcuTimeZone::MomentOf(Date local)
{
    // Where the clock is put back the offset before it gives the earlier moment, and where it is put forward the offset
    // before it is that of the clock that wasn't.
    constexpr std::int64_t LongestShift = 86400;
    const auto seconds = local.Seconds() - SecondsTo1970;
    const auto before = OffsetAt(seconds - LongestShift);
    const auto behind = OffsetAt(seconds + LongestShift);
    if (OffsetAt(seconds - before) == before) {
        return seconds - before;
    }
    return OffsetAt(seconds - behind) == behind ? seconds - behind : seconds - before;
}

std::vector<std::string> IcuTimeZone::Names()
{
    std::vector<std::string> names;
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> all(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_ANY, nullptr, nullptr, status));
    while (const auto* name = U_SUCCESS(status) ? all->next(nullptr, status) : nullptr) {
        names.emplace_back(name);
    }
    return names;
}

std::string IcuTimeZone::OfCity(const std::string& name)
{
    auto wanted = icu::UnicodeString::fromUTF8(name);
    wanted.findAndReplace("_", " ").foldCase();
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> zones(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_CANONICAL_LOCATION, nullptr, nullptr, status));
    std::int32_t count = 0;
    const auto* locales = icu::Locale::getAvailableLocales(count);
    for (std::int32_t i = 0; i < count && U_SUCCESS(status); ++i) {
        if (*locales[i].getCountry() != '\0') {
            continue; // it says what its language says
        }
        const std::unique_ptr<icu::TimeZoneNames> names(icu::TimeZoneNames::createInstance(locales[i], status));
        zones->reset(status);
        while (const auto* zone = U_SUCCESS(status) ? zones->snext(status) : nullptr) {
            icu::UnicodeString city;
            if (names->getExemplarLocationName(*zone, city).foldCase() == wanted) {
                std::string text;
                return zone->toUTF8String(text);
            }
        }
    }
    return {};
}

}
