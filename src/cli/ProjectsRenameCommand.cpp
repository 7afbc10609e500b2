#include "base/Text.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/ProjectNames.h"
#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace tempodial {

namespace {

class ProjectsRenameCommand final : public Command
{
public:
    ProjectsRenameCommand()
        : Command({ "projects rename", "Give a project another name",
            "Its rules stay as they are, and all of its activities get the new name, also in\n"
            "their subjects; they stay as they are otherwise.\n"
            "\n"
            "  tempodial projects rename Riverside \"Riverside II\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("OLD", mOld, "The project");
        arguments.Required("NEW", mNew, "Its new name");
    }

    Reply Run(const Options& options) override
    {
        RequireProjectName(mOld);
        RequireProjectName(mNew);
        if (IsNoProject(mOld)) {
            throw CommandError("\"No Project\" can't be renamed, since it stands for there being none: give a project");
        }
        ConnectedRun run(options);
        auto& addIn = run.AddIn();
        const bool isSame = EqualIgnoringCase(mOld, mNew);
        const auto name = isSame ? mNew : KnownProject::NameOrNew(addIn, mNew);
        const auto all = ActivitiesStartingIn(run.Profile(), Period::Always());
        RequireFree(addIn, name, isSame, all);
        std::vector<std::int64_t> numbers;
        for (const auto& activity : all) {
            if (EqualIgnoringCase(activity.project, mOld) && activity.project != name) {
                numbers.push_back(activity.number);
            }
        }
        const bool isListed = KnownProject::IsListed(addIn, mOld);
        if (!isListed && !HasProject(all, mOld)) {
            (void)KnownProject::NameOf(addIn, mOld);
        }
        run.AsStep([&] {
            if (isListed) {
                RenameRules(addIn, name);
            }
            run.Profile().Mailbox()->ChoosingProjects(ProjectChoice::Nobody, [&] {
                for (const auto number : numbers) {
                    RenameIn(addIn, ItemNumbered(run.Profile(), number), name);
                }
            });
        });
        const auto changed = run.Saves().failed.empty() ? numbers.size() : 0;
        Reply reply { .document = KnownProject::Read(addIn, name).ToJson() };
        reply.document.Set("changed", changed);
        reply.summary = "The project is called " + name + ", and so it is in " + std::to_string(changed)
            + (changed == 1 ? " activity.\n" : " activities.\n");
        return run.Concluded(std::move(reply));
    }

private:
    static bool HasProject(const std::vector<Activity>& activities, const std::string& name)
    {
        return std::any_of(activities.begin(), activities.end(),
            [&name](const auto& activity) { return EqualIgnoringCase(activity.project, name); });
    }

    /// Fails when the project may not have that name, or another one has it.
    static void RequireFree(
        TempodialMain& addIn, const std::string& name, bool isSame, const std::vector<Activity>& activities)
    {
        if (const auto refusal = addIn.ValidateProject(name); !refusal.empty()) {
            throw CommandError(refusal);
        }
        if (!isSame && (KnownProject::IsListed(addIn, name) || HasProject(activities, name))) {
            throw CommandError("there is a project \"" + name + "\" already: give another name");
        }
    }

    void RenameRules(TempodialMain& addIn, const std::string& name) const
    {
        const auto former = KnownProject::Read(addIn, KnownProject::NameOf(addIn, mOld));
        addIn.DeleteProject(former.name);
        addIn.UpdateorAddProject(name, former.subject, former.notSubject, former.people, former.precedence, false);
    }

    static void RenameIn(TempodialMain& addIn, const Ref<AppointmentItem>& item, const std::string& name)
    {
        const auto properties = item->UserProperties();
        const auto description = properties->Item("Description");
        properties->Item("Project")->SetValue(name);
        addIn.RefreshCalendarItem(item, name, description ? description->Value().ToText() : "", false);
        item->Save();
        item->Close(CloseMode::Discard);
    }

    std::string mOld;
    std::string mNew;
};

}

std::unique_ptr<Command> MakeProjectsRenameCommand()
{
    return std::make_unique<ProjectsRenameCommand>();
}

}
