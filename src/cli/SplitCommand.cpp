#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/Correction.h"
#include "terminal/Arguments.h"

namespace tempodial {

namespace {

class SplitCommand final : public Command
{
public:
    SplitCommand()
        : Command({ "split", "Make two activities of one",
            "Ends an activity at a moment within it and makes another of the rest. The first\n"
            "keeps the number and the details, both keep project and people. A time HH:MM is\n"
            "of the activity's own day.\n"
            "\n"
            "  tempodial split @12 --at 11:30" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("@N", mNumber, "The activity");
        arguments.Required("--at TIME", mAt, "Where it is cut: YYYY-MM-DDTHH:MM or HH:MM");
    }

    Reply Run(const Options& options) override
    {
        const auto numbers = Correction::Numbers({ mNumber });
        ToMomentOn(Date::FromYearMonthDay(2000, 1, 1), "--at", mAt);
        Correction correction(options);
        const auto activity = correction.Activities(numbers).front();
        auto first = correction.ContentOf(activity);
        const auto at = ToMomentOn(first.start.Day(), "--at", mAt);
        if (at <= first.start || at >= first.end) {
            throw CommandError(IsoMoment(at) + " isn't within the activity, which goes from " + IsoMoment(first.start)
                + " to " + IsoMoment(first.end) + ": give a moment between them");
        }
        auto second = first;
        first.end = at;
        second.start = at;
        const bool isByHand = activity->IsProjectByHand();
        Ref<StoreItem> made;
        correction.Run().AsStep([&] {
            correction.Choosing(false, [&] { correction.Write(activity, first); });
            correction.Choosing(isByHand, [&] { made = correction.Make(second); });
        });
        return correction.Concluded({ activity, made });
    }

private:
    std::string mNumber;
    std::string mAt;
};

}

std::unique_ptr<Command> MakeSplitCommand()
{
    return std::make_unique<SplitCommand>();
}

}
