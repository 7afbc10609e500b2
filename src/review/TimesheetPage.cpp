#include "review/TimesheetPage.h"

#include "base/IsoDate.h"
#include "base/Utf8.h"
#include "review/TimeText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace tempodial {

namespace {

// Colours stand where they are used, since mail programs know no variables.
constexpr auto PageStyle = R"(
:root { color-scheme: light dark; }
* { box-sizing: border-box; }
body { max-width: 56rem; margin: 0 auto; padding: 1.5rem 1rem 3rem; background: #ffffff; color: #1f2933;
  font: 16px/1.5 "Segoe UI", system-ui, -apple-system, Roboto, "Helvetica Neue", Arial, sans-serif;
  overflow-wrap: anywhere; }
h1 { margin: 0; font-size: 1.625rem; line-height: 1.25; font-weight: 600; }
header p { margin: .25rem 0; }
header p, dt, caption, thead th { color: #52606d; }
dl { display: flex; flex-wrap: wrap; gap: .5rem 2.5rem; margin: 1.25rem 0; }
dt { font-size: .875rem; }
dd { margin: 0; font-size: 1.25rem; font-weight: 600; font-variant-numeric: tabular-nums; }
table { width: 100%; border-collapse: collapse; }
caption { padding: 0 0 .5rem; text-align: left; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
th, td { padding: .4rem 1rem .4rem 0; border-bottom: 1px solid #e4e7eb; text-align: left; vertical-align: top; }
thead th { border-bottom: 2px solid #9aa5b1; font-size: .875rem; font-weight: 600; }
tbody th { font-weight: 400; white-space: nowrap; }
.time { text-align: right; white-space: nowrap; font-variant-numeric: tabular-nums; }
.what { width: 100%; padding-right: 0; }
.total th, .total td { border-bottom: 0; border-top: 2px solid #9aa5b1; font-weight: 600; }
ul { margin: 0; padding: 0; list-style: none; }
@media (max-width: 30rem) {
body { padding: 1rem .5rem 2rem; }
th, td { padding-right: .5rem; font-size: .9rem; }
}
@media (prefers-color-scheme: dark) {
body { background: #15191e; color: #e4e7eb; }
header p, dt, caption, thead th { color: #a7b3bf; }
th, td { border-bottom-color: #2c353f; }
thead th { border-bottom-color: #616e7c; }
.total th, .total td { border-top-color: #616e7c; }
}
@page { margin: 18mm 16mm 20mm; @bottom-right { content: counter(page) " / " counter(pages); font: 9pt sans-serif; } }
@media print {
:root { color-scheme: light; }
body { max-width: none; padding: 0; background: none; color: #000000; font-size: 10.5pt; }
header p, dt, caption, thead th { color: #333333; }
header { break-after: avoid; }
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
    const std::string what = hasWhat ? R"(<th scope="col" class="what">What</th>)" : "";
    auto table = "<table>\n<caption>Hours by day</caption>\n<thead>\n<tr><th scope=\"col\">Day</th><th scope=\"col\" "
                 "class=\"time\">Measured</th>"
                 "<th scope=\"col\" class=\"time\">Billed</th>"
        + what + "</tr>\n</thead>\n<tbody>\n";
    for (const auto& day : sheet.days) {
        table += Row(day, hasWhat);
    }
    return table + R"(<tr class="total"><th scope="row">Total</th>)" + TimeCell(sheet.minutes)
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
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
           "base-uri 'none'; form-action 'none'\">\n"
           "<meta name=\"color-scheme\" content=\"light dark\">\n<meta name=\"referrer\" content=\"no-referrer\">\n"
           "<title>"
        + Escaped(TimesheetTitle(sheet)) + "</title>\n<style>" + PageStyle + "</style>\n</head>\n<body>\n"
        + Heading(sheet, author, currency) + "<main>\n" + Table(sheet) + "</main>\n</body>\n</html>\n";
}

}
