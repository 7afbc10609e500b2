#include "cli/Commands.h"
#include "cli/DemoFiles.h"
#include "cli/DemoProjects.h"
#include "host/system/HostClock.h"
#include "session/InstalledForm.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"

#include <limits>
#include <string>

namespace tempodial {

namespace {

class DemoCommand final : public Command
{
public:
    DemoCommand()
        : Command({ "demo", "Write tracker files of an invented working life, for trying the program",
            "Writes the files that a tracker would have written in the days up to now into\n"
            "the data folder of the profile, unless tracker files are there already.\n"
            "\"tempodial sync\" then makes activities of them. Older days than the 21 before\n"
            "today wouldn't be imported, so there are at most 22. A profile without rules\n"
            "for projects gets four projects that have some.\n"
            "\n"
            "  tempodial --profile /tmp/try demo\n"
            "  tempodial --profile /tmp/try sync" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--days N", mDays, "How many days, the last being today: 1 to 22; default 21");
        arguments.Optional("--seed N", mSeed, "Another number gives another life; default 1");
    }

    Reply Run(const Options& options) override
    {
        constexpr auto MostSeed = std::numeric_limits<std::int32_t>::max();
        const auto days = ToCount("--days", mDays, 1, SavedDataDays + 1);
        const auto seed = static_cast<std::uint32_t>(ToCount("--seed", mSeed, 0, MostSeed));
        RequireForm(options);
        const auto profile = OpenProfile(options);
        const auto written = DemoFiles(profile).Write({ seed, days, HostClock(options.now).Now() });
        AddDemoProjects(profile);
        Reply reply;
        reply.document = { { "files", written.files }, { "lines", written.lines } };
        reply.summary = std::to_string(written.files) + " tracker files with " + std::to_string(written.lines)
            + " slots in " + profile.DataFolder() + "\n\"tempodial sync\" makes activities of them.\n";
        return reply;
    }

private:
    std::string mDays = "21";
    std::string mSeed = "1";
};

}

std::unique_ptr<Command> MakeDemoCommand()
{
    return std::make_unique<DemoCommand>();
}

}
