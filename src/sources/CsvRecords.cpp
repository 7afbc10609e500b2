#include "sources/CsvRecords.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "slots/PlainText.h"
#include "sources/SourceProblem.h"

#include <algorithm>

namespace tempodial {

namespace {

/// The separator that stands most often in a line, outside of quotes.
char SeparatorIn(std::string_view line)
{
    char best = ',';
    std::ptrdiff_t most = 0;
    for (const char separator : { ',', ';', '\t' }) {
        bool isQuoted = false;
        std::ptrdiff_t count = 0;
        for (const char character : line) {
            isQuoted = isQuoted != (character == '"');
            count += !isQuoted && character == separator ? 1 : 0;
        }
        if (count > most) {
            most = count;
            best = separator;
        }
    }
    return best;
}

}

CsvRecords::CsvRecords(std::istream& stream, const SourceSettings& settings, Skipped& skipped)
    : mStream(stream)
    , mSettings(settings)
    , mSkipped(skipped)
{
    // The separator must be known before the first record can be read: it is looked for in what stands before the
    // first line end.
    std::string line;
    int byte = 0;
    while (line.size() < MostFieldBytes && (byte = mStream.get()) != std::istream::traits_type::eof()) {
        line += static_cast<char>(byte);
        if (byte == '\n') {
            break;
        }
    }
    std::string_view text = line;
    if (text.starts_with(Utf8ByteOrderMark)) {
        text.remove_prefix(Utf8ByteOrderMark.size());
    }
    mSeparator = SeparatorIn(text);
    bool isQuoted = false;
    for (const char character : text) {
        if (character == '"') {
            isQuoted = !isQuoted;
        } else if (!isQuoted && (character == mSeparator || character == '\n' || character == '\r')) {
            if (character == mSeparator) {
                EndField();
            }
        } else {
            mField += character;
        }
    }
    EndField();
    for (auto& field : mFields) {
        mNames.push_back(Fold(Trimmed(field)));
    }
    mFields.clear();
}

std::optional<std::size_t> CsvRecords::Column(std::initializer_list<std::string_view> names) const
{
    for (const auto name : names) {
        const auto found = std::find(mNames.begin(), mNames.end(), Fold(name));
        if (found != mNames.end()) {
            return static_cast<std::size_t>(found - mNames.begin());
        }
    }
    return std::nullopt;
}

bool CsvRecords::Next()
{
    while (ReadRecord()) {
        if (mFields.size() > 1 || !mFields.front().empty()) {
            if (++mRecords > MostSourceRecords) {
                throw BrokenSource("the file has more than 20 million records: import it in parts");
            }
            return true;
        }
    }
    return false;
}

std::string CsvRecords::Field(std::optional<std::size_t> column) const
{
    return column && *column < mFields.size() ? mFields[*column] : std::string();
}

bool CsvRecords::ReadRecord()
{
    mFields.clear();
    auto& buffer = *mStream.rdbuf();
    bool isQuoted = false;
    bool isBegun = false;
    constexpr auto End = std::istream::traits_type::eof();
    for (auto byte = buffer.sbumpc(); byte != End; byte = buffer.sbumpc()) {
        const auto character = static_cast<char>(byte);
        isBegun = true;
        if (character == '"') {
            if (!isQuoted) {
                isQuoted = true;
            } else if (buffer.sgetc() == '"') {
                buffer.sbumpc();
                mField += '"';
            } else {
                isQuoted = false;
            }
        } else if (!isQuoted && character == mSeparator) {
            EndField();
        } else if (!isQuoted && (character == '\n' || character == '\r')) {
            if (character == '\r' && buffer.sgetc() == '\n') {
                buffer.sbumpc();
            }
            return EndRecord();
        } else if (mField.size() < MostFieldBytes) {
            mField += character;
        } else {
            mIsTooBig = true;
        }
    }
    return isBegun && EndRecord();
}

void CsvRecords::EndField()
{
    mFields.push_back(IsUtf8(mField) ? mField : mSettings.decode(mField));
    mField.clear();
    if (mIsTooBig) {
        mSkipped.Add(Skipped::TooBig);
        mIsTooBig = false;
    }
}

bool CsvRecords::EndRecord()
{
    EndField();
    return true;
}

}
