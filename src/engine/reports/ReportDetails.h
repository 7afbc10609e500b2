#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The detail lines of all groups of a report. They stay where they are put, in large blocks, so that a long report
/// needs hardly more memory than its text, however many groups grow side by side.
class ReportDetails
{
public:
    /// The texts of one group, in their order.
    class List
    {
    public:
        /// True when it has no text, or empty ones only.
        bool IsEmpty() const { return mSize == 0; }
        /// Bytes.
        std::size_t Size() const { return mSize; }

    private:
        friend class ReportDetails;

        std::size_t mFirst = None;
        std::size_t mLast = None;
        std::size_t mSize = 0;
    };

    /// Adds a text to a list, which belongs to these details.
    void Append(List& list, std::string_view text);
    /// Adds all texts of a list to a text.
    void AppendTo(std::string& text, const List& list) const;

private:
    static constexpr auto None = static_cast<std::size_t>(-1);

    struct Piece
    {
        std::string_view text;
        std::size_t next;
    };

    /// A copy of a text that stays where it is.
    std::string_view Store(std::string_view text);

    std::vector<Piece> mPieces;
    std::vector<std::unique_ptr<char[]>> mBlocks;
    std::size_t mRoom = 0;
    char* mNext = nullptr;
};

}
