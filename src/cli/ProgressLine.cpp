#include "cli/ProgressLine.h"

#include "base/Text.h"
#include "terminal/TerminalText.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr int BarLength = 20;

std::string Bar(std::int32_t value, std::int32_t limit)
{
    const auto share = limit <= 0 ? 0.0 : std::clamp(static_cast<double>(value) / limit, 0.0, 1.0);
    const auto done = static_cast<std::size_t>(share * BarLength);
    return "[" + std::string(done, '#') + std::string(BarLength - done, '-') + "]";
}

/// The text cut to a width, shorter texts filled with blanks.
std::string Fitted(std::string text, int width)
{
    while (DisplayWidth(text) > width) {
        text = Left(text, Length(text) - 1);
    }
    return text + std::string(static_cast<std::size_t>(width - DisplayWidth(text)), ' ');
}

}

void ProgressLine::Draw(const std::string& text, std::int32_t value, std::int32_t limit)
{
    constexpr int LongestText = 50;
    const auto bar = Bar(value, limit);
    // The last column stays free, since writing there moves some terminals to the next line.
    const auto room = std::clamp(mColumns - 2 - static_cast<int>(bar.size()), 0, LongestText);
    auto line = Fitted(HarmlessLine(text), room) + " " + bar;
    if (line != mDrawn) {
        mStream << "\r" << line;
        mStream.flush();
        mDrawn = std::move(line);
    }
}

void ProgressLine::Clear()
{
    if (!mDrawn.empty()) {
        mStream << "\r" << std::string(static_cast<std::size_t>(DisplayWidth(mDrawn)), ' ') << "\r";
        mStream.flush();
        mDrawn.clear();
    }
}

}
