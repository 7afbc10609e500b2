#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tempodial {

/// Finds the numbers of things that are kept elsewhere by what they hash to, in few bytes each.
class NumberIndex
{
public:
    /// The number of the thing with that hash for which `isSame(number)` holds; `next` when there is none, under which
    /// it is then found.
    template <class IsSame> std::uint32_t Find(std::size_t hash, std::uint32_t next, IsSame&& isSame)
    {
        if ((mCount + 1) * 2 > mSlots.size()) {
            Grow();
        }
        const auto key = static_cast<std::uint32_t>(hash);
        for (auto place = Place(key); mSlots[place].number != Free; place = (place + 1) % mSlots.size()) {
            if (mSlots[place].key == key && isSame(mSlots[place].number)) {
                return mSlots[place].number;
            }
        }
        Put({ key, next });
        ++mCount;
        return next;
    }

private:
    static constexpr std::uint32_t Free = UINT32_MAX;

    struct Slot
    {
        std::uint32_t key = 0;
        std::uint32_t number = Free;
    };

    std::size_t Place(std::uint32_t key) const
    {
        // What hashes to near numbers is to stand far from each other.
        constexpr std::uint64_t Odd = 0x9E3779B97F4A7C15;
        constexpr int UpperHalf = 32;
        return static_cast<std::size_t>((key * Odd) >> UpperHalf) % mSlots.size();
    }

    void Put(Slot slot)
    {
        auto place = Place(slot.key);
        while (mSlots[place].number != Free) {
            place = (place + 1) % mSlots.size();
        }
        mSlots[place] = slot;
    }

    void Grow()
    {
        constexpr std::size_t Fewest = 1024;
        const auto former = std::exchange(mSlots, std::vector<Slot>(mSlots.empty() ? Fewest : mSlots.size() * 2));
        for (const auto& slot : former) {
            if (slot.number != Free) {
                Put(slot);
            }
        }
    }

    std::vector<Slot> mSlots;
    std::size_t mCount = 0;
};

}
