#include "review/TimesheetPage.h"

#include "base/IsoDate.h"
#include "base/Utf8.h"
#include "review/TimeText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tempodial {

namespace {

constexpr auto PageStyle = R"(
:root { color-scheme: light dark; --text: #1c2330; --quiet: #5a6372; --page: #ffffff; --line: #d5dae2; --head: #f1f4f8; }
@media (prefers-color-scheme: dark) {
  :root { --text: #e6e9ef; --quiet: #a3adbd; --page: #14181f; --line: #3a4352; --head: #1f2630; }
}
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 60rem; padding: 1.5rem 1rem; color: var(--text); background: var(--page);
  font: 1rem/1.45 system-ui, "Segoe UI", "Noto Sans", sans-serif; }
h1 { margin: 0; font-size: 1.7rem; line-height: 1.2; overflow-wrap: anywhere; }
header p { margin: .3rem 0; color: var(--quiet); overflow-wrap: anywhere; }
dl { display: flex; flex-wrap: wrap; gap: .5rem 2.5rem; margin: 1.2rem 0; }
dt { color: var(--quiet); font-size: .85rem; }
dd { margin: 0; font-size: 1.3rem; font-weight: 600; font-variant-numeric: tabular-nums; overflow-wrap: anywhere; }
table { width: 100%; border-collapse: collapse; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
th, td { padding: .45rem .6rem; border-bottom: 1px solid var(--line); text-align: start; vertical-align: top; }
thead th { background: var(--head); font-size: .85rem; }
th[scope=row] { font-weight: 400; white-space: nowrap; }
.time { text-align: end; white-space: nowrap; font-variant-numeric: tabular-nums; }
.what { width: 100%; overflow-wrap: anywhere; }
.total th, .total td { border-bottom: 0; border-top: 2px solid var(--text); font-weight: 600; }
ul { margin: 0; padding: 0; list-style: none; }
@media (max-width: 30rem) { body { padding: 1rem .5rem; } th, td { padding: .4rem .3rem; font-size: .9rem; } }
@page { margin: 18mm 16mm 20mm; @bottom-right { content: counter(page) " / " counter(pages); font: 9pt sans-serif; } }
@media print {
  :root { color-scheme: light; --text: #000000; --quiet: #444444; --page: #ffffff; --line: #bbbbbb; --head: #eeeeee; }
  body { max-width: none; padding: 0; font-size: 10.5pt; }
}
)";

/// A text of somebody else's as one that stands in a page: no mark-up, nothing that a page can't hold, and isolated, so
/// that its direction of writing is its own.
std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (std::size_t offset = 0; offset < text.size();) {
        const auto character = DecodeUtf8(text, offset);
        const bool isControl = character.code < U' ' || (character.code >= 0x7f && character.code < 0xa0);
        if (!character.isValid) {
            AppendUtf8(escaped, ReplacementCharacter);
        } else if (isControl) {
            escaped += ' ';
        } else if (character.code == U'&') {
            escaped += "&amp;";
        } else if (character.code == U'<') {
            escaped += "&lt;";
        } else if (character.code == U'>') {
            escaped += "&gt;";
        } else {
            escaped += text.substr(offset, character.size);
        }
        offset += character.size;
    }
    return escaped;
}

std::string Isolated(std::string_view text)
{
    return "<bdi>" + Escaped(text) + "</bdi>";
}

std::string DaysText(const Period& period)
{
    return IsoDay(period.first) + (period.first == period.last ? "" : " to " + IsoDay(period.last));
}

std::string Figure(const std::string& name, const std::string& value)
{
    return "<div><dt>" + name + "</dt><dd>" + value + "</dd></div>\n";
}

std::string TimeCell(std::int64_t minutes)
{
    return "<td class=\"time\">" + HourText(minutes) + "</td>";
}

std::string Heading(const Timesheet& sheet, const std::string& author, const std::string& currency)
{
    auto heading
        = "<header>\n<h1>" + Isolated(sheet.project) + "</h1>\n<p>Timesheet, " + DaysText(sheet.period) + "</p>\n";
    if (!author.empty()) {
        heading += "<p>" + Isolated(author) + "</p>\n";
    }
    heading += "<dl>\n" + Figure("Billed hours", HourText(sheet.billedMinutes))
        + Figure("Measured hours", HourText(sheet.minutes));
    if (sheet.amount) {
        heading += Figure("Amount", sheet.amount->Text() + (currency.empty() ? "" : " " + Isolated(currency)));
    }
    return heading + "</dl>\n</header>\n";
}

std::string Row(const Timesheet::Day& day, bool hasWhat)
{
    auto row
        = "<tr><th scope=\"row\">" + IsoDay(day.date) + "</th>" + TimeCell(day.minutes) + TimeCell(day.billedMinutes);
    if (hasWhat) {
        row += "<td class=\"what\"><ul>";
        for (const auto& text : ShownTexts(day)) {
            row += "<li>" + Isolated(text) + "</li>";
        }
        row += "</ul></td>";
    }
    return row + "</tr>\n";
}

std::string Table(const Timesheet& sheet)
{
    const bool hasWhat
        = std::any_of(sheet.days.begin(), sheet.days.end(), [](const auto& day) { return !day.what.empty(); });
    const std::string what = hasWhat ? "<th scope=\"col\" class=\"what\">What</th>" : "";
    auto table = "<table>\n<thead>\n<tr><th scope=\"col\">Day</th><th scope=\"col\" class=\"time\">Measured</th>"
                 "<th scope=\"col\" class=\"time\">Billed</th>"
        + what + "</tr>\n</thead>\n<tbody>\n";
    for (const auto& day : sheet.days) {
        table += Row(day, hasWhat);
    }
    return table + "<tr class=\"total\"><th scope=\"row\">Total</th>" + TimeCell(sheet.minutes)
        + TimeCell(sheet.billedMinutes) + (hasWhat ? "<td class=\"what\"></td>" : "") + "</tr>\n</tbody>\n</table>\n";
}

}

std::string TimesheetTitle(const Timesheet& sheet)
{
    return sheet.project + ", " + DaysText(sheet.period);
}

std::vector<std::string> ShownTexts(const Timesheet::Day& day)
{
    constexpr std::size_t Most = 3;
    std::vector<std::string> texts(
        day.what.begin(), day.what.begin() + static_cast<std::ptrdiff_t>(std::min(Most, day.what.size())));
    if (day.what.size() > Most) {
        texts.emplace_back("…");
    }
    return texts;
}

std::string TimesheetPage(const Timesheet& sheet, const std::string& author, const std::string& currency)
{
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"
        + Escaped(TimesheetTitle(sheet)) + "</title>\n<style>" + PageStyle + "</style>\n</head>\n<body>\n"
        + Heading(sheet, author, currency) + "<main>\n" + Table(sheet) + "</main>\n</body>\n</html>\n";
}

}
