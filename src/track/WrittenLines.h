#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// What stands in a day's file.
struct WrittenLines
{
    /// Where its last line ends, in seconds after midnight; 0 when it has none.
    std::int64_t end = 0;
    /// Its lines that are slots, and no details of them.
    int slots = 0;

    /// Reads the content of such a file. A line that was cut off is none.
    static WrittenLines Of(const std::string& content);
};

/// What became of lines that were to be taken out.
struct ErasedLines
{
    int forgotten = 0;
    /// Lines that stay, since imports have taken them.
    int kept = 0;
};

/// Those of some whole lines that are slots which end behind a second of the day, with what is told of them.
std::string LinesBehind(const std::string& lines, std::int64_t until);

/// Takes the slots out of the content of a day's file that end behind a second of the day, with what is told of them,
/// but not the first lines behind the heading that imports have taken, of which there are so many.
ErasedLines EraseLines(std::string& content, std::int64_t from, std::int64_t taken);

}
