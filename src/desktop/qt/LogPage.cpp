#include "desktop/qt/LogPage.h"

#include "desktop/qt/QtText.h"
#include "terminal/TerminalText.h"

namespace tempodial {

namespace {

QString Cell(const std::string& text)
{
    return "<td>" + ToQt(IsolatedLine(text)).toHtmlEscaped() + "</td>";
}

}

LogPage::LogPage(const QString& title, const QString& sum, const ActivityTable& table)
{
    auto page = "<h2>" + title.toHtmlEscaped() + "</h2><p>" + sum.toHtmlEscaped() + "</p>";
    std::string day;
    for (const auto& line : table.Lines()) {
        if (line.day != day) {
            page += (day.empty() ? "" : "</table>") + ("<h3>" + ToQt(line.day).toHtmlEscaped()) + "</h3>"
                + R"(<table width="100%" cellspacing="0" cellpadding="3">)";
            day = line.day;
        }
        page += "<tr>" + Cell(line.times) + Cell(line.length) + Cell(line.project) + Cell(line.application)
            + Cell(line.description) + "</tr>";
    }
    setHtml(page + (day.empty() ? "" : "</table>"));
}

}
