#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// The text of the history file: a run of entries, each a day key, "_" and a count of seconds in five digits, which say
/// how far that day's file has been loaded. Positions count characters from 1.
class HistoryText
{
public:
    HistoryText() = default;
    explicit HistoryText(std::string text);

    /// An entry by itself.
    static std::string Entry(const std::string& dayKey, std::int32_t count);

    const std::string& Text() const { return mText; }
    /// Position of a day's entry, 0 when it has none.
    std::int32_t Find(const std::string& dayKey) const;
    /// The count of the entry at a position; fails (9) when it has no "_", (13) when what follows isn't a number.
    std::int32_t Count(std::int32_t position) const;
    /// The text from a little before the count of the entry at a position on, as the trace shows it.
    std::string Tail(std::int32_t position) const;

    /// Takes out the entry at a position; for the last entry fails (5) and changes nothing.
    void Cut(std::int32_t position);
    /// Puts another count into the entry at a position.
    void SetCount(std::int32_t position, std::int32_t count);
    /// Adds an entry behind a "|".
    void Append(const std::string& dayKey, std::int32_t count);

private:
    std::string mText;
};

}
