#include "cli/ReportIsolation.h"

#include "base/Text.h"
#include "terminal/TerminalText.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

/// What stands behind the name of a group, the last time in its line.
constexpr std::string_view BehindAName = " - ";

/// A line of a plain report, in which a name begins the line or an activity's text ends it.
std::string IsolatedReportLine(const std::string& line)
{
    if (!TurnsDirection(line)) {
        return line;
    }
    constexpr std::string_view BeforeAText = " mins)    ";
    constexpr std::string_view BehindATitle = " Activity List";
    std::size_t begin = 0;
    auto end = line.size();
    if (const auto text = line.find(BeforeAText); text != std::string::npos) {
        begin = text + BeforeAText.size();
    } else if (line.ends_with(BehindATitle)) {
        end -= BehindATitle.size();
    } else if (line.ends_with("%)")) {
        end = std::min(end, line.rfind(BehindAName));
    }
    return line.substr(0, begin) + Isolated(line.substr(begin, end - begin)) + line.substr(end);
}

/// Isolates each part of a page that stands between two texts, or up to the last of a third within it.
std::string WithPartsIsolated(
    const std::string& page, std::string_view before, std::string_view behind, std::string_view last)
{
    std::string isolated;
    std::size_t done = 0;
    for (auto mark = page.find(before); mark != std::string::npos; mark = page.find(before, done)) {
        const auto begin = mark + before.size();
        const auto end = std::min(page.find(behind, begin), page.size());
        auto part = page.substr(begin, end - begin);
        part.erase(last.empty() ? part.size() : std::min(part.rfind(last), part.size()));
        isolated += page.substr(done, begin - done);
        isolated += TurnsDirection(part) ? "<bdi>" + part + "</bdi>" : part;
        done = begin + part.size();
    }
    return isolated + page.substr(done);
}

}

std::string IsolatedReportText(std::string text)
{
    if (!TurnsDirection(text)) {
        return text;
    }
    std::string isolated;
    for (const auto& line : Split(text, CrLf)) {
        isolated += IsolatedReportLine(line);
        isolated += CrLf;
    }
    isolated.resize(isolated.size() - CrLf.size());
    return isolated;
}

std::string IsolatedReportPage(std::string page)
{
    if (!TurnsDirection(page)) {
        return page;
    }
    // A template isolates a name together with its time.
    page = WithPartsIsolated(page, "<bdi>", "</bdi>", BehindAName);
    return WithPartsIsolated(page, " mins)&nbsp;&nbsp;&nbsp;&nbsp;", "<br>", "");
}

}
