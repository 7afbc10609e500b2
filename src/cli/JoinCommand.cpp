#include "cli/Commands.h"
#include "cli/Correction.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// The details of two activities, one below the other.
std::string Joined(const std::string& first, const std::string& second)
{
    const bool isParted = first.empty() || second.empty() || first.ends_with('\n');
    return first + (isParted ? "" : "\r\n") + second;
}

class JoinCommand final : public Command
{
public:
    JoinCommand()
        : Command({ "join", "Make one activity of two",
            "Makes one activity of two, from the earlier start to the later end. It has the\n"
            "number, the project and all else of the one that starts first; the details of\n"
            "the other stand behind its own.\n"
            "\n"
            "  tempodial join @12 @13" })
    {
    }

    void Declare(ArgumentList& arguments) override { arguments.RequiredRest("@N", mNumbers, "The two activities"); }

    Reply Run(const Options& options) override
    {
        const auto numbers = Correction::Numbers(mNumbers);
        if (numbers.size() != 2) {
            throw UsageError("two activities are joined: give the numbers of two, such as @12 @13");
        }
        Correction correction(options);
        auto activities = correction.Activities(numbers);
        if (activities[1]->Start() < activities[0]->Start()) {
            std::swap(activities[0], activities[1]);
        }
        auto content = correction.ContentOf(activities[0]);
        content.end = std::max(content.end, activities[1]->End());
        correction.Run().AsStep([&] {
            correction.Choosing(false, [&] {
                correction.Write(activities[0], content, Joined(activities[0]->Body(), activities[1]->Body()));
                activities[1]->Delete();
            });
        });
        Reply reply;
        Correction::WarnIfTooLong(content, reply);
        return correction.Concluded({ activities[0] }, std::move(reply));
    }

private:
    std::vector<std::string> mNumbers;
};

}

std::unique_ptr<Command> MakeJoinCommand()
{
    return std::make_unique<JoinCommand>();
}

}
