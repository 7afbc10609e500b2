#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

/// Seconds of texts, each text once. Of more texts than an activity has in any ordinary day only those with most time
/// are kept.
class TextSums
{
public:
    /// The most texts that are kept.
    static constexpr std::size_t MostTexts = 2000;

    /// A text with its time.
    struct TextTime
    {
        std::string text;
        std::int64_t seconds = 0;
        /// The tracker's index of what most of that time was.
        int kind = 0;
    };

    /// Adds seconds of a text that belongs to a view of that kind.
    void Add(const std::string& text, std::int64_t seconds, int kind);

    /// The texts with most time, the most first; of equal ones the one that came first.
    std::vector<TextTime> Largest(std::size_t count) const;
    std::size_t Size() const { return mSums.size(); }

private:
    struct Sum
    {
        std::int64_t seconds = 0;
        std::size_t order = 0;
        int kind = 0;
        /// Seconds by which that kind is before all others.
        std::int64_t lead = 0;
    };

    void KeepLargest();

    std::unordered_map<std::string, Sum> mSums;
    std::size_t mAdded = 0;
};

}
