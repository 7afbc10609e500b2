#include "cli/Commands.h"
#include "cli/SettingReply.h"
#include "session/OpenProfile.h"
#include "terminal/NearestName.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <algorithm>

namespace tempodial {

namespace {

class SettingsSetCommand final : public Command
{
public:
    SettingsSetCommand()
        : Command({ "settings set", "Change a setting",
            "  work-week        the days and hours of your work, such as \"Mon-Fri 09:00-17:30\"\n"
            "                   or \"Mon,Wed-Thu 08:00-12:00\"; \"report --work-week\" goes by them\n"
            "  support-address  where problem reports go\n"
            "  retention        how many days files of the tracker are kept, 1 to 36500, or\n"
            "                   forever\n"
            "  week-start       the day with which a week begins, monday to sunday, or locale\n"
            "                   for your country's\n"
            "  author           who sends a timesheet; \"\" for nobody\n"
            "\n"
            "\"tempodial settings\" shows how they are set. \"undo\" doesn't change them back.\n"
            "\n"
            "  tempodial settings set week-start monday\n"
            "  tempodial settings set retention forever\n"
            "  tempodial settings set author \"Ann Berger\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("NAME", mName, "What to set: work-week, support-address, retention,\nweek-start or author");
        arguments.Required("VALUE", mValue, "Its new value");
    }

    Reply Run(const Options& options) override
    {
        const auto names = OwnSettings::Names();
        if (std::find(names.begin(), names.end(), mName) == names.end()) {
            throw UsageError("there is no setting " + InQuotes(mName)
                + NearestAdvice(mName, names, R"(see "tempodial settings" for those there are)"));
        }
        try {
            (void)OwnSettings::Checked(mName, mValue);
        } catch (const SettingError& error) {
            throw UsageError(error.what());
        }
        const auto profile = OpenProfile(options);
        const auto setting = OwnSettings(profile).Set(mName, mValue);
        Reply reply { .document = SettingJson(setting) };
        reply.summary = SettingsText({ setting }).Text();
        return reply;
    }

private:
    std::string mName;
    std::string mValue;
};

}

std::unique_ptr<Command> MakeSettingsSetCommand()
{
    return std::make_unique<SettingsSetCommand>();
}

}
