#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// What goes to a support desk without the words of its user: captions, names of documents, addresses, projects.

/// A tracker's file with its times and kinds of programs; of every other text the length is left, as so many "x".
std::string RedactedTrackerFile(std::string_view text);

/// A trace with the moment, the part of the program, and the first words of each line, which are the program's own; of
/// an error its text as well.
std::string RedactedTrace(std::string_view text);

}
