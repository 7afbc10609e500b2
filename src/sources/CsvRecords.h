#pragma once

#include "sources/SourceReader.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <istream>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// A table of texts with names of columns in its first line, read record by record: a field that begins with a quote
/// may hold separators, line breaks and doubled quotes up to the next one; a quote anywhere else is itself. A record
/// whose quotes are never closed can't be read and is counted. The separator, a comma, a semicolon or a tab, is told
/// from the first line.
class CsvRecords
{
public:
    CsvRecords(std::istream& stream, const SourceSettings& settings, Skipped& skipped);

    /// The column of the first of these names that there is, whatever its case; nothing when there is none.
    std::optional<std::size_t> Column(std::initializer_list<std::string_view> names) const;

    /// Reads the next record; false at the end. Blank lines are none.
    bool Next();
    /// A field of the record, empty when it has none there or the column is none.
    std::string Field(std::optional<std::size_t> column) const;
    /// The line of the file on which the record begins; the first one has the number 1.
    std::int64_t Line() const { return mLine; }

private:
    /// Where a character of a field stands.
    enum class Part { Begin, Plain, Quoted };

    /// The next byte, or the end; `Take` goes on behind it.
    int Peek();
    int Take();
    /// Reads a record into the fields; false at the end.
    bool ReadRecord();
    void Append(char character);
    void EndField();

    std::streambuf& mBuffer;
    const SourceSettings& mSettings;
    Skipped& mSkipped;
    /// What was read to find the separator, and how much of it was taken.
    std::string mAhead;
    std::size_t mAheadAt = 0;
    char mSeparator = 0;
    std::int64_t mRecords = 0;
    std::int64_t mLine = 1;
    std::int64_t mNextLine = 1;
    std::string mField;
    Part mPart = Part::Begin;
    bool mIsTooBig = false;
    std::vector<std::string> mFields;
    std::vector<std::string> mNames;
};

}
