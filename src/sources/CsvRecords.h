#pragma once

#include "sources/SourceReader.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// A table of texts with names of columns in its first line, read record by record: fields in quotes may hold
/// separators, line breaks and doubled quotes. The separator, a comma, a semicolon or a tab, is told from the first
/// line.
class CsvRecords
{
public:
    CsvRecords(std::istream& stream, const SourceSettings& settings, Skipped& skipped);

    /// The column of the first of these names that there is, whatever its case; nothing when there is none.
    std::optional<std::size_t> Column(std::initializer_list<std::string_view> names) const;
    /// The names of the columns.
    const std::vector<std::string>& Names() const { return mNames; }

    /// Reads the next record; false at the end. Blank lines are none.
    bool Next();
    /// A field of the record, empty when it has none there or the column is none.
    std::string Field(std::optional<std::size_t> column) const;
    /// True when all of its fields are there.
    bool IsWhole() const { return mFields.size() >= mNames.size(); }

private:
    /// Reads a record into the fields; false at the end.
    bool ReadRecord();
    void EndField();
    bool EndRecord();

    std::istream& mStream;
    const SourceSettings& mSettings;
    Skipped& mSkipped;
    char mSeparator = 0;
    std::int64_t mRecords = 0;
    std::string mField;
    bool mIsTooBig = false;
    std::vector<std::string> mFields;
    std::vector<std::string> mNames;
};

}
