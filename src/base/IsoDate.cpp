#include "base/IsoDate.h"

#include "base/Number.h"

namespace tempodial {

std::string IsoMoment(Date moment)
{
    const auto parts = moment.ToParts();
    return IsoDay(moment) + "T" + Padded(parts.hour, 2) + ":" + Padded(parts.minute, 2) + ":" + Padded(parts.second, 2);
}

std::string IsoDay(Date moment)
{
    const auto parts = moment.ToParts();
    return Padded(parts.year, 4) + "-" + Padded(parts.month, 2) + "-" + Padded(parts.day, 2);
}

}
