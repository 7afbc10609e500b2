#include "cli/Commands.h"
#include "cli/PeriodArguments.h"
#include "cli/TextTable.h"
#include "review/ActivityReader.h"
#include "review/Gaps.h"
#include "review/TimeText.h"
#include "session/OpenProfile.h"
#include "terminal/Arguments.h"

namespace tempodial {

namespace {

class GapsCommand final : public Command
{
public:
    GapsCommand()
        : Command({ "gaps", "Show the times between activities of a day",
            "Shows the times in which nothing was logged, each with its length. What comes\n"
            "before a day's first activity and after its last one is no gap.\n"
                + std::string(PeriodArguments::Help)
                + "\n"
                  "  tempodial gaps\n"
                  "  tempodial gaps last-week --longer 30" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        arguments.Optional("--longer MIN", mLonger, "Only gaps of more minutes than that; default 15");
    }

    Reply Run(const Options& options) override
    {
        constexpr std::int32_t MinutesOfDay = 24 * 60;
        const auto days = mDays.Days(options);
        const auto longer = ToCount("--longer", mLonger, 0, MinutesOfDay);
        const auto profile = ReadProfile(options);
        const auto gaps = Gap::Between(ActivitiesTouching(profile, days), days, longer);
        Reply reply { .document = JsonValue::Array() };
        if (options.json) {
            for (const auto& gap : gaps) {
                reply.document.Append(
                    { { "from", IsoMoment(gap.from) }, { "to", IsoMoment(gap.to) }, { "minutes", gap.minutes } });
            }
        } else {
            reply.text = Table(gaps, days.first != days.last);
            reply.summary = Sum(gaps);
        }
        return reply;
    }

private:
    static TextTable Table(const std::vector<Gap>& gaps, bool hasDays)
    {
        using enum TextTable::Side;
        TextTable table(hasDays ? std::vector { Left, Left, Right } : std::vector { Left, Right });
        for (const auto& gap : gaps) {
            std::vector<std::string> cells { gap.from.HourMinute() + "–" + gap.to.HourMinute(), HourText(gap.minutes) };
            if (hasDays) {
                cells.insert(cells.begin(), IsoDay(gap.from));
            }
            table.Add(cells);
        }
        return table;
    }

    std::string Sum(const std::vector<Gap>& gaps) const
    {
        if (gaps.empty()) {
            return "No gaps over " + mLonger + " minutes.\n";
        }
        std::int64_t minutes = 0;
        for (const auto& gap : gaps) {
            minutes += gap.minutes;
        }
        return "\n" + std::to_string(gaps.size()) + (gaps.size() == 1 ? " gap, " : " gaps, ") + HourText(minutes)
            + "\n";
    }

    PeriodArguments mDays;
    std::string mLonger = "15";
};

}

std::unique_ptr<Command> MakeGapsCommand()
{
    return std::make_unique<GapsCommand>();
}

}
