#include "base/Failure.h"
#include "base/Text.h"
#include "engine/import/HistoryText.h"
#include "fuzz/FuzzTarget.h"

namespace tempodial {

namespace {

/// Runs what may fail as a statement of the product does; false when it failed.
template <class Statement> bool Succeeds(Statement&& statement)
{
    try {
        statement();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

/// The history of a file is asked for days and changed as at the end of a sync.
void ChangeHistory(std::string_view input)
{
    const HistoryText read { std::string(input) };
    for (const std::string day : { "20061010", "20061009", "20061008" }) {
        auto history = read;
        const auto position = history.Find(day);
        Hold(position >= 0 && position <= Length(history.Text()), "an entry stands in the text");
        if (position > 0) {
            Succeeds([&] { history.Count(position); });
            Succeeds([&] { history.Tail(position); });
            auto changed = history;
            if (Succeeds([&] { changed.SetCount(position, 12345); })) {
                Hold(Length(changed.Text()) == Length(history.Text()), "a count takes the place of another");
                Hold(changed.Find(day) <= position, "the entry stays");
            }
            auto cut = history;
            if (!Succeeds([&] { cut.Cut(position); })) {
                Hold(cut.Text() == history.Text(), "what fails changes nothing");
            }
        } else {
            history.Append(day, 54321);
            const auto appended = history.Find(day);
            Hold(appended > 0 && history.Count(appended) == 54321, "an entry that was added is found again");
        }
    }
}

}

TEMPODIAL_FUZZ_TARGET(HistoryText, ChangeHistory)

}
