#include "cli/ChangesReply.h"

#include "cli/ProjectStyle.h"
#include "cli/TextTable.h"
#include "review/TimeText.h"
#include "terminal/TerminalText.h"

#include <utility>

namespace tempodial {

namespace {

std::string Counted(std::int64_t count)
{
    return std::to_string(count) + (count == 1 ? " activity" : " activities");
}

std::string KeptByHandSum(std::int64_t keptByHand)
{
    return keptByHand == 0
        ? ""
        : Counted(keptByHand) + (keptByHand == 1 ? " keeps the project" : " keep the projects") + " set by hand\n";
}

}

JsonValue ChangesJson(const ProjectMoves& moves, std::int64_t keptByHand)
{
    auto changes = JsonValue::Array();
    for (const auto& move : moves.LargestFirst()) {
        changes.Append({ { "from", move.from }, { "to", move.to }, { "activities", move.activities },
            { "minutes", move.minutes } });
    }
    return { { "changed", moves.Activities() }, { "keptByHand", keptByHand }, { "changes", std::move(changes) } };
}

Reply PreviewReply(const RulePreview& preview)
{
    using enum TextTable::Side;
    TextTable table({ Left, Left, Right, Right });
    table.AddHeading({ "FROM", "TO", "ACTIVITIES", "TIME" });
    const auto moves = preview.moves.LargestFirst();
    for (const auto& move : moves) {
        table.AddStyled({ { move.from, ProjectStyle(move.from) }, { move.to, ProjectStyle(move.to) },
            { std::to_string(move.activities), {} }, { HourText(move.minutes), {} } });
    }
    Reply reply { .document = ChangesJson(preview.moves, preview.keptByHand) };
    if (!moves.empty()) {
        reply.text = std::move(table);
        reply.summary = "\n";
    }
    reply.summary += Counted(preview.moves.Activities()) + " would change\n" + KeptByHandSum(preview.keptByHand);
    return reply;
}

std::string ChangesSum(std::int64_t changed, std::int64_t keptByHand)
{
    return Counted(changed) + " changed\n" + KeptByHandSum(keptByHand);
}

void TellDisputed(const RulePreview& preview, const Options& options)
{
    if (options.quiet || !options.warn) {
        return;
    }
    for (const auto& move : preview.disputed.LargestFirst()) {
        options.warn(Counted(move.activities) + " (" + HourText(move.minutes) + ") of " + InQuotes(move.to)
            + (move.activities == 1 ? " belongs to " : " belong to ") + InQuotes(move.from)
            + " by precedence: see \"tempodial apply --all\" for what all rules give together");
    }
}

}
