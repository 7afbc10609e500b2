#include "cli/CommandLine.h"

#include "base/Failure.h"
#include "cli/CommandError.h"
#include "session/ProfileError.h"
#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <new>
#include <sstream>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

/// A command that notes how it was called.
class ProbeCommand : public Command
{
public:
    explicit ProbeCommand(const std::string& name)
        : Command({ name, "Probe for " + name, "  an example" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        if (About().name != "projects") {
            arguments.Optional("NAME", mName, "A name");
        }
        arguments.Optional("--rule RULE", mRule, "A rule");
    }
    Reply Run(const Options& options) override
    {
        ++mRuns;
        mOptions = options;
        return mRun();
    }

    std::string mName = "(none)";
    std::optional<std::string> mRule;
    int mRuns = 0;
    Options mOptions;
    std::function<Reply()> mRun = [] {
        return Reply { .document = { { "a", 1 } }, .text = "text\n", .summary = "sum\n" };
    };
};

class CommandLineTest : public testing::Test
{
protected:
    ExitStatus Run(const std::vector<std::string>& arguments)
    {
        std::vector<std::unique_ptr<Command>> commands;
        for (const auto* name : { "list", "projects", "projects set" }) {
            auto probe = std::make_unique<ProbeCommand>(name);
            probe->mRun = mRun;
            mProbes[name] = probe.get();
            commands.push_back(std::move(probe));
        }
        mOut.str("");
        mError.str("");
        mLine = std::make_unique<CommandLine>(std::move(commands), mOut, mScreen, mError);
        return mLine->Run(arguments);
    }
    const ProbeCommand& Probe(const std::string& name) const { return *mProbes.at(name); }
    std::string Error() const { return mError.str(); }

    std::function<Reply()> mRun = ProbeCommand("").mRun;
    std::ostringstream mOut;
    std::ostringstream mError;
    Screen mScreen;

private:
    std::map<std::string, ProbeCommand*> mProbes;
    std::unique_ptr<CommandLine> mLine;
};

constexpr auto OneLine = "tempodial: [^\n]+: [^\n]+\n";

}

TEST_F(CommandLineTest, Run_OptionsBeforeAndAfterTheCommand_AreTheSame)
{
    const std::vector<std::string> options { "--profile", "/p", "--locale", "de_DE", "--now", "2006-10-10T09:05:07",
        "--json", "--quiet" };
    for (const bool isBefore : { true, false }) {
        std::vector<std::string> arguments { "projects", "set" };
        arguments.insert(isBefore ? arguments.begin() : arguments.end(), options.begin(), options.end());
        EXPECT_EQ(Run(arguments), ExitStatus::Done) << Error();
        const auto& seen = Probe("projects set").mOptions;
        EXPECT_EQ(seen.profile, "/p");
        EXPECT_EQ(seen.locale, "de_DE");
        EXPECT_EQ(seen.now, Date::FromParts({ 2006, 10, 10, 9, 5, 7 }));
        EXPECT_TRUE(seen.json && seen.quiet);
        EXPECT_EQ(Probe("projects").mRuns, 0);
    }
}

TEST_F(CommandLineTest, Run_NoOptions_LeavesThemUnset)
{
    EXPECT_EQ(Run({ "projects" }), ExitStatus::Done);
    const auto& seen = Probe("projects").mOptions;
    EXPECT_FALSE(seen.profile || seen.locale || seen.now || seen.json || seen.quiet);
    EXPECT_EQ(Probe("projects set").mRuns, 0);
}

TEST_F(CommandLineTest, Run_ArgumentsThatLookLikeOthers_AreTakenAsTheyAre)
{
    for (const auto* name :
        { "", "list", "set", "projects", "[a,b]", "{}", "C++", "a b", "a=b", "%%", "Größe", "/x" }) {
        EXPECT_EQ(Run({ "projects", "set", name, "--rule", name }), ExitStatus::Done) << name << Error();
        EXPECT_EQ(Probe("projects set").mName, name);
        EXPECT_EQ(Probe("projects set").mRule, name);
        EXPECT_EQ(Run({ "list", name, std::string("--rule=") + name }), ExitStatus::Done) << name << Error();
        EXPECT_EQ(Probe("list").mName, name);
        EXPECT_EQ(Probe("list").mRule, name);
    }
}

TEST_F(CommandLineTest, Run_ValueThatBeginsWithAHyphen_IsTaken)
{
    EXPECT_EQ(Run({ "projects", "set", "--rule", "-a, --b", "--", "--name" }), ExitStatus::Done) << Error();
    EXPECT_EQ(Probe("projects set").mRule, "-a, --b");
    EXPECT_EQ(Probe("projects set").mName, "--name");
}

class BadUsageTest : public CommandLineTest, public testing::WithParamInterface<std::vector<std::string>>
{
};

TEST_P(BadUsageTest, Run_UnusableArguments_GivesOneLineAndStatus2)
{
    EXPECT_EQ(Run(GetParam()), ExitStatus::Usage);
    EXPECT_EQ(mOut.str(), "");
    EXPECT_THAT(Error(), MatchesRegex(OneLine));
    for (const auto* name : { "list", "projects", "projects set" }) {
        EXPECT_EQ(Probe(name).mRuns, 0);
    }
}

using Arguments = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(Arguments, BadUsageTest,
    testing::Values(Arguments {}, Arguments { "" }, Arguments { "--json" }, Arguments { "nothing" },
        Arguments { "report" }, Arguments { "set" }, Arguments { "List" }, Arguments { "--nothing" },
        Arguments { "list", "a", "b" }, Arguments { "list", "--nothing" }, Arguments { "list", "-x" },
        Arguments { "list", "--rule" }, Arguments { "list", "--rule", "a", "--rule", "b" }, Arguments { "--profile" },
        Arguments { "list", "--now", "now" }, Arguments { "list", "--now", "2006-10-10T09:05" },
        Arguments { "list", "--now=" }, Arguments { "list", "--locale", "xx_XX" }, Arguments { "list", "--locale", "" },
        Arguments { "list", "M\xfcller" }, Arguments { "list", "--json=maybe" }, Arguments { "no\nthing" },
        Arguments { "projects", "set", "a", "b" }, Arguments { "--profile", "a", "list", "--profile", "b" }));

TEST_F(CommandLineTest, Run_UnknownCommand_IsNamed)
{
    Run({ "nothing" });
    EXPECT_EQ(Error(), "tempodial: there is no command \"nothing\": see \"tempodial --help\" for the commands\n");
    Run({ "projects", "set", "a", "b" });
    EXPECT_EQ(Error(), "tempodial: \"b\" isn't expected here: see \"tempodial projects set --help\"\n");
    Run({ "list", "--rule" });
    EXPECT_EQ(Error(), "tempodial: --rule needs exactly one value: see \"tempodial list --help\"\n");
}

TEST_F(CommandLineTest, Run_Version_PrintsItWithoutRunning)
{
    for (const auto& arguments : { Arguments { "--version" }, Arguments { "list", "--version" },
             Arguments { "--version", "projects", "set" } }) {
        EXPECT_EQ(Run(arguments), ExitStatus::Done);
        EXPECT_EQ(mOut.str(), "tempodial 1.2.0\n");
        EXPECT_EQ(Error(), "");
        EXPECT_EQ(Probe("list").mRuns, 0);
    }
}

TEST_F(CommandLineTest, Run_Help_TellsOfTheCommands)
{
    for (const auto* option : { "--help", "-h" }) {
        EXPECT_EQ(Run({ option }), ExitStatus::Done);
        EXPECT_THAT(mOut.str(), HasSubstr("Usage: tempodial"));
        EXPECT_THAT(mOut.str(), HasSubstr("Probe for list"));
        EXPECT_THAT(mOut.str(), HasSubstr("--now YYYY-MM-DDTHH:MM:SS"));
        EXPECT_THAT(mOut.str(), HasSubstr("tempodial demo"));
    }
}

TEST_F(CommandLineTest, Run_HelpOfACommand_TellsOfIt)
{
    for (const auto& arguments :
        { Arguments { "projects", "set", "--help" }, Arguments { "projects", "set", "a", "--help" } }) {
        EXPECT_EQ(Run(arguments), ExitStatus::Done) << Error();
        EXPECT_THAT(mOut.str(), HasSubstr("Usage: tempodial projects set"));
        EXPECT_THAT(mOut.str(), HasSubstr("--rule RULE"));
        EXPECT_THAT(mOut.str(), HasSubstr("an example"));
    }
}

TEST_F(CommandLineTest, Run_Reply_IsPrintedInTheFormAskedFor)
{
    Run({ "list" });
    EXPECT_EQ(mOut.str(), "text\nsum\n");
    Run({ "list", "--quiet" });
    EXPECT_EQ(mOut.str(), "text\n");
    Run({ "list", "--json" });
    EXPECT_EQ(mOut.str(), "{\n  \"a\": 1\n}\n");
    Run({ "list", "--json", "--quiet" });
    EXPECT_EQ(mOut.str(), "{\n  \"a\": 1\n}\n");
}

TEST_F(CommandLineTest, Run_TextThatIsNoUtf8_IsReplacedInBothForms)
{
    mRun = [] { return Reply { .document = { { "a", "M\xfcller\x1b" } }, .text = "M\xfcller\x1b\n" }; };
    EXPECT_EQ(Run({ "list", "--json" }), ExitStatus::Done);
    EXPECT_EQ(mOut.str(), "{\n  \"a\": \"M\uFFFDller\\u001b\"\n}\n");
    Run({ "list" });
    EXPECT_EQ(mOut.str(), "M\uFFFDller␛\n");
}

TEST_F(CommandLineTest, Run_Content_IsPrintedByteForByte)
{
    mRun = [] { return Reply { .content = "M\xfcller\x1b\r\n\t", .text = "text\n", .summary = "sum\n" }; };
    Run({ "list" });
    EXPECT_EQ(mOut.str(), "M\xfcller\x1b\r\n\ttext\nsum\n");
    mScreen.isTerminal = true;
    Run({ "list" });
    EXPECT_THAT(mOut.str(), testing::StartsWith("M\uFFFDller\u241B\n"));
}

TEST_F(CommandLineTest, Run_NoDocument_PrintsNothing)
{
    mRun = [] { return Reply { .complaints = { "a: b" }, .status = ExitStatus::Interrupted }; };
    EXPECT_EQ(Run({ "list", "--json" }), ExitStatus::Interrupted);
    EXPECT_EQ(mOut.str(), "");
    EXPECT_EQ(Error(), "tempodial: a: b\n");
}

TEST_F(CommandLineTest, Run_Complaints_ArePrintedWithTheStatus)
{
    mRun = [] {
        return Reply { .text = "text\n", .complaints = { "a: b", "c\nd: e" }, .status = ExitStatus::NotDone };
    };
    EXPECT_EQ(Run({ "list" }), ExitStatus::NotDone);
    EXPECT_EQ(mOut.str(), "text\n");
    EXPECT_EQ(Error(), "tempodial: a: b\ntempodial: c d: e\n");
}

TEST_F(CommandLineTest, Run_NotesAndWarnings_StandOnStandardError)
{
    mRun = [] { return Reply { .text = "text\n", .notes = { "Added: a" }, .warnings = { "a: b" } }; };
    EXPECT_EQ(Run({ "list" }), ExitStatus::Done);
    EXPECT_EQ(mOut.str(), "text\n");
    EXPECT_EQ(Error(), "Added: a\ntempodial: a: b\n");
    Run({ "list", "--quiet" });
    EXPECT_EQ(Error(), "tempodial: a: b\n");
}

TEST_F(CommandLineTest, Run_Color_DecidesOverTheScreen)
{
    const auto drawn = [this](const Arguments& color) {
        Arguments arguments { "list" };
        arguments.insert(arguments.end(), color.begin(), color.end());
        EXPECT_EQ(Run(arguments), ExitStatus::Done) << Error();
        return mOut.str().starts_with("\x1b[1mday\x1b[0m\n");
    };
    mRun = [] {
        ShownText text;
        text.AddHeading("day");
        return Reply { .document = { { "a", 1 } }, .text = text };
    };
    for (const bool hasColors : { false, true }) {
        mScreen.hasColors = hasColors;
        EXPECT_EQ(drawn({}), hasColors);
        EXPECT_EQ(drawn({ "--color", "auto" }), hasColors);
        EXPECT_FALSE(drawn({ "--color", "never" }));
        EXPECT_TRUE(drawn({ "--color=always" }));
        EXPECT_FALSE(drawn({ "--color=always", "--json" }));
        EXPECT_EQ(mOut.str().find('\x1b'), std::string::npos);
    }
    EXPECT_EQ(Run({ "list", "--color", "red" }), ExitStatus::Usage);
    EXPECT_EQ(Error(), "tempodial: --color can't be \"red\": give auto, always or never\n");
}

TEST_F(CommandLineTest, Run_Wide_LeavesTablesUncut)
{
    mRun = [] {
        TextTable table({ TextTable::Side::Left });
        table.Add({ "a text that is long" });
        return Reply { .text = std::move(table) };
    };
    mScreen.columns = 14;
    Run({ "list" });
    EXPECT_EQ(mOut.str(), "a text that is long\n") << "it is no terminal";
    mScreen.isTerminal = true;
    Run({ "list" });
    EXPECT_EQ(mOut.str(), "a text that i…\n");
    Run({ "list", "--wide" });
    EXPECT_EQ(mOut.str(), "a text that is long\n");
}

TEST_F(CommandLineTest, Run_CommandFails_GivesTheStatusThatFits)
{
    const auto fails = [this](auto&& fail) {
        mRun = [&fail]() -> Reply {
            fail();
            return {};
        };
        return Run({ "list" });
    };
    EXPECT_EQ(fails([] { throw UsageError("a: b"); }), ExitStatus::Usage);
    EXPECT_EQ(Error(), "tempodial: a: b\n");
    EXPECT_EQ(fails([] { throw CommandError("a: b"); }), ExitStatus::NotDone);
    EXPECT_EQ(Error(), "tempodial: a: b\n");
    EXPECT_EQ(fails([] { throw ProfileError("a: b"); }), ExitStatus::NotDone);
    EXPECT_EQ(fails([] { throw ProfileInUse("a: b"); }), ExitStatus::ProfileInUse);
    EXPECT_EQ(fails([] { throw Failure(Error::DiskFull); }), ExitStatus::NotDone);
    EXPECT_THAT(Error(), HasSubstr("Disk full: "));
    EXPECT_EQ(fails([] { throw std::bad_alloc(); }), ExitStatus::NotDone);
    EXPECT_THAT(Error(), MatchesRegex(OneLine));
    EXPECT_EQ(mOut.str(), "");
}

TEST_F(CommandLineTest, Run_OutputCantBeWritten_IsTold)
{
    mOut.setstate(std::ios::badbit);
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<ProbeCommand>("list"));
    EXPECT_EQ(CommandLine(std::move(commands), mOut, mScreen, mError).Run({ "list" }), ExitStatus::NotDone);
    EXPECT_THAT(Error(), MatchesRegex(OneLine));
}

}
