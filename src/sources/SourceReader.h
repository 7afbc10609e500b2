#pragma once

#include "base/Date.h"
#include "platform/system/TimeZone.h"
#include "sources/SourceData.h"
#include "sources/calendar/CalendarModule.h"

#include <cstdint>
#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <type_traits>

namespace tempodial {

/// The order of day and month in dates that are written with a separator.
enum class DateOrder { FromTheFile, MonthFirst, DayFirst };

/// What a source is read with.
struct SourceSettings
{
    /// The zone in which moments become local times.
    TimeZone& zone;
    /// The present moment; what is behind it hasn't been.
    Date now;
    DateOrder dates = DateOrder::FromTheFile;
    /// True to take times with a program as windows that were seen, false as entries.
    bool asSightings = false;
    /// Makes UTF-8 of a text in whatever encoding.
    std::function<std::string(std::string text)> decode;
    /// Reads the text of a calendar.
    std::function<std::remove_pointer_t<CalendarTextReader>> readCalendar = nullptr;
    /// The first day that is asked for; what is before it needn't be read.
    std::optional<Date> from = {};
};

/// Reads what another program exports.
class SourceReader
{
public:
    virtual ~SourceReader() = default;

    /// Reads all of a stream. Fails with `WrongSource` or `BrokenSource`; single records that can't be taken are
    /// counted.
    virtual SourceData Read(std::istream& stream, const SourceSettings& settings) = 0;
};

/// The most that a source may hold: bytes, records, days, and bytes of one field.
inline constexpr std::int64_t MostSourceBytes = std::int64_t { 2 } << 30;
inline constexpr std::int64_t MostSourceRecords = 20'000'000;
inline constexpr std::int64_t MostSourceDays = 3660;
inline constexpr std::size_t MostFieldBytes = std::size_t { 64 } << 10;

}
