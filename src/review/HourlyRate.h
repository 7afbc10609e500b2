#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tempodial {

/// An amount of money, in hundredths.
struct Money
{
    std::int64_t hundredths = 0;

    friend bool operator==(const Money&, const Money&) = default;

    /// With two decimals behind a point, such as 1234.50.
    std::string Text() const;
};

/// What an hour costs, as an exact decimal number.
class HourlyRate
{
public:
    /// A number with up to four decimals behind a point, from 0 to a million; nothing for another text.
    static std::optional<HourlyRate> Read(std::string_view text);

    /// What that many minutes cost, half a hundredth going up.
    Money Of(std::int64_t minutes) const;

private:
    explicit HourlyRate(std::int64_t tenThousandths)
        : mTenThousandths(tenThousandths)
    {
    }

    std::int64_t mTenThousandths;
};

}
