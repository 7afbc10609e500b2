#include "host/system/LocalTime.h"

namespace tempodial {

namespace {

constexpr std::time_t QuarterHour = 900;
/// From 1899-12-30 to 1970-01-01.
constexpr std::time_t SecondsTo1970 = 25569LL * 86400;

}

Date LocalTime::At(std::time_t moment)
{
    const auto quarter = moment / QuarterHour;
    if (quarter != mQuarter) {
        std::tm local {};
        if (::localtime_r(&moment, &local) != nullptr) {
            mOffset = local.tm_gmtoff;
            mQuarter = quarter;
        }
    }
    return Date::FromSeconds(moment + mOffset + SecondsTo1970);
}

}
