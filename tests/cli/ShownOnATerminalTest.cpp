#include "base/Text.h"
#include "cli/StartedProgram.h"
#include "support/ProgramFixture.h"
#include "terminal/TerminalText.h"

#include <algorithm>
#include <sys/stat.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// The program with all its streams on a terminal, over two days with an activity and one with two.
class ShownOnATerminalTest : public ProgramFixture
{
protected:
    using Environment = std::vector<std::string>;

    void SetUp() override
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "a.doc"),
                WordLine(32700, 33000, std::string(100, 'b') + ".doc").Node("Project", "Plan").Text() });
        WriteTracker("20061009", { WordSlot(32400, 32700, "y.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }

    /// What a command shows there, with its line feeds.
    std::string Shown(const Arguments& arguments, const Environment& environment = {}, int status = 0) const
    {
        Environment all { "NO_COLOR=", "TERM=xterm", "TEMPODIAL_PAGER=" };
        all.insert(all.end(), environment.begin(), environment.end());
        StartedProgram program(
            Whole(arguments), { .isOnTerminal = true, .columns = mColumns, .rows = mRows, .environment = all });
        EXPECT_EQ(program.End(), status);
        return Replace(program.Shown(), "\r\n", "\n");
    }
    bool HasColors(const Arguments& arguments, const Environment& environment = {}) const
    {
        return Shown(arguments, environment).find('\x1b') != std::string::npos;
    }
    /// What it shows when the pager is that command and lines are longer than the screen's rows.
    std::string Paged(const std::string& pager, const Arguments& arguments = { "list" }) const
    {
        return Shown(arguments, { "TEMPODIAL_PAGER=" + pager });
    }
    static int LongestLine(const std::string& shown)
    {
        int longest = 0;
        for (const auto& line : Split(shown, "\n")) {
            longest = std::max(longest, DisplayWidth(line));
        }
        return longest;
    }

    int mColumns = 80;
    int mRows = 24;
};

constexpr auto Mark = "sed 's/^/| /'";

}

TEST_F(ShownOnATerminalTest, List_SeveralDays_HaveTheirTotals)
{
    EXPECT_THAT(Shown({ "--color=never", "list", "-2d" }),
        StartsWith("Monday, October 9, 2006  5 min\n"
                   "09:00–09:05  5 min  Microsoft Word, \"y.doc\"\n"
                   "\n"
                   "Tuesday, October 10, 2006  10 min\n"));
    EXPECT_THAT(Shown({ "list" }), Not(HasSubstr("Tuesday")));
    EXPECT_THAT(Run({ "list", "-2d" }).out, StartsWith("Monday, October 9, 2006\n"));
}

TEST_F(ShownOnATerminalTest, List_Colors_AreThoseOfProjectsAndHeadings)
{
    const auto shown = Shown({ "list", "-2d" });
    EXPECT_THAT(shown, StartsWith("\x1b[1mMonday, October 9, 2006  5 min\x1b[0m\n"));
    EXPECT_THAT(shown, HasSubstr("  \x1b[2mMicrosoft Word, \"a.doc\"\x1b[0m\n"));
    EXPECT_THAT(shown, HasSubstr("m[Plan] Microsoft Word"));
    const auto projects = Shown({ "projects" });
    EXPECT_THAT(projects, StartsWith("\x1b[1mPROJECT\x1b[0m"));
}

TEST_F(ShownOnATerminalTest, Color_OptionAndEnvironment_DecideInTheirOrder)
{
    EXPECT_TRUE(HasColors({ "list" }));
    EXPECT_FALSE(HasColors({ "list", "--color", "never" }));
    EXPECT_FALSE(HasColors({ "list" }, { "NO_COLOR=1" }));
    EXPECT_FALSE(HasColors({ "list" }, { "NO_COLOR=0" }));
    EXPECT_FALSE(HasColors({ "list" }, { "TERM=dumb" }));
    EXPECT_TRUE(HasColors({ "list", "--color=always" }, { "NO_COLOR=1" }));
    EXPECT_FALSE(HasColors({ "list", "--color=always", "--json" }));
}

TEST_F(ShownOnATerminalTest, Color_InAPipe_IsThereOnlyWhenAskedFor)
{
    const auto plain = Run({ "list", "-2d" }).out;
    EXPECT_EQ(plain.find('\x1b'), std::string::npos);
    EXPECT_EQ(Run({ "list", "-2d", "--color", "auto" }).out, plain);
    EXPECT_EQ(Run({ "list", "-2d", "--color", "never" }).out, plain);
    auto drawn = Run({ "list", "-2d", "--color", "always" }).out;
    EXPECT_THAT(drawn, StartsWith("\x1b[1mMonday, October 9, 2006\x1b[0m\n"));
    for (auto begin = drawn.find('\x1b'); begin != std::string::npos; begin = drawn.find('\x1b')) {
        drawn.erase(begin, drawn.find('m', begin) - begin + 1);
    }
    EXPECT_EQ(drawn, plain);
    EXPECT_EQ(Run({ "list", "--json", "--color", "always" }).out, Run({ "list", "--json" }).out);
    EXPECT_THAT(Refusal({ "list", "--color", "green" }, 2), HasSubstr("give auto, always or never"));
}

TEST_F(ShownOnATerminalTest, Table_WiderThanTheTerminal_IsCut)
{
    for (const int columns : { 80, 60, 41, 20, 7, 1 }) {
        mColumns = columns;
        const auto shown = Shown({ "--color=never", "--quiet", "list" });
        EXPECT_LE(LongestLine(shown), columns);
        EXPECT_THAT(shown, HasSubstr("…\n"));
        EXPECT_LE(LongestLine(Shown({ "--color=never", "--quiet", "projects" })), columns);
    }
    mColumns = 0;
    EXPECT_EQ(LongestLine(Shown({ "--color=never", "--quiet", "list" })), 80) << "the terminal doesn't say";
    EXPECT_EQ(Shown({ "--color=never", "--wide", "list" }), Run({ "list" }).out);
    EXPECT_GT(LongestLine(Run({ "list" }).out), 100);
}

TEST_F(ShownOnATerminalTest, Reviews_OnATerminal_AreCutAndDrawn)
{
    mColumns = 50;
    for (const auto& arguments : { Arguments { "summary", "2006-10" }, Arguments { "unassigned", "2006-10" },
             Arguments { "timesheet", "Plan", "2006-10" }, Arguments { "gaps", "2006-10", "--longer", "0" } }) {
        auto plain = arguments;
        plain.insert(plain.begin(), "--color=never");
        EXPECT_LE(LongestLine(Shown(plain)), mColumns) << arguments.front();
        EXPECT_EQ(HasColors(arguments), arguments.front() != "gaps") << arguments.front();
        plain.insert(plain.begin(), "--wide");
        EXPECT_EQ(Shown(plain), Run(arguments).out) << arguments.front();
    }
    EXPECT_THAT(Shown({ "--wide", "summary", "2006-10" }), HasSubstr("\n\x1b[2mNo Project\x1b[0m"));
}

TEST_F(ShownOnATerminalTest, Report_OnATerminal_IsTextUnlessAskedFor)
{
    const auto text = Replace(Run({ "report", "--text" }).out, "\r\n", "\n");
    EXPECT_EQ(Shown({ "report", "--quiet" }), text);
    EXPECT_EQ(Shown({ "report", "--quiet", "--out", "-" }), text);
    EXPECT_THAT(Shown({ "report", "--quiet", "--html" }), StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(Shown({ "report", "--json" }), HasSubstr("\"html\": true"));
    EXPECT_THAT(Run({ "report" }).out, StartsWith("<!DOCTYPE html>"));
    const auto path = mFolder.Path("a.html");
    Shown({ "report", "--out", path });
    EXPECT_THAT(mFolder.Read("a.html"), StartsWith("<!DOCTYPE html>"));
}

TEST_F(ShownOnATerminalTest, Pager_LongerThanTheScreen_ShowsIt)
{
    mRows = 5;
    EXPECT_THAT(Paged(Mark), Not(HasSubstr("|"))) << "a table of two lines, a blank, the total and the next prompt";
    mRows = 4;
    EXPECT_THAT(Paged(Mark), StartsWith("| "));
    mRows = 5;
    mColumns = 30;
    EXPECT_THAT(Paged(Mark), Not(HasSubstr("| "))) << "the table is cut";
    EXPECT_THAT(Paged(Mark, { "--wide", "list" }), StartsWith("| ")) << "a line takes several rows";
    EXPECT_THAT(Paged(Mark, { "--help" }), StartsWith("| "));
    EXPECT_THAT(Paged(Mark, { "report", "--quiet" }), StartsWith("| "));
}

TEST_F(ShownOnATerminalTest, Pager_NoneOrCat_IsNone)
{
    mRows = 2;
    const auto shown = Paged("");
    EXPECT_THAT(shown, HasSubstr("2 activities, 10 min\n"));
    EXPECT_EQ(Paged("cat"), shown);
    EXPECT_EQ(Paged("  "), shown);
}

TEST_F(ShownOnATerminalTest, Pager_Environment_ChoosesInItsOrder)
{
    mRows = 2;
    std::filesystem::create_directories(mFolder.Path("bin"));
    const auto less = mFolder.Write("bin/less", "#!/bin/sh\necho \"less $*\"\ncat\n");
    ASSERT_EQ(::chmod(less.c_str(), 0700), 0);
    const auto path = "PATH=" + mFolder.Path("bin") + ":/usr/bin:/bin";
    const auto shown = [&](Environment environment, std::vector<std::string> absent) {
        environment.push_back(path);
        StartedProgram program(
            Whole({ "list" }), { .isOnTerminal = true, .rows = mRows, .environment = environment, .absent = absent });
        EXPECT_EQ(program.End(), 0);
        return program.Shown();
    };
    EXPECT_THAT(shown({ "PAGER=sed 's/^/1 /'" }, { "TEMPODIAL_PAGER" }), StartsWith("1 "));
    EXPECT_THAT(shown({ "PAGER=sed 's/^/1 /'", "TEMPODIAL_PAGER=sed 's/^/2 /'" }, {}), StartsWith("2 "));
    EXPECT_THAT(shown({ "PAGER=sed 's/^/1 /'", "TEMPODIAL_PAGER=" }, {}), Not(StartsWith("1 ")));
    EXPECT_THAT(shown({}, { "TEMPODIAL_PAGER", "PAGER" }), StartsWith("less -FRX\r\n"));
}

TEST_F(ShownOnATerminalTest, Pager_OtherStreamsOrForms_HaveNone)
{
    mRows = 2;
    EXPECT_THAT(Paged(Mark, { "list", "--json" }), Not(HasSubstr("| ")));
    EXPECT_THAT(Paged(Mark, { "report", "--out", "-" }), Not(HasSubstr("| ")));
    EXPECT_THAT(Paged(Mark, { "export", "--format", "csv", "--out", "-" }), Not(HasSubstr("| ")));
    EXPECT_THAT(Paged(Mark, { "export", "--format", "csv" }), StartsWith("| "));
    StartedProgram unasked(Whole({ "list" }),
        { .isOnTerminal = true, .isAsked = false, .rows = mRows, .environment = { "TEMPODIAL_PAGER=sed 's/^/| /'" } });
    EXPECT_EQ(unasked.End(), 0);
    EXPECT_THAT(unasked.Shown(), HasSubstr("2 activities"));
    EXPECT_THAT(unasked.Shown(), Not(HasSubstr("| ")));
    const auto output = mFolder.Path("output");
    StartedProgram inAFile(
        Whole({ "list" }), { .output = output, .rows = mRows, .environment = { "TEMPODIAL_PAGER=sed 's/^/| /'" } });
    EXPECT_EQ(inAFile.End(), 0);
    EXPECT_EQ(mFolder.Read("output"), Run({ "list" }).out);
}

TEST_F(ShownOnATerminalTest, Pager_CantBeStarted_DoesNoHarm)
{
    mRows = 2;
    for (const auto* pager : { "/nonexistent/pager", "/dev/null", "exit 127" }) {
        const auto shown = Paged(pager);
        EXPECT_THAT(shown, HasSubstr("09:00–09:05  5 min"));
        EXPECT_THAT(shown, HasSubstr("2 activities, 10 min\n"));
    }
}

TEST_F(ShownOnATerminalTest, Pager_EndsEarlyOrBadly_DoesNoHarm)
{
    std::vector<std::string> slots;
    for (int i = 1; i <= 3000; ++i) {
        slots.push_back(WordSlot(40000 + i * 10, 40010 + i * 10, std::to_string(i) + ".doc"));
    }
    WriteTracker("20061008", slots);
    ASSERT_EQ(Run({ "sync" }).status, 0);
    const auto shown = Paged("head -n 1", { "--color=never", "list", "2006-10-08" });
    EXPECT_THAT(shown, HasSubstr("\"1.doc\"\n"));
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), 1);
    EXPECT_EQ(Paged("exit 3", { "list", "2006-10-08" }), "");
    EXPECT_EQ(Paged("kill -9 $$", { "list", "2006-10-08" }), "");
}

TEST_F(ShownOnATerminalTest, Pager_CommandFails_KeepsItsStatus)
{
    mRows = 2;
    WriteTracker("20061008", { WordSlot(32400, 32700, "z.doc") });
    std::filesystem::create_directories(DataPath("tracker_granules20061007.out"));
    const auto shown = Shown({ "sync" }, { std::string("TEMPODIAL_PAGER=") + Mark }, Run({ "sync" }).status);
    EXPECT_THAT(shown, HasSubstr("created"));
}

TEST_F(ShownOnATerminalTest, Pager_ControlC_IsForThePager)
{
    mRows = 2;
    StartedProgram program(Whole({ "list" }),
        { .isOnTerminal = true, .rows = mRows, .environment = { "TEMPODIAL_PAGER=echo here; sleep 1; cat" } });
    ASSERT_TRUE(program.WaitFor("here"));
    program.Send(SIGINT);
    EXPECT_EQ(program.End(), 0);
    EXPECT_THAT(program.Shown(), HasSubstr("2 activities"));
}

}
