#pragma once

#include "base/Date.h"
#include "workload/Activities.h"

#include <cstdint>
#include <fstream>
#include <string>

namespace tempodial {

/// Writes an export of ActivityWatch as large as a busy year's: windows of half a minute, the pages of a browser beside
/// them, and the times with input. Three of ten titles were never seen before.
class WatchedYear
{
public:
    /// Takes the last day, which is written too.
    explicit WatchedYear(Date last)
        : mLast(last)
    {
    }

    /// Writes days of so many events each. Fails with `std::runtime_error` when the file can't be written.
    void Write(const std::string& path, std::int64_t days, std::int64_t eventsOfDay);

private:
    void WriteBucket(const char* type, std::int64_t days, std::int64_t events);
    std::string DataOf(const char* type, std::int64_t number);

    Date mLast;
    Activities mChance { 11 };
    std::ofstream mFile;
};

}
