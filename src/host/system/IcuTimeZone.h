#pragma once

#include "platform/system/TimeZone.h"

#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A time zone as ICU knows it.
class IcuTimeZone : public TimeZone
{
public:
    /// The zone of a name such as Europe/Zurich, or the system's; an unknown name fails (5).
    explicit IcuTimeZone(const std::string& name);
    IcuTimeZone();
    ~IcuTimeZone() override;
    IcuTimeZone(const IcuTimeZone&) = delete;
    IcuTimeZone& operator=(const IcuTimeZone&) = delete;

    std::int64_t OffsetAt(std::int64_t moment) override;
    std::int64_t MomentOf(Date local) override;

    /// The names of all zones.
    static std::vector<std::string> Names();
    /// The zone of a city by its name in any language, as Wien is Europe/Vienna; empty when no zone is named after it.
    static std::string OfCity(const std::string& name);

private:
    struct Zone;

    std::unique_ptr<Zone> mZone;
    /// The quarter of an hour that was asked for last, in which nothing changes, and its offset.
    std::int64_t mQuarter = std::numeric_limits<std::int64_t>::min();
    std::int64_t mOffset = 0;
};

}
