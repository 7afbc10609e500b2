#include "cli/ZoneArgument.h"

#include "base/Failure.h"
#include "host/system/IcuTimeZone.h"
#include "terminal/NearestName.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

/// What stands behind the area in a zone's name.
std::string_view CityOf(std::string_view zone)
{
    return zone.substr(zone.rfind('/') + 1);
}

std::string_view AreaOf(std::string_view zone)
{
    return zone.substr(0, zone.size() - CityOf(zone).size());
}

/// The zone whose city is called most like that of a name. The areas count for nothing, since in Europe/Wien and
/// Europe/Kiev they are most of what is the same.
std::string NearestByCity(std::string_view typed, const std::vector<std::string>& zones)
{
    std::vector<std::string> cities;
    for (const auto& zone : zones) {
        cities.emplace_back(CityOf(zone));
    }
    const auto nearest = NearestName(CityOf(typed), cities);
    return nearest.empty() ? "" : zones[static_cast<std::size_t>(std::ranges::find(cities, nearest) - cities.begin())];
}

/// The zone that somebody likely means; empty when none is near.
std::string LikelyZone(const std::string& typed)
{
    if (auto zone = IcuTimeZone::OfCity(std::string(CityOf(typed))); !zone.empty()) {
        return zone;
    }
    const auto zones = IcuTimeZone::Names();
    std::vector<std::string> near;
    std::ranges::copy_if(
        zones, std::back_inserter(near), [&](const auto& zone) { return AreaOf(zone) == AreaOf(typed); });
    const auto zone = NearestByCity(typed, near);
    return zone.empty() ? NearestByCity(typed, zones) : zone;
}

}

std::unique_ptr<TimeZone> ToZone(const std::optional<std::string>& name)
{
    if (!name) {
        return std::make_unique<IcuTimeZone>();
    }
    try {
        return std::make_unique<IcuTimeZone>(*name);
    } catch (const Failure&) {
        const auto zone = LikelyZone(*name);
        throw UsageError("there is no time zone " + InQuotes(*name) + ": "
            + (zone.empty() ? "name one such as Europe/Zurich" : "did you mean " + InQuotes(zone) + "?"));
    }
}

}
