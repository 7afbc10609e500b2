#include "base/Text.h"
#include "cli/ReadBack.h"
#include "cli/StartedProgram.h"
#include "support/ProgramFixture.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <set>
#include <stdlib.h>
#include <unistd.h>

namespace tempodial {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

/// Captions of windows, as anybody may choose them for a page or a document that somebody else opens.
std::vector<std::string> Captions()
{
    std::string words;
    while (words.size() < 100'000) {
        words += "word <b> & \"x\" ";
    }
    // The longest come first, so that the others are what the trace holds last.
    return { words, std::string(100'000, 'x'), R"(say "it" it's `it` \ back \" \n)",
        "<script>alert(1)</script><img src=x onerror=alert(1)>", "</p></td></table></body></html><!-- ]]> -->",
        "'><svg onload=alert(1)> \" onmouseover=\"alert(1)", "&lt;b&gt; &amp; &#60;i&#62; &quot; &nbsp;", "=1+1", "+1",
        "-1", "@SUM(A1)", "\t=1", "=cmd|' /C calc'!A0", R"(=HYPERLINK("http://x.example","y"))",
        "line\r\nEND:VEVENT\r\nEND:VCALENDAR\r\nATTENDEE:mailto:a@b.example", "line\nline\rline", "a,b;c:d\\;e\\,f",
        "1\",\"2\"\r\n3,4", "delete \x7f next line \u0085 escape \u009b31m",
        "\u202Egpj.exe\u202C \u2066x\u2069 \u200Frtl \u061C", "zero\u200B width\u200D \uFEFF mark e\u0301 \U0001F600",
        "http://a.example/'onmouseover='alert(1) (https://b.example)", "javascript:alert(1) data:text/html,x",
        "--boundary\r\nContent-Type: text/html\r\n\r\n<b>", "\r\n.\r\nQUIT", "From nobody", "%s%n%x ${HOME} $(id) `id`",
        "../../etc/passwd\\..\\..", "\u2028line\u2029paragraph", "  blanks   ", "\"", "'", "None", "No Project", "[x]",
        "{\"a\": [1" };
}

/// A text as a page shows it: blanks drawn together. An escape of the text's own is shown as what it stands for.
std::string Shown(std::string text)
{
    for (const auto& [find, by] :
        std::vector<std::pair<std::string, std::string>> { { "&amp;", "&" }, { "&gt;", ">" }, { "&lt;", "<" } }) {
        text = Replace(text, find, by);
    }
    std::string shown;
    // What counts as a blank where the pages are read.
    for (const auto* blank : { "\t", "\r", "\n", "\u0085", "\u2028", "\u2029" }) {
        text = Replace(text, blank, " ");
    }
    for (const auto& word : Split(text, " ")) {
        shown += word.empty() || shown.empty() ? word : " " + word;
    }
    return shown;
}

/// A text as a spreadsheet may have it.
std::string NoFormula(const std::string& text)
{
    return !text.empty() && std::string("=+-@\t\r\n").find(text.front()) != std::string::npos ? "'" + text : text;
}

std::string WithoutControls(std::string text)
{
    text = Replace(Replace(Replace(text, "\r\n", "\n"), "\r", "\n"), "\t", " ");
    std::erase_if(text,
        [](char character) { return (character >= 0 && character < ' ' && character != '\n') || character == '\x7f'; });
    return text;
}

/// What would change how a terminal shows other things, "" when there is nothing.
std::string Harm(const std::string& shown)
{
    for (const char character : shown) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte < ' ' && character != '\n') || byte == 0x7f) {
            return "the byte " + std::to_string(int { byte });
        }
    }
    for (const auto* mark : { "\u0085", "\u009b", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C", "\u202D", "\u202E",
             "\u2066", "\u2067", "\u061C" }) {
        if (shown.find(mark) != std::string::npos) {
            return "a mark";
        }
    }
    // An isolate ends in its line.
    for (const auto& line : Split(shown, "\n")) {
        const auto begins = Split(line, "\u2068").size();
        if (begins != Split(line, "\u2069").size() || (begins > 1 && line.find("\u2069") < line.find("\u2068"))) {
            return "an isolate: " + line;
        }
    }
    return "";
}

/// All captions imported, each as a description, as an application and as a project.
class HostileContentTest : public ProgramFixture
{
protected:
    HostileContentTest()
    {
        WriteSlots(mCaptions);
        const auto counts = Json({ "sync" });
        EXPECT_EQ(counts.at("created"), mCaptions.size());
        EXPECT_EQ(Json({ "sync" }).at("created"), 0U);
    }

    void WriteSlots(const std::vector<std::string>& captions) const
    {
        std::vector<std::string> slots;
        int begin = 30000;
        for (const auto& caption : captions) {
            SlotLine slot(begin, begin + 300);
            slot.Node("AppName", caption).Node("WindowText", caption).Node("Project", caption);
            slots.push_back(slot.Text());
            begin += 300;
        }
        WriteTracker("20061010", slots);
    }
    /// Writes what a command prints into a folder of outputs.
    void Keep(const std::string& name, const Arguments& arguments) const
    {
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0) << result.error;
        std::filesystem::create_directories(mFolder.Path("outputs"));
        mFolder.Write("outputs/" + name, result.out);
    }
    nlohmann::json ReadOutputs() const
    {
        const auto text = ReadBack("cli/read_outputs.py", mFolder.Path("outputs"));
        const auto read = nlohmann::json::parse(text, nullptr, false);
        EXPECT_FALSE(read.is_discarded())
            << text.substr(0, 200) << "..." << text.substr(text.size() - std::min<std::size_t>(text.size(), 800));
        return read;
    }
    /// What a command shows on a terminal.
    std::string OnATerminal(const Arguments& arguments) const
    {
        const int terminal = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        EXPECT_TRUE(terminal >= 0 && ::grantpt(terminal) == 0 && ::unlockpt(terminal) == 0);
        std::string shown;
        {
            StartedProgram program(
                Whole(arguments), { .output = ::ptsname(terminal), .environment = { "TERM=xterm", "NO_COLOR=1" } });
            std::array<char, 65536> buffer;
            for (auto got = ::read(terminal, buffer.data(), buffer.size()); got > 0;
                 got = ::read(terminal, buffer.data(), buffer.size())) {
                shown.append(buffer.data(), static_cast<std::size_t>(got));
            }
            EXPECT_EQ(program.End(), 0);
        }
        ::close(terminal);
        return Replace(shown, "\r\n", "\n");
    }
    static std::string Quoted(const std::string& caption)
    {
        return caption == "None" ? "Various" : "\"" + caption + "\"";
    }

    std::vector<std::string> mCaptions = Captions();
};

}

TEST_F(HostileContentTest, Json_Captions_ComeBackAsTheyAre)
{
    Keep("list.json", { "list", "--json" });
    Keep("export.json", { "export", "--format", "json" });
    Keep("report.json", { "report", "--json" });
    Keep("trace.json", { "trace", "--json", "--lines", "100000" });
    Keep("projects.json", { "projects", "--json" });
    const auto read = ReadOutputs();
    const auto& list = read.at("list.json");
    ASSERT_EQ(list.size(), mCaptions.size());
    EXPECT_EQ(read.at("export.json"), list);
    for (std::size_t i = 0; i < mCaptions.size(); ++i) {
        const auto& caption = mCaptions[i];
        SCOPED_TRACE(caption.substr(0, 100));
        const auto& properties = list.at(i).at("properties");
        EXPECT_TRUE(properties.at("Description") == Quoted(caption)) << properties.at("Description");
        EXPECT_TRUE(properties.at("Type") == (caption == "None" ? "Various" : caption));
        EXPECT_THAT(list.at(i).at("subject").get<std::string>(), HasSubstr(Quoted(caption)));
    }
}

TEST_F(HostileContentTest, Csv_Captions_AreFieldsAndNoFormulas)
{
    Keep("export.csv", { "export", "--format", "csv" });
    const auto rows = ReadOutputs().at("export.csv");
    ASSERT_EQ(rows.size(), mCaptions.size());
    for (std::size_t i = 0; i < mCaptions.size(); ++i) {
        SCOPED_TRACE(mCaptions[i].substr(0, 100));
        EXPECT_EQ(rows.at(i).size(), 8U);
        EXPECT_TRUE(rows.at(i).at("description") == Quoted(mCaptions[i]));
        EXPECT_TRUE(rows.at(i).at("application") == (mCaptions[i] == "None" ? "Various" : NoFormula(mCaptions[i])));
        for (const auto& [name, value] : rows.at(i).items()) {
            const auto text = value.get<std::string>();
            EXPECT_TRUE(text.empty() || std::string("=+-@\t\r").find(text.front()) == std::string::npos) << name;
        }
    }
}

TEST_F(HostileContentTest, Calendar_Captions_AreTextsOfEvents)
{
    const auto path = mFolder.Path("a.ics");
    ASSERT_EQ(Run({ "export", "--format", "ics", "--out", path }).status, 0);
    const auto read = nlohmann::json::parse(ReadBack("cli/read_calendar.py", path));
    EXPECT_EQ(read.at("errors"), nlohmann::json::array());
    EXPECT_EQ(read.at("findings"), nlohmann::json::array());
    ASSERT_EQ(read.at("events").size(), mCaptions.size());
    const auto unfolded = Replace(mFolder.Read("a.ics"), "\r\n ", "");
    for (std::size_t i = 0; i < mCaptions.size(); ++i) {
        SCOPED_TRACE(mCaptions[i].substr(0, 100));
        const auto text = WithoutControls(Quoted(mCaptions[i]));
        auto escaped = text;
        for (const auto* mark : { "\\", ";", ",", "\n" }) {
            escaped = Replace(escaped, mark, *mark == '\n' ? "\\n" : std::string("\\") + mark);
        }
        EXPECT_TRUE(unfolded.find("\r\nX-TEMPODIAL-DESCRIPTION:" + escaped + "\r\n") != std::string::npos);
        // The reader takes an escaped backslash for the begin of another escape.
        const auto summary = read.at("events").at(i).at("SUMMARY").get<std::string>();
        EXPECT_TRUE(summary.find(text) != std::string::npos || text.find('\\') != std::string::npos)
            << summary.substr(0, 300);
    }
}

TEST_F(HostileContentTest, Html_Captions_AreShownAndAddNoMarkup)
{
    for (const auto* by : { "application", "project", "description", "date" }) {
        Keep(std::string(by) + ".html", { "report", "--by", by });
    }
    auto read = ReadOutputs();
    // A report of as many harmless captions.
    std::vector<std::string> harmless;
    for (std::size_t i = 0; i < mCaptions.size(); ++i) {
        const bool isWord = mCaptions[i] == "None" || mCaptions[i] == "No Project";
        harmless.push_back(isWord ? mCaptions[i] : "caption " + std::to_string(i));
    }
    std::filesystem::remove_all(mProfile);
    WriteSlots(harmless);
    Json({ "sync" });
    for (const auto* by : { "application", "project", "description", "date" }) {
        Keep(std::string(by) + ".html", { "report", "--by", by });
    }
    auto expected = ReadOutputs();

    for (const std::string by : { "application", "project", "description", "date" }) {
        const auto& page = read.at(by + ".html");
        EXPECT_EQ(page.at("tags"), expected.at(by + ".html").at("tags")) << by;
        for (const auto& link : page.at("links")) {
            EXPECT_TRUE(link.get<std::string>().starts_with("http")) << link;
        }
        const auto text = page.at("text").get<std::string>();
        for (const auto& caption : mCaptions) {
            // A group "None" has no name of its own, and one of blanks shows none.
            EXPECT_TRUE(text.find(Shown(caption == "None" ? "Various" : caption)) != std::string::npos)
                << by << ": " << caption.substr(0, 100);
        }
    }
    EXPECT_THAT(
        Run({ "report" }).out, HasSubstr("<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'"));
}

TEST_F(HostileContentTest, Mail_Captions_StayInTheBodyAndTheTable)
{
    std::filesystem::create_directories(mFolder.Path("outputs"));
    for (const auto& arguments : { Arguments { "report", "--out", mFolder.Path("outputs/html.eml") },
             Arguments { "report", "--text", "--out", mFolder.Path("outputs/text.eml") },
             Arguments { "problem-report", "--expected", mCaptions[3], "--actual", mCaptions[21], "--out",
                 mFolder.Path("outputs/problem.eml") } }) {
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0) << result.error;
    }
    const auto read = ReadOutputs();
    for (const auto& [name, mail] : read.items()) {
        SCOPED_TRACE(name);
        EXPECT_EQ(mail.at("defects"), nlohmann::json::array());
        EXPECT_EQ(mail.at("bare line ends"), 0);
        EXPECT_LE(mail.at("longest line"), 998);
        EXPECT_EQ(
            mail.at("headers").size(), read.at("text.eml").at("headers").size() + (name == "problem.eml" ? 1 : 0));
    }
    EXPECT_EQ(read.at("html.eml").at("types"), (nlohmann::json { "text/plain", "text/html", "text/csv" }));
    EXPECT_TRUE(read.at("html.eml").at("plain") == read.at("text.eml").at("body"));
    EXPECT_EQ(read.at("text.eml").at("types"), (nlohmann::json { "text/plain", "text/csv" }));
    const auto page = read.at("html.eml").at("page").at("text").get<std::string>();
    const auto& rows = read.at("html.eml").at("tables").at(0);
    ASSERT_EQ(rows.size(), mCaptions.size());
    for (std::size_t i = 0; i < mCaptions.size(); ++i) {
        SCOPED_TRACE(mCaptions[i].substr(0, 100));
        EXPECT_TRUE(page.find(Shown(mCaptions[i])) != std::string::npos || mCaptions[i] == "None");
        // kept: in the add-in's own table double quotes become single ones.
        EXPECT_TRUE(rows.at(i).at("Description") == Replace(Quoted(mCaptions[i]), "\"", "'"));
    }
    EXPECT_THAT(read.at("problem.eml").at("body").get<std::string>(), HasSubstr(mCaptions[3]));
}

TEST_F(HostileContentTest, Terminal_Captions_AreShownWithoutHarm)
{
    for (const auto& arguments : { Arguments { "list" }, Arguments { "report", "--text" }, Arguments { "report" },
             Arguments { "export", "--format", "csv" }, Arguments { "export", "--format", "ics" },
             Arguments { "trace", "--lines", "100000" }, Arguments { "projects" } }) {
        SCOPED_TRACE(arguments.back());
        const auto shown = OnATerminal(arguments);
        EXPECT_EQ(Harm(shown), "");
        if (arguments.front() != "projects") {
            EXPECT_THAT(shown, HasSubstr("@SUM(A1)"));
            EXPECT_THAT(shown, HasSubstr("gpj.exe"));
            // A calendar leaves a control character out; elsewhere its picture is shown.
            EXPECT_TRUE(arguments.back() == "ics" || shown.find("\u2421") != std::string::npos);
        }
    }
    Json({ "edit", "@1", "--description", mCaptions[3] });
    for (const auto& arguments :
        { Arguments { "list" }, Arguments { "trace" }, Arguments { "unassigned", "--rows", "100" },
            Arguments { "timesheet", "No Project" }, Arguments { "why", "@2" }, Arguments { "log" } }) {
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0) << result.error;
        EXPECT_EQ(Harm(result.out + result.error), "") << arguments.front();
    }
    // Each activity has its one line.
    const auto list = Run({ "list", "--quiet" }).out;
    EXPECT_GE(static_cast<std::size_t>(std::count(list.begin(), list.end(), '\n')), mCaptions.size());
}

TEST_F(HostileContentTest, Colors_Captions_AddNoSequences)
{
    for (const auto* command : { "list", "projects", "trace" }) {
        const auto plain = Run({ command }).out;
        auto drawn = Run({ command, "--color=always" }).out;
        for (const std::string begin : { "\x1b[0m", "\x1b[1m", "\x1b[2m" }) {
            drawn = Replace(drawn, begin, "");
        }
        for (auto begin = drawn.find("\x1b[38;5;"); begin != std::string::npos; begin = drawn.find("\x1b[38;5;")) {
            drawn.erase(begin, drawn.find('m', begin) - begin + 1);
        }
        EXPECT_EQ(Harm(drawn), "") << command;
        EXPECT_TRUE(drawn == plain) << command;
    }
}

TEST_F(HostileContentTest, Trace_Captions_StandInIt)
{
    std::string trace;
    for (const auto* name : { "WorkLogTrace2.out", "WorkLogTrace1.out" }) {
        trace += mFolder.Read(std::string("profile/Tempodial/") + name);
    }
    for (const auto& caption : { mCaptions[33], mCaptions[32], mCaptions[24] }) {
        EXPECT_THAT(trace, HasSubstr(caption));
    }
}

TEST_F(HostileContentTest, Projects_HostileNames_ComeBackOrAreRefused)
{
    std::set<std::string> names;
    for (const auto& caption : mCaptions) {
        const auto result = Run({ "projects", "set", "--", caption });
        ASSERT_TRUE(result.status == 0 || result.status == 1 || result.status == 2) << result.error;
        EXPECT_EQ(Harm(result.error + result.out), "");
        if (result.status == 0) {
            names.insert(caption);
        } else {
            EXPECT_THAT(result.error.substr(0, 11), "tempodial: ");
        }
    }
    EXPECT_GT(names.size(), 10U);
    std::set<std::string> found;
    for (const auto& project : Json({ "projects" })) {
        found.insert(project.at("name").get<std::string>());
    }
    for (const auto& name : names) {
        // A name is kept as XML, in which each line end is one character.
        EXPECT_TRUE(found.contains(Replace(Replace(name, "\r\n", "\n"), "\r", "\n"))) << name.substr(0, 100);
    }
}

}
