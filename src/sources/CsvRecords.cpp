#include "sources/CsvRecords.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "slots/PlainText.h"
#include "sources/CutText.h"
#include "sources/SourceProblem.h"

#include <algorithm>
#include <iterator>

namespace tempodial {

namespace {

constexpr auto Eof = std::streambuf::traits_type::eof();

/// How often a separator stands in a line, outside of quotes.
std::ptrdiff_t CountOf(char separator, std::string_view line)
{
    bool isQuoted = false;
    bool mayOpen = true;
    std::ptrdiff_t count = 0;
    for (const char character : line) {
        if (isQuoted || (mayOpen && character == '"')) {
            // A quote that is doubled opens at once what it has closed.
            mayOpen = character == '"';
            isQuoted = isQuoted != mayOpen;
        } else {
            mayOpen = character == separator || character == '\n';
            count += character == separator ? 1 : 0;
        }
    }
    return count;
}

/// The separator that stands most often in a line.
char SeparatorIn(std::string_view line)
{
    constexpr char Separators[] { ',', ';', '\t' };
    return *std::max_element(std::begin(Separators), std::end(Separators),
        [line](char a, char b) { return CountOf(a, line) < CountOf(b, line); });
}

}

CsvRecords::CsvRecords(std::istream& stream, const SourceSettings& settings, Skipped& skipped)
    : mBuffer(*stream.rdbuf())
    , mSettings(settings)
    , mSkipped(skipped)
{
    // The separator must be known before the first record can be read: it is looked for in what stands before the
    // first line end that is in no quotes.
    bool isQuoted = false;
    for (auto byte = mBuffer.sgetc(); byte != Eof && mAhead.size() < MostFieldBytes; byte = mBuffer.snextc()) {
        mAhead += static_cast<char>(byte);
        isQuoted = isQuoted != (byte == '"');
        if (byte == '\n' && !isQuoted) {
            mBuffer.sbumpc();
            break;
        }
    }
    mAheadAt = mAhead.starts_with(Utf8ByteOrderMark) ? Utf8ByteOrderMark.size() : 0;
    mSeparator = SeparatorIn(std::string_view(mAhead).substr(mAheadAt));
    ReadRecord();
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

int CsvRecords::Peek()
{
    return mAheadAt < mAhead.size() ? static_cast<unsigned char>(mAhead[mAheadAt]) : mBuffer.sgetc();
}

int CsvRecords::Take()
{
    return mAheadAt < mAhead.size() ? static_cast<unsigned char>(mAhead[mAheadAt++]) : mBuffer.sbumpc();
}

bool CsvRecords::ReadRecord()
{
    mFields.clear();
    mLine = mNextLine;
    bool isBegun = false;
    for (auto byte = Take(); byte != Eof; byte = Take()) {
        const auto character = static_cast<char>(byte);
        isBegun = true;
        mNextLine += character == '\n' ? 1 : 0;
        if (mPart == Part::Quoted && character != '"') {
            Append(character);
        } else if (mPart == Part::Quoted && Peek() == '"') {
            Take();
            Append(character);
        } else if (mPart == Part::Quoted) {
            mPart = Part::Plain;
        } else if (character == mSeparator) {
            EndField();
        } else if (character == '\n' || character == '\r') {
            mNextLine += character == '\r' ? 1 : 0;
            if (character == '\r' && Peek() == '\n') {
                Take();
            }
            EndField();
            return true;
        } else if (mPart == Part::Begin && character == '"') {
            mPart = Part::Quoted;
        } else {
            mPart = Part::Plain;
            Append(character);
        }
    }
    if (mPart == Part::Quoted) {
        mSkipped.AddUnreadable(mLine);
        mFields.clear();
        return false;
    }
    if (isBegun) {
        EndField();
    }
    return isBegun;
}

void CsvRecords::Append(char character)
{
    if (mField.size() < MostFieldBytes) {
        mField += character;
    } else {
        mIsTooBig = true;
    }
}

void CsvRecords::EndField()
{
    if (mIsTooBig) {
        DropCutLetter(mField);
        mSkipped.Add(Skipped::TooBig);
    }
    mFields.push_back(IsUtf8(mField) ? mField : mSettings.decode(mField));
    mField.clear();
    mPart = Part::Begin;
    mIsTooBig = false;
}

}
