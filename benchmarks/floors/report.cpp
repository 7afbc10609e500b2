// The least that a report has to do: the activities of a span of days are read in order of their starts, a line of the
// table and a line of the list are made of each, a trace of the given size is written line by line beside, and all is
// put together by program.

#include "floors/Table.h"
#include "floors/TraceFile.h"

#include <array>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

using tempodial::Table;
using tempodial::TraceFile;

namespace {

/// The text of a property, which stands in the JSON as "name":[1,"text"] with quotes and backslashes escaped.
std::string Property(std::string_view json, std::string_view name)
{
    std::string text;
    auto at = json.find(name);
    if (at == std::string_view::npos) {
        return text;
    }
    for (at = json.find(",\"", at) + 2; at < json.size() && json[at] != '"'; ++at) {
        at += json[at] == '\\' ? 1 : 0;
        text += json[at];
    }
    return text;
}

std::string ClockTime(std::int64_t seconds)
{
    std::array<char, 8> text {};
    const auto minutes = static_cast<int>(seconds / 60 % 1440);
    std::snprintf(text.data(), text.size(), "%02d:%02d", minutes / 60, minutes % 60);
    return text.data();
}

std::string DayNumber(std::int64_t seconds)
{
    return "Monday, day " + std::to_string(seconds / 86400);
}

void AppendField(std::string& line, std::string_view text)
{
    line += '"';
    for (const auto letter : text) {
        line += letter == '"' ? '\'' : letter;
    }
    line += "\",";
}

void AppendEscaped(std::string& line, std::string_view text)
{
    for (const auto letter : text) {
        switch (letter) {
        case '&':
            line += "&amp;";
            break;
        case '<':
            line += "&lt;";
            break;
        case '>':
            line += "&gt;";
            break;
        default:
            line += letter;
        }
    }
}

/// What a report gathers.
struct Report
{
    std::string csv = "Project,Application,Description,People,Date,Start,End,Minutes\r\n";
    std::vector<std::string> details;
    std::unordered_map<std::string, std::size_t> groups;

    void Add(const Table& row)
    {
        const auto starts = row.Int(0);
        const auto ends = row.Int(1);
        const auto json = row.Text(2);
        const auto type = Property(json, "\"Type\"");
        const auto project = Property(json, "\"Project\"");
        const auto description = Property(json, "\"Description\"");
        for (const auto& text : { project, type, description, Property(json, "\"People\"") }) {
            AppendField(csv, text);
        }
        for (const auto& text : { DayNumber(starts), ClockTime(starts), ClockTime(ends) }) {
            AppendField(csv, text);
        }
        csv += std::to_string((ends - starts) / 60) + "\r\n";

        const auto group = groups.emplace(type, details.size()).first->second;
        if (group == details.size()) {
            details.emplace_back();
        }
        auto& list = details[group];
        list += DayNumber(starts) + "&nbsp;&nbsp;" + ClockTime(starts) + " - " + ClockTime(ends) + "&nbsp;&nbsp;("
            + std::to_string((ends - starts) / 60) + " mins)&nbsp;&nbsp;&nbsp;&nbsp;[" + project + "] ";
        AppendEscaped(list, description);
        list += "<br>\r\n";
    }
    void Print(const std::string& csvPath) const
    {
        std::string html = "<html><body>\r\n";
        for (const auto& [name, group] : groups) {
            html += "<h2>" + name + "</h2>\r\n" + details[group];
        }
        html += "</body></html>";
        std::fwrite(html.data(), 1, html.size(), stdout);
        auto* file = std::fopen(csvPath.c_str(), "wb");
        std::fwrite(csv.data(), 1, csv.size(), file);
        std::fclose(file);
    }
};

}

int main(int count, char** arguments)
{
    try {
        const std::vector<std::string> words(arguments + 1, arguments + count);
        if (words.size() != 7) {
            std::cerr << "usage: floor-report MAILBOX FROM UNTIL FOLDER ITEMS TRACELINES TRACEBYTES\n";
            return 2;
        }
        TraceFile trace(words[3], std::stoll(words[5]), std::stoll(words[6]), false);
        auto* database = Table::Open(words[0]);
        Report report;
        {
            Table rows(
                database, "SELECT starts, ends, properties FROM item WHERE starts >= ? AND starts < ? ORDER BY starts");
            rows.Bind(std::int64_t { std::stoll(words[1]) }).Bind(std::int64_t { std::stoll(words[2]) });
            for (std::int64_t done = 1; rows.Step(); ++done) {
                report.Add(rows);
                trace.Advance(done, std::stoll(words[4]));
            }
        }
        sqlite3_close(database);
        report.Print(words[3] + "/floor.csv");
        return 0;
    } catch (const std::exception& problem) {
        std::cerr << "floor-report: " << problem.what() << '\n';
        return 1;
    }
}
