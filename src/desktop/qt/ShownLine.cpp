#include "desktop/qt/ShownLine.h"

#include "desktop/qt/QtText.h"
#include "terminal/TerminalText.h"

namespace tempodial {

QString ShownLine(const std::string& text)
{
    constexpr int MostColumns = 400;
    // More is never seen, and takes time to be laid out.
    constexpr std::size_t MostBytes = 4096;
    auto line = HarmlessLine(std::string_view(text).substr(0, MostBytes));
    if (DisplayWidth(line) > MostColumns) {
        line = Shortened(line, MostColumns);
    }
    return ToQt(Isolated(line));
}

QString PlainToolTip(const QString& text)
{
    return text.isEmpty() ? text : "<p style=\"white-space: pre-wrap\">" + text.toHtmlEscaped() + "</p>";
}

}
