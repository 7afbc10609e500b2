#include "cli/Commands.h"
#include "cli/SettingReply.h"
#include "session/OpenProfile.h"

namespace tempodial {

namespace {

class SettingsCommand final : public Command
{
public:
    SettingsCommand()
        : Command({ "settings", "Show the settings",
            "Shows each setting with its value, and what it is for. \"settings set\" gives one\n"
            "another value.\n"
            "\n"
            "  tempodial settings\n"
            "  tempodial settings set work-week \"Mon-Thu 08:30-17:00\"" })
    {
    }

    void Declare(ArgumentList&) override { }

    Reply Run(const Options& options) override
    {
        const auto profile = ReadProfile(options);
        const auto settings = OwnSettings(profile).All();
        Reply reply { .document = JsonValue::Array(), .text = SettingsText(settings) };
        for (const auto& setting : settings) {
            reply.document.Append(SettingJson(setting));
        }
        return reply;
    }
};

}

std::unique_ptr<Command> MakeSettingsCommand()
{
    return std::make_unique<SettingsCommand>();
}

}
