#include "engine/import/HistoryText.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "base/Text.h"

#include <utility>

namespace tempodial {

namespace {

constexpr int CountDigits = 5;
constexpr std::int32_t EntryLength = 14;
/// From an entry's first character to its count.
constexpr std::int32_t CountOffset = 9;

}

HistoryText::HistoryText(std::string text)
    : mText(std::move(text))
{
}

std::string HistoryText::Entry(const std::string& dayKey, std::int32_t count)
{
    return dayKey + "_" + Padded(count, CountDigits);
}

std::int32_t HistoryText::Find(const std::string& dayKey) const
{
    return InStr(mText, dayKey);
}

std::int32_t HistoryText::Count(std::int32_t position) const
{
    const auto pieces = Split(Mid(mText, position, EntryLength), "_");
    if (pieces.size() < 2) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return ToInt32(pieces[1]);
}

std::string HistoryText::Tail(std::int32_t position) const
{
    // kept: counted from the end by the entry's position from the front, so it shows the entry itself only by chance.
    return Right(mText, position + CountOffset + 1);
}

void HistoryText::Cut(std::int32_t position)
{
    // kept: the entry's first character stays and the first one of what follows goes, which comes to the same since
    // all entries begin alike; of the last entry nothing follows, and the length is negative.
    mText = Left(mText, position) + Right(mText, Length(mText) - position - EntryLength - 1);
}

void HistoryText::SetCount(std::int32_t position, std::int32_t count)
{
    Overwrite(mText, position + CountOffset, CountDigits, Padded(count, CountDigits));
}

void HistoryText::Append(const std::string& dayKey, std::int32_t count)
{
    mText += "|" + Entry(dayKey, count);
}

}
