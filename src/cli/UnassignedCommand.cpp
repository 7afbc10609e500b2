#include "cli/Commands.h"
#include "cli/PeriodArguments.h"
#include "cli/TextTable.h"
#include "review/ActivityGroup.h"
#include "review/ActivityReader.h"
#include "review/SubjectWord.h"
#include "review/TimeText.h"
#include "session/OpenProfile.h"
#include "terminal/Arguments.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace tempodial {

namespace {

class UnassignedCommand final : public Command
{
public:
    UnassignedCommand()
        : Command({ "unassigned", "Show the time that belongs to no project",
            "Groups it by application and description, the largest first, and names the\n"
            "words that stand for most of it: each would make a rule.\n"
                + PeriodArguments::HelpWith("this week")
                + "\n"
                  "  tempodial unassigned\n"
                  "  tempodial unassigned last-month --rows 20" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        arguments.Optional("--rows N", mRows, "How many groups to show; default 10");
    }

    Reply Run(const Options& options) override
    {
        const auto days = mDays.Days(options, "week");
        const auto rows = ToCount("--rows", mRows, 0, std::numeric_limits<std::int32_t>::max());
        const auto profile = ReadProfile(options);
        std::int64_t all = 0;
        const auto groups = ActivityGroup::Unassigned([&](const auto& take) {
            EachStartingIn(profile, days)([&](const Activity& activity) {
                all += activity.duration;
                take(activity);
            });
        });
        const auto words = SubjectWord::Largest(groups);
        std::int64_t unassigned = 0;
        for (const auto& group : groups) {
            unassigned += group.minutes;
        }
        Reply reply;
        if (options.json) {
            reply.document = { { "from", IsoDay(days.first) }, { "to", IsoDay(days.last) }, { "minutes", unassigned },
                { "ofMinutes", all }, { "groups", GroupsJson(groups) }, { "words", WordsJson(words) } };
        } else if (groups.empty()) {
            reply.summary = "No time without a project.\n";
        } else {
            reply.text = GroupTable(groups, static_cast<std::size_t>(rows));
            AddWords(words, reply.text);
            reply.summary = "\n" + HourText(unassigned) + " of " + HourText(all) + " belong to no project.\n";
        }
        return reply;
    }

private:
    static JsonValue GroupsJson(const std::vector<ActivityGroup>& groups)
    {
        auto json = JsonValue::Array();
        for (const auto& group : groups) {
            json.Append({ { "application", group.application }, { "description", group.description },
                { "minutes", group.minutes }, { "times", group.times }, { "last", IsoMoment(group.last) } });
        }
        return json;
    }

    static JsonValue WordsJson(const std::vector<SubjectWord>& words)
    {
        auto json = JsonValue::Array();
        for (const auto& word : words) {
            json.Append({ { "word", word.word }, { "minutes", word.minutes } });
        }
        return json;
    }

    static ShownText GroupTable(const std::vector<ActivityGroup>& groups, std::size_t rows)
    {
        using enum TextTable::Side;
        TextTable table({ Right, Right, Left, Left, Left });
        table.AddHeading({ "TIME", "TIMES", "LAST", "APPLICATION", "DESCRIPTION" });
        for (std::size_t i = 0; i < std::min(rows, groups.size()); ++i) {
            const auto& group = groups[i];
            table.Add({ HourText(group.minutes), std::to_string(group.times), IsoDay(group.last), group.application,
                group.description });
        }
        const auto others = groups.size() - std::min(rows, groups.size());
        ShownText text(std::move(table));
        text += others == 0 ? "" : "… and " + std::to_string(others) + " more (--rows)\n";
        return text;
    }

    static void AddWords(const std::vector<SubjectWord>& words, ShownText& text)
    {
        using enum TextTable::Side;
        TextTable table({ Right, Left });
        table.AddHeading({ "TIME", "WORD" });
        for (const auto& word : words) {
            table.Add({ HourText(word.minutes), word.word });
        }
        if (!words.empty()) {
            text += "\n";
            text += std::move(table);
        }
    }

    PeriodArguments mDays;
    std::string mRows = "10";
};

}

std::unique_ptr<Command> MakeUnassignedCommand()
{
    return std::make_unique<UnassignedCommand>();
}

}
