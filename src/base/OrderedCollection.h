#pragma once

#include "base/Failure.h"
#include "base/Text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tempodial {

/// An ordered collection: positions count from 1, keys are optional and ignore case.
template <class T> class OrderedCollection
{
public:
    /// Number of entries.
    std::int32_t Count() const { return static_cast<std::int32_t>(mEntries.size()); }

    /// Appends an entry without a key.
    void Add(T item) { mEntries.push_back({ std::nullopt, std::move(item) }); }
    /// Appends an entry under a key; a known key fails (457).
    void AddKeyed(T item, std::string_view key) { Insert(std::move(item), key, mEntries.size()); }
    /// Adds an entry under a key before a position; a known key fails (457), a position out of range (9).
    void AddKeyedBefore(T item, std::string_view key, std::int32_t before)
    {
        Insert(std::move(item), key, Index(before));
    }

    /// The entry at a position; out of range fails (9).
    const T& Item(std::int32_t position) const { return mEntries[Index(position)].item; }
    /// The entry of a key; an unknown key fails (5).
    const T& ItemKeyed(std::string_view key) const { return mEntries[KeyIndex(key)].item; }
    /// Removes the entry at a position, later ones moving down; out of range fails (9).
    void Remove(std::int32_t position) { Erase(Index(position)); }
    /// Removes the entry of a key; an unknown key fails (5).
    void RemoveKeyed(std::string_view key) { Erase(KeyIndex(key)); }
    /// Removes all entries.
    void Clear() { mEntries.clear(); }

private:
    struct Entry
    {
        std::optional<std::string> foldedKey;
        T item;
    };

    std::size_t Index(std::int32_t position) const
    {
        if (position < 1 || position > Count()) {
            throw Failure(Error::SubscriptOutOfRange);
        }
        return static_cast<std::size_t>(position) - 1;
    }
    std::size_t Search(const std::string& foldedKey) const
    {
        std::size_t index = 0;
        while (index < mEntries.size() && mEntries[index].foldedKey != foldedKey) {
            ++index;
        }
        return index;
    }
    std::size_t KeyIndex(std::string_view key) const
    {
        const auto index = Search(Fold(key));
        if (index == mEntries.size()) {
            throw Failure(Error::InvalidCall);
        }
        return index;
    }
    void Insert(T item, std::string_view key, std::size_t index)
    {
        auto folded = Fold(key);
        if (Search(folded) != mEntries.size()) {
            throw Failure(Error::KeyExists);
        }
        mEntries.insert(mEntries.begin() + static_cast<std::ptrdiff_t>(index), { std::move(folded), std::move(item) });
    }
    void Erase(std::size_t index) { mEntries.erase(mEntries.begin() + static_cast<std::ptrdiff_t>(index)); }

    std::vector<Entry> mEntries;
};

}
