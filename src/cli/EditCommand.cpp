#include "cli/Commands.h"
#include "cli/Correction.h"
#include "cli/GivenProject.h"
#include "cli/ProjectNames.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

class EditCommand final : public Command
{
public:
    EditCommand()
        : Command({ "edit", "Correct activities",
            "Gives activities another project, description, application, people, start or\n"
            "end; what isn't named stays. \"tempodial list --ids\" shows their numbers. A time\n"
            "HH:MM is of the activity's own day. A project that doesn't exist yet is\n"
            "made.\n"
            "\n"
            "  tempodial edit @12 --project Riverside --description \"site visit\"\n"
            "  tempodial edit @12 --end 17:30" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.RequiredRest("@N", mNumbers, "The activities");
        arguments.Optional("--project NAME", mProject, "Its project, or \"No Project\"");
        arguments.Optional("--description TEXT", mDescription, "What was done");
        arguments.Optional("--application TEXT", mApplication, "The program it was done with");
        arguments.Optional("--people TEXT", mPeople, "Who took part");
        arguments.Optional("--start TIME", mStart, "When it began: YYYY-MM-DDTHH:MM or HH:MM");
        arguments.Optional("--end TIME", mEnd, "When it ended: YYYY-MM-DDTHH:MM or HH:MM");
    }

    Reply Run(const Options& options) override
    {
        const auto numbers = Correction::Numbers(mNumbers);
        RequireUsable();
        Correction correction(options);
        const auto activities = correction.Activities(numbers);
        std::vector<ActivityContent> contents;
        for (const auto& activity : activities) {
            contents.push_back(Corrected(correction.ContentOf(activity)));
        }
        const auto project = mProject ? std::optional(GivenProject(correction.AddIn(), *mProject)) : std::nullopt;
        correction.Run().AsStep([&] {
            if (project) {
                project->Make();
            }
            correction.Choosing(project.has_value(), [&] {
                for (std::size_t i = 0; i < activities.size(); ++i) {
                    contents[i].project = project ? project->Name() : contents[i].project;
                    correction.Write(activities[i], contents[i]);
                }
            });
        });
        Reply reply;
        for (const auto& content : contents) {
            if (mStart || mEnd) {
                Correction::WarnIfTooLong(content, reply);
            }
        }
        if (project) {
            project->NoteIfAdded(reply);
        }
        return correction.Concluded(activities, std::move(reply));
    }

private:
    /// Fails with a `UsageError` for arguments that can be refused without the profile.
    void RequireUsable() const
    {
        if (!mProject && !mDescription && !mApplication && !mPeople && !mStart && !mEnd) {
            throw UsageError("nothing is to be changed: give --project, --description, --application, --people, "
                             "--start or --end");
        }
        if (mProject) {
            RequireProjectName(*mProject);
        }
        const Date anyDay = Date::FromYearMonthDay(2000, 1, 1);
        for (const auto& [name, moment] : { std::pair("--start", mStart), std::pair("--end", mEnd) }) {
            if (moment) {
                ToMomentOn(anyDay, name, *moment);
            }
        }
    }

    ActivityContent Corrected(ActivityContent content) const
    {
        const auto day = content.start.Day();
        content.description = mDescription.value_or(content.description);
        content.application = mApplication.value_or(content.application);
        content.people = mPeople.value_or(content.people);
        content.start = mStart ? ToMomentOn(day, "--start", *mStart) : content.start;
        content.end = mEnd ? ToMomentOn(day, "--end", *mEnd) : content.end;
        if ((mStart || mEnd) && content.end <= content.start) {
            throw UsageError("the activity would end at " + IsoMoment(content.end) + ", no later than it starts, at "
                + IsoMoment(content.start) + ": give another --start or --end");
        }
        return content;
    }

    std::vector<std::string> mNumbers;
    std::optional<std::string> mProject;
    std::optional<std::string> mDescription;
    std::optional<std::string> mApplication;
    std::optional<std::string> mPeople;
    std::optional<std::string> mStart;
    std::optional<std::string> mEnd;
};

}

std::unique_ptr<Command> MakeEditCommand()
{
    return std::make_unique<EditCommand>();
}

}
