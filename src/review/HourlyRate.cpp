#include "review/HourlyRate.h"

#include "base/Number.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace tempodial {

namespace {

constexpr std::size_t MostDecimals = 4;
constexpr std::int64_t TenThousand = 10'000;
constexpr std::int64_t HighestRate = 1'000'000;

std::optional<std::int64_t> NumberOf(std::string_view digits)
{
    std::int64_t number = 0;
    const auto* end = digits.data() + digits.size();
    const bool begins = !digits.empty() && digits.front() != '-';
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    return begins && error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

}

std::string Money::Text() const
{
    constexpr std::int64_t Hundred = 100;
    return std::to_string(hundredths / Hundred) + "." + Padded(static_cast<std::int32_t>(hundredths % Hundred), 2);
}

std::optional<HourlyRate> HourlyRate::Read(std::string_view text)
{
    const auto point = std::min(text.find('.'), text.size());
    auto decimals = std::string(text.substr(std::min(point + 1, text.size())));
    const bool isShort = decimals.size() <= MostDecimals && (point == text.size() || !decimals.empty());
    decimals.resize(MostDecimals, '0');
    const auto whole = NumberOf(text.substr(0, point));
    const auto fraction = NumberOf(decimals);
    if (!isShort || !whole || !fraction || *whole > HighestRate) {
        return std::nullopt;
    }
    const auto rate = *whole * TenThousand + *fraction;
    return rate <= HighestRate * TenThousand ? std::optional(HourlyRate(rate)) : std::nullopt;
}

Money HourlyRate::Of(std::int64_t minutes) const
{
    // Hundredths of an hour's price, of which a minute is the sixtieth part.
    constexpr std::int64_t Parts = TenThousand / 100 * 60;
    // The parts are worked on apart, so that the product stays within 64 bits.
    const auto rest = (minutes % Parts * mTenThousandths + Parts / 2) / Parts;
    return { minutes / Parts * mTenThousandths + rest };
}

}
