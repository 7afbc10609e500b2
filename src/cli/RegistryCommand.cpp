#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <optional>

namespace tempodial {

namespace {

class RegistryCommand final : public Command
{
public:
    RegistryCommand()
        : Command({ "registry", "Read and write the registry store",
            "ACTION is get, set or delete, HIVE is HKCU or HKLM, and an empty KEY is the\n"
            "product's own, Software\\Lindenfold\\Tempodial. get prints a value; set writes\n"
            "TEXT; delete takes the value away and prints what it was. Getting or deleting\n"
            "an absent value is an error.\n"
            "\n"
            "  tempodial registry get HKCU \"\" CurrentVersion\n"
            "  tempodial registry set HKLM \"\" \"Install Directory\" /opt/templates\n"
            "  tempodial registry delete HKLM \"\" \"Install Directory\"" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("ACTION", mAction, "get, set or delete");
        arguments.Required("HIVE", mHive, "HKCU or HKLM");
        arguments.Required("KEY", mKey, R"(The key, names with \ between; "" for the product's own)");
        arguments.Required("VALUE", mValue, "The name of the value");
        arguments.Optional("TEXT", mText, "The text to set");
    }

    Reply Run(const Options& options) override
    {
        const auto hive = ToHive(mHive);
        const bool sets = mAction == "set";
        if (!sets && mAction != "get" && mAction != "delete") {
            throw UsageError("registry can't " + InQuotes(mAction) + ": give get, set or delete");
        }
        if (sets != mText.has_value()) {
            throw UsageError(sets ? "registry set needs the text to set: give it behind the value's name"
                                  : "registry " + mAction + " takes no text: leave " + InQuotes(*mText) + " out");
        }
        const auto key = mKey.empty() ? ProductKey : mKey;
        const auto profile = mAction == "get" ? ReadProfile(options) : OpenProfile(options);
        const auto& registry = profile.Registry();
        if (sets) {
            registry->Write(hive, key, mValue, *mText);
        }
        const auto value = registry->Get(hive, key, mValue);
        if (value.IsEmpty()) {
            throw CommandError("there is no value " + InQuotes(mValue) + " under " + mHive + "\\" + key
                + ": see to the names of hive, key and value");
        }
        if (mAction == "delete") {
            registry->Delete(hive, key, mValue);
        }
        return ReplyWith(value, mAction == "get");
    }

private:
    static Reply ReplyWith(const Variant& value, bool isAnswer)
    {
        Reply reply;
        if (const auto* number = value.If<std::int32_t>()) {
            reply.document.Set("number", *number);
        } else {
            reply.document.Set("text", value.ToText());
        }
        const auto text = (value.If<std::int32_t>() ? std::to_string(value.ToInt32()) : value.ToText()) + "\n";
        if (isAnswer) {
            reply.text = text;
        } else {
            reply.summary = text;
        }
        return reply;
    }

    std::string mAction;
    std::string mHive;
    std::string mKey;
    std::string mValue;
    std::optional<std::string> mText;
};

}

std::unique_ptr<Command> MakeRegistryCommand()
{
    return std::make_unique<RegistryCommand>();
}

}
