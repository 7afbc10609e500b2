#include "host/system/LocalTime.h"

#include "base/UnixTime.h"

namespace tempodial {

namespace {

constexpr std::time_t QuarterHour = 900;

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

Date LocalTime::UniversalAt(std::time_t moment)
{
    return Date::FromSeconds(moment + SecondsTo1970);
}

Date LocalTime::UniversalOf(Date local)
{
    const auto moment = UnixTimeOf(local);
    return moment ? UniversalAt(*moment) : local;
}

}
