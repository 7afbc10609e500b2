#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace tempodial {

/// The identities that a mailbox gives out: 48 hexadecimal digits, the mailbox's own random number, then what is named
/// and its row. Rows are never used again, so neither is an identity, and no other mailbox gives out the same.
class EntryIds
{
public:
    /// The last row that has an identity; the first is 1.
    static constexpr std::int64_t LastRow = (std::int64_t { 1 } << 60) - 1;

    explicit EntryIds(std::string mailbox)
        : mMailbox(std::move(mailbox))
    {
    }

    /// Fails (440), as the next two, for a row that has none, which only a damaged mailbox has.
    std::string OfFolder(std::int64_t row) const { return Make('1', row); }
    std::string OfItem(std::int64_t row) const { return Make('2', row); }
    std::string OfDraft(std::int64_t row) const { return Make('3', row); }
    /// The row behind another; fails (440) where there is none with an identity.
    static std::int64_t Next(std::int64_t row);
    /// The row of a folder's identity, 0 for any other text.
    std::int64_t FolderRow(const std::string& entryId) const { return Row('1', entryId); }
    /// The row of an item's identity, 0 for any other text.
    std::int64_t ItemRow(const std::string& entryId) const { return Row('2', entryId); }

private:
    std::string Make(char kind, std::int64_t row) const;
    std::int64_t Row(char kind, const std::string& entryId) const;

    std::string mMailbox;
};

}
