#include "slots/TextSums.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tempodial {

void TextSums::Add(const std::string& text, std::int64_t seconds, int kind)
{
    const auto [found, isNew] = mSums.try_emplace(text);
    auto& sum = found->second;
    if (isNew) {
        sum.order = mAdded++;
        sum.kind = kind;
    }
    sum.seconds += seconds;
    if (kind == sum.kind) {
        sum.lead += seconds;
    } else if (seconds > sum.lead) {
        sum.lead = seconds - sum.lead;
        sum.kind = kind;
    } else {
        sum.lead -= seconds;
    }
    if (mSums.size() > MostTexts) {
        KeepLargest();
    }
}

std::vector<TextSums::TextTime> TextSums::Largest(std::size_t count) const
{
    std::vector<const std::pair<const std::string, Sum>*> sums;
    sums.reserve(mSums.size());
    for (const auto& sum : mSums) {
        sums.push_back(&sum);
    }
    const auto end = sums.begin() + static_cast<std::ptrdiff_t>(std::min(count, sums.size()));
    std::partial_sort(sums.begin(), end, sums.end(), [](const auto* a, const auto* b) {
        return std::pair(b->second.seconds, a->second.order) < std::pair(a->second.seconds, b->second.order);
    });
    std::vector<TextTime> largest;
    std::transform(sums.begin(), end, std::back_inserter(largest), [](const auto* sum) {
        return TextTime { sum->first, sum->second.seconds, sum->second.kind };
    });
    return largest;
}

void TextSums::KeepLargest()
{
    std::vector<std::pair<std::int64_t, std::size_t>> order;
    order.reserve(mSums.size());
    for (const auto& [text, sum] : mSums) {
        order.emplace_back(-sum.seconds, sum.order);
    }
    const auto last = order.begin() + MostTexts / 2;
    std::nth_element(order.begin(), last, order.end());
    std::erase_if(mSums, [last](const auto& sum) { return std::pair(-sum.second.seconds, sum.second.order) >= *last; });
}

}
