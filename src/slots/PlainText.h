#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tempodial {

/// Most characters of a name and of a text in a tracker's file.
inline constexpr std::size_t LongestName = 60;
inline constexpr std::size_t LongestText = 200;

/// A text as people read it: without controls, marks of direction, invisible characters and bytes that are no
/// character, and with single blanks between its words.
std::string PlainText(std::string_view text);
/// The first characters of a text, with an ellipsis in place of the last one when some were cut.
std::string Shortened(std::string_view text, std::size_t characters);
/// A text as a tracker's file takes it: plain, at most so long, and never the word that stands for an absent one.
std::string NodeText(std::string_view text, std::size_t characters);
/// The text without blanks at its ends.
std::string_view Trimmed(std::string_view text);

}
