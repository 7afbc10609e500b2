#include "cli/ActivityCsv.h"

#include "base/Text.h"
#include "review/CsvField.h"
#include "terminal/Arguments.h"

namespace tempodial {

namespace {

constexpr auto Header = "start,end,duration,project,application,description,people,subject";

}

std::string ActivityCsv(const std::vector<ActivityRecord>& activities)
{
    std::string csv = Header + std::string(CrLf);
    for (const auto& activity : activities) {
        csv += IsoMoment(activity.start) + "," + IsoMoment(activity.end) + "," + std::to_string(activity.duration);
        for (const auto* text :
            { &activity.project, &activity.application, &activity.description, &activity.people, &activity.subject }) {
            csv += "," + CsvField(*text);
        }
        csv += CrLf;
    }
    return csv;
}

}
