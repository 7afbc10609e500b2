#include "portable/DatePattern.h"

#include "base/Text.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr int HoursOfHalf = 12;
constexpr int HoursOfDay = 24;
constexpr int YearsOfCentury = 100;

void AppendNumber(std::string& text, int value, std::size_t digits)
{
    if (value < 100 && digits <= 2) {
        if (value >= 10 || digits == 2) {
            text += static_cast<char>('0' + value / 10);
        }
        text += static_cast<char>('0' + value % 10);
        return;
    }
    std::array<char, 12> buffer {};
    auto at = buffer.size();
    do {
        buffer[--at] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (at > 0 && (value > 0 || buffer.size() - at < digits));
    text.append(buffer.data() + at, buffer.size() - at);
}

bool IsLetter(char character)
{
    return (character | 0x20) >= 'a' && (character | 0x20) <= 'z';
}

}

bool TakeOffLiteral(std::string_view& text, std::string_view literal)
{
    if (!text.starts_with(literal)) {
        return false;
    }
    text.remove_prefix(literal.size());
    return true;
}

int TakeOffNumber(std::string_view& text, std::size_t maximalDigits)
{
    int value = 0;
    std::size_t digits = 0;
    while (digits < maximalDigits && digits < text.size() && text[digits] >= '0' && text[digits] <= '9') {
        value = value * 10 + (text[digits] - '0');
        ++digits;
    }
    text.remove_prefix(digits);
    return digits == 0 ? -1 : value;
}

int TakeOffName(std::string_view& text, const std::string* names, std::size_t count)
{
    int found = -1;
    std::size_t foundSize = 0;
    for (std::size_t index = 0; index < count; ++index) {
        const auto& name = names[index];
        std::size_t size = 0;
        if (text.starts_with(name)) {
            size = name.size();
        } else if (const auto front = Left(text, Length(name)); EqualIgnoringCase(front, name)) {
            size = front.size();
        }
        if (size > foundSize) {
            found = static_cast<int>(index);
            foundSize = size;
        }
    }
    text.remove_prefix(foundSize);
    return found;
}

DatePattern::DatePattern(std::string_view pattern, const DateNames& names)
{
    bool isQuoted = false;
    for (std::size_t at = 0; at < pattern.size();) {
        const auto character = pattern[at];
        if (character == '\'') {
            if (at + 1 < pattern.size() && pattern[at + 1] == '\'') {
                AddLiteral("'");
                at += 2;
            } else {
                isQuoted = !isQuoted;
                ++at;
            }
        } else if (isQuoted || !IsLetter(character)) {
            AddLiteral(pattern.substr(at, 1));
            ++at;
        } else {
            const auto end = std::min(pattern.find_first_not_of(character, at), pattern.size());
            AddField(character, end - at, names);
            at = end;
        }
    }
}

void DatePattern::AddField(char letter, std::size_t count, const DateNames& names)
{
    const auto number = [&](Field field, int forZero = 0) {
        mPieces.push_back({ field, forZero, count, {}, nullptr, 0 });
    };
    const auto name = [&](Field field, const auto& words) {
        mPieces.push_back({ field, 0, 0, {}, words.data(), words.size() });
    };
    switch (letter) {
    case 'y':
    case 'u':
        number(count == 2 ? Field::YearOfCentury : Field::Year);
        break;
    case 'M':
        if (count > 2) {
            name(Field::MonthName, count == 3 ? names.shortMonths : names.months);
        } else {
            number(Field::Month);
        }
        break;
    case 'L':
        if (count > 2) {
            name(Field::MonthName, count == 3 ? names.loneShortMonths : names.loneMonths);
        } else {
            number(Field::Month);
        }
        break;
    case 'd':
        number(Field::Day);
        break;
    case 'E':
    case 'c':
        name(Field::WeekdayName, count == 4 ? names.weekdays : names.shortWeekdays);
        break;
    case 'H':
        number(Field::Hour);
        break;
    case 'k':
        number(Field::Hour, HoursOfDay);
        break;
    case 'h':
        number(Field::HalfHour, HoursOfHalf);
        break;
    case 'K':
        number(Field::HalfHour);
        break;
    case 'm':
        number(Field::Minute);
        break;
    case 's':
        number(Field::Second);
        break;
    case 'a':
    case 'b':
    case 'B':
        name(Field::DayHalf, names.dayHalves);
        break;
    case 'G':
        AddLiteral(names.era);
        break;
    default:
        break;
    }
}

void DatePattern::AddLiteral(std::string_view text)
{
    if (mPieces.empty() || mPieces.back().field != Field::Literal) {
        mPieces.push_back({ Field::Literal, 0, 0, {}, nullptr, 0 });
    }
    mPieces.back().literal += text;
}

std::string DatePattern::Format(Date date) const
{
    const auto parts = date.ToParts();
    std::string text;
    for (const auto& piece : mPieces) {
        switch (piece.field) {
        case Field::Literal:
            text += piece.literal;
            break;
        case Field::Year:
            AppendNumber(text, parts.year, piece.digits);
            break;
        case Field::YearOfCentury:
            AppendNumber(text, parts.year % YearsOfCentury, piece.digits);
            break;
        case Field::Month:
            AppendNumber(text, parts.month, piece.digits);
            break;
        case Field::MonthName:
            text += piece.names[parts.month - 1];
            break;
        case Field::Day:
            AppendNumber(text, parts.day, piece.digits);
            break;
        case Field::WeekdayName:
            text += piece.names[date.Weekday() - 1];
            break;
        case Field::Hour:
            AppendNumber(text, parts.hour == 0 ? piece.forZero : parts.hour, piece.digits);
            break;
        case Field::HalfHour: {
            const auto hour = parts.hour % HoursOfHalf;
            AppendNumber(text, hour == 0 ? piece.forZero : hour, piece.digits);
            break;
        }
        case Field::Minute:
            AppendNumber(text, parts.minute, piece.digits);
            break;
        case Field::Second:
            AppendNumber(text, parts.second, piece.digits);
            break;
        case Field::DayHalf:
            text += piece.names[parts.hour / HoursOfHalf];
            break;
        }
    }
    return text;
}

bool DatePattern::TakeOff(std::string_view& text, DateFields& fields) const
{
    auto rest = text;
    auto found = fields;
    const auto takeNumber = [&](int& field, std::size_t digits) {
        field = TakeOffNumber(rest, digits);
        return field >= 0;
    };
    const auto takeName = [&](int& field, const Piece& piece, int first) {
        const auto index = TakeOffName(rest, piece.names, piece.nameCount);
        field = index + first;
        return index >= 0;
    };
    for (const auto& piece : mPieces) {
        bool isThere = false;
        switch (piece.field) {
        case Field::Literal:
            isThere = TakeOffLiteral(rest, piece.literal);
            break;
        case Field::Year:
        case Field::YearOfCentury:
            isThere = takeNumber(found.year, 4);
            break;
        case Field::Month:
            isThere = takeNumber(found.month, 2);
            break;
        case Field::MonthName:
            isThere = takeName(found.month, piece, 1);
            break;
        case Field::Day:
            isThere = takeNumber(found.day, 2);
            break;
        case Field::WeekdayName:
            isThere = takeName(found.weekday, piece, 1);
            break;
        case Field::Hour:
        case Field::HalfHour:
            isThere = takeNumber(found.hour, 2);
            if (piece.forZero == HoursOfDay && found.hour == HoursOfDay) {
                found.hour = 0;
            }
            break;
        case Field::Minute:
            isThere = takeNumber(found.minute, 2);
            break;
        case Field::Second:
            isThere = takeNumber(found.second, 2);
            break;
        case Field::DayHalf:
            isThere = takeName(found.dayHalf, piece, 0);
            break;
        }
        if (!isThere) {
            return false;
        }
    }
    text = rest;
    fields = found;
    return true;
}

}
