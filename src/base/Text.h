#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// Positions, lengths and cuts in this file count characters (code points of UTF-8) from 1; a byte that belongs to no
/// valid character counts as one.
inline constexpr std::string_view CrLf = "\r\n";

/// Number of characters.
std::int32_t Length(std::string_view text);
/// Position of the first exact occurrence at or behind a start, 0 when there is none; a start below 1 fails (5).
std::int32_t InStr(std::int32_t start, std::string_view text, std::string_view find);
std::int32_t InStr(std::string_view text, std::string_view find);
/// Position of the last exact occurrence, 0 when there is none.
std::int32_t InStrRev(std::string_view text, std::string_view find);
/// The first characters; a negative length fails (5).
std::string Left(std::string_view text, std::int32_t length);
/// The last characters; a negative length fails (5).
std::string Right(std::string_view text, std::int32_t length);
/// The characters from a position on; a position below 1 fails (5).
std::string Mid(std::string_view text, std::int32_t start);
/// That many characters from a position on; a position below 1 or a negative length fails (5).
std::string Mid(std::string_view text, std::int32_t start, std::int32_t length);
/// Overwrites up to that many characters in place, never changing the length; a position outside the text fails (5).
void Overwrite(std::string& text, std::int32_t start, std::int32_t length, std::string_view by);
/// The text without blanks (U+0020) at its ends.
std::string Trim(std::string_view text);
/// True when nothing but blanks, tabs and carriage returns stand in the text.
bool IsBlank(std::string_view text);
/// All exact occurrences replaced, from left to right, without looking at what was put in.
std::string Replace(std::string_view text, std::string_view find, std::string_view by);
/// The pieces between separators; none for the empty text.
std::vector<std::string> Split(std::string_view text, std::string_view separator);

/// The text with the case of its letters folded (simple folding, the same in every locale).
std::string Fold(std::string_view text);
/// Order of two texts without regard to case: negative, 0 or positive.
int CompareIgnoringCase(std::string_view a, std::string_view b);
/// True when both texts are equal but for case.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
/// Position of the first occurrence without regard to case, 0 when there is none.
std::int32_t InStrIgnoringCase(std::string_view text, std::string_view find);

}
