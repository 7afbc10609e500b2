#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

/// A line of a tracker's file: what was on the screen during a slot, as an XML document. Its nodes stand in the order
/// in which they are put in, behind the times.
class SlotLine
{
public:
    /// Takes when the slot began and ended, in seconds after midnight.
    SlotLine(std::int64_t start, std::int64_t end);

    /// The program, by the tracker's index.
    SlotLine& Application(int index);
    /// A node of that name; whatever stands in the text, it is read as it is, in whatever encoding the reader takes the
    /// line to be, and the line stays one line. What XML has no words for, as most control characters, must not be in
    /// it; bytes that aren't UTF-8 stay as they are.
    SlotLine& Node(std::string_view name, std::string_view text);
    /// Says that the slot goes on with the one before it.
    SlotLine& Continuation();
    /// Says that the slot tells something of the one before it.
    SlotLine& Detail();

    /// The line, without its end.
    std::string Text() const;

private:
    std::string mNodes;
};

}
