#include "fuzz/SourceFuzz.h"

#include "base/Ascii.h"
#include "fuzz/FuzzTarget.h"
#include "host/files/ProgramModule.h"
#include "host/system/IcuTimeZone.h"
#include "portable/TextEncoding.h"
#include "sources/ImportPlan.h"
#include "sources/SourceProblem.h"
#include "sources/Sources.h"

#include <sstream>
#include <utility>

namespace tempodial {

namespace {

bool ReadFuzzedCalendar(const std::string& text, const CalendarSpan& span, CalendarContent& content)
{
    static const auto read
        = ProgramModule(ProgramModule::PathOf(CalendarModule)).Get<CalendarTextReader>(CalendarTextReaderName);
    return read(text, span, content);
}

void PlanAs(const Source& source, std::string_view input, bool asSightings)
{
    static IcuTimeZone zone("Europe/Zurich");
    static const ViewMaker views { ProgramTable({}), PrivacyRules() };
    const auto now = Date::FromParts({ 2026, 11, 21, 17, 0, 0 });
    std::istringstream stream { std::string(input) };
    ImportPlan plan({ std::string(source.name), std::nullopt, std::nullopt, now }, views);
    try {
        plan.Take(source.makeReader()->Read(stream,
            { zone, now, DateOrder::FromTheFile, asSightings,
                [](std::string line) { return DecodedLine(std::move(line)); }, ReadFuzzedCalendar }));
    } catch (const WrongSource&) {
        return;
    } catch (const BrokenSource&) {
        return;
    }
    for (const auto& [day, planned] : plan.Make({}, {})) {
        Hold(day < now.Day(), "only days that are over are imported");
        Hold(planned.taken == 0 && planned.before == 0, "nothing was there before");
        for (const auto& line : planned.lines) {
            Hold(IsAscii(line), "lines are ASCII");
            Hold(line.find('\n') == std::string::npos, "a line is one line");
        }
    }
}

}

void PlanSource(std::string_view source, std::string_view input)
{
    for (const auto& known : AllSources()) {
        if (known.name == source) {
            PlanAs(known, input, known.hasSightings && !known.hasEntries);
            if (known.hasSightings && known.hasEntries) {
                PlanAs(known, input, true);
            }
        }
    }
}

}
