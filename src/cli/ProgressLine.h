#pragma once

#include <cstdint>
#include <ostream>
#include <string>

namespace tempodial {

/// One line of a terminal on which a job's progress is drawn again and again.
class ProgressLine
{
public:
    /// `columns` is the width of the terminal.
    ProgressLine(std::ostream& stream, int columns)
        : mStream(stream)
        , mColumns(columns)
    {
    }
    ~ProgressLine() { Clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Draws what is being done and how far it is, in place of what stood there.
    void Draw(const std::string& text, std::int32_t value, std::int32_t limit);
    /// Takes the line off the terminal.
    void Clear();

private:
    std::ostream& mStream;
    int mColumns;
    std::string mDrawn;
};

}
