#include "cli/Commands.h"
#include "cli/Correction.h"

namespace tempodial {

namespace {

class DeleteCommand final : public Command
{
public:
    DeleteCommand()
        : Command({ "delete", "Delete activities",
            "Deletes activities; \"tempodial undo\" brings them back. The lines of the tracker\n"
            "that they came from stay, and aren't imported again.\n"
            "\n"
            "  tempodial delete @12 @13" })
    {
    }

    void Declare(ArgumentList& arguments) override { arguments.RequiredRest("@N", mNumbers, "The activities"); }

    Reply Run(const Options& options) override
    {
        const auto numbers = Correction::Numbers(mNumbers);
        Correction correction(options);
        const auto activities = correction.Activities(numbers);
        correction.Run().AsStep([&] {
            for (const auto& activity : activities) {
                activity->Delete();
            }
        });
        Reply reply;
        reply.document.Set("deleted", activities.size());
        reply.summary = std::to_string(activities.size())
            + (activities.size() == 1 ? " activity deleted\n" : " activities deleted\n");
        return correction.Run().Concluded(std::move(reply));
    }

private:
    std::vector<std::string> mNumbers;
};

}

std::unique_ptr<Command> MakeDeleteCommand()
{
    return std::make_unique<DeleteCommand>();
}

}
