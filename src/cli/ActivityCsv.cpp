#include "cli/ActivityCsv.h"

#include "base/Text.h"
#include "terminal/Arguments.h"

#include <string_view>

namespace tempodial {

namespace {

constexpr auto Header = "start,end,duration,project,application,description,people,subject";

std::string TextField(const std::string& text)
{
    constexpr std::string_view FormulaBegins = "=+-@\t\r\n";
    const bool mayBeFormula = !text.empty() && FormulaBegins.find(text.front()) != std::string_view::npos;
    auto harmless = mayBeFormula ? "'" + text : text;
    if (harmless.find_first_of(",\"\r\n") == std::string::npos) {
        return harmless;
    }
    return "\"" + Replace(harmless, "\"", "\"\"") + "\"";
}

}

std::string ActivityCsv(const std::vector<ActivityRecord>& activities)
{
    std::string csv = Header + std::string(CrLf);
    for (const auto& activity : activities) {
        csv += IsoMoment(activity.start) + "," + IsoMoment(activity.end) + "," + std::to_string(activity.duration);
        for (const auto* text :
            { &activity.project, &activity.application, &activity.description, &activity.people, &activity.subject }) {
            csv += "," + TextField(*text);
        }
        csv += CrLf;
    }
    return csv;
}

}
