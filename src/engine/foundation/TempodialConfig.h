#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tempodial {

/// The tunable constants. Nothing changes them after `Initialize`.
class TempodialConfig
{
public:
    std::string mTraceInfo;
    /// What the calendar view's display time units must be.
    std::string mDisplayTime;
    /// Days of tracker files that a sync loads, and that are kept on disk.
    std::int32_t mSavedDataDays = 0;
    /// Default number of days for the back-application of a project.
    std::int32_t mApplyBackDays = 0;
    /// Choices of days for the back-application; kept: nothing reads them.
    std::array<std::string, 10> mApplyBackDayArray;
    /// `mApplyBackDays` as decimal text.
    std::string mApplyBackDaysText;
    /// Length of a tracker slot in minutes.
    std::int32_t mSlotsize = 0;
    /// Version of the add-in.
    std::string mTDVersion;

    /// Sets all constants.
    void Initialize();
};

}
