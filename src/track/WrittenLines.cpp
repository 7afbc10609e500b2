#include "track/WrittenLines.h"

#include <charconv>
#include <optional>
#include <string_view>

namespace tempodial {

namespace {

bool IsDetail(std::string_view line)
{
    return line.find("<Detail>") != std::string_view::npos;
}

std::optional<std::int64_t> EndOf(std::string_view line)
{
    constexpr std::string_view Node = "<EndTime>";
    const auto node = line.find(Node);
    if (node == std::string_view::npos) {
        return std::nullopt;
    }
    const auto* begin = line.data() + node + Node.size();
    std::int64_t end = 0;
    const auto [next, error] = std::from_chars(begin, line.data() + line.size(), end);
    return error == std::errc() && next != line.data() + line.size() && *next == '<' ? std::optional(end)
                                                                                     : std::nullopt;
}

/// Takes the next line, with its end; nothing when no whole one follows.
std::optional<std::string_view> NextLine(std::string_view& rest)
{
    const auto end = rest.find('\n');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto line = rest.substr(0, end + 1);
    rest.remove_prefix(end + 1);
    return line;
}

}

WrittenLines WrittenLines::Of(const std::string& content)
{
    WrittenLines written;
    std::string_view rest = content;
    (void)NextLine(rest); // the heading
    while (const auto line = NextLine(rest)) {
        if (const auto end = EndOf(*line)) {
            written.end = *end;
            written.slots += IsDetail(*line) ? 0 : 1;
        }
    }
    return written;
}

std::string LinesBehind(const std::string& lines, std::int64_t until)
{
    std::string behind;
    std::string told;
    std::string_view rest = lines;
    while (const auto line = NextLine(rest)) {
        told += *line;
        if (!IsDetail(*line)) {
            if (const auto end = EndOf(*line); end && *end > until) {
                behind += told;
            }
            told.clear();
        }
    }
    return behind;
}

ErasedLines EraseLines(std::string& content, std::int64_t from, std::int64_t taken)
{
    ErasedLines erased;
    std::string_view rest = content;
    std::string left(NextLine(rest).value_or(rest));
    // What is told of a slot stands in front of it.
    std::string told;
    int toldLines = 0;
    for (std::int64_t number = 0; const auto line = NextLine(rest); ++number) {
        const auto end = EndOf(*line);
        if (number < taken) {
            const bool isBehind = end && *end > from;
            erased.kept += isBehind ? 1 : 0;
            left += *line;
        } else if (IsDetail(*line)) {
            told += *line;
            ++toldLines;
        } else if (end && *end > from) {
            erased.forgotten += toldLines + 1;
            told.clear();
            toldLines = 0;
        } else {
            left += told;
            left += *line;
            told.clear();
            toldLines = 0;
        }
    }
    erased.forgotten += toldLines;
    content = left;
    return erased;
}

}
