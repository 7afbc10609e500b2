#include "host/store/EntryIds.h"

#include "base/Failure.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace tempodial {

namespace {

constexpr std::size_t RowDigits = 15;

void RequireRow(std::int64_t row)
{
    if (row < 1 || row > EntryIds::LastRow) {
        throw Failure(Error::Automation, "The mailbox is damaged: it has a row " + std::to_string(row));
    }
}

}

std::int64_t EntryIds::Next(std::int64_t row)
{
    const auto next = row < LastRow ? row + 1 : 0;
    RequireRow(next);
    return next;
}

std::string EntryIds::Make(char kind, std::int64_t row) const
{
    RequireRow(row);
    std::array<char, RowDigits> digits {};
    const auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), row, 16).ptr;
    const auto length = static_cast<std::size_t>(end - digits.data());
    return mMailbox + kind + std::string(RowDigits - length, '0') + std::string(digits.data(), length);
}

std::int64_t EntryIds::Row(char kind, const std::string& entryId) const
{
    const auto prefix = mMailbox + kind;
    if (entryId.size() != prefix.size() + RowDigits || !entryId.starts_with(prefix)) {
        return 0;
    }
    std::int64_t row = 0;
    const auto* const end = entryId.data() + entryId.size();
    const auto [stop, problem] = std::from_chars(entryId.data() + prefix.size(), end, row, 16);
    return problem == std::errc() && stop == end && row > 0 ? row : 0;
}

}
