#include "base/Text.h"
#include "scenarios/ProfileState.h"
#include "support/Program.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

const fs::path Scenarios = fs::path(TEMPODIAL_SOURCE_DIR) / "tests/scenarios/data";

/// The words of a line: blanks part them, double quotes hold them together.
std::vector<std::string> WordsOf(const std::string& line)
{
    std::vector<std::string> words;
    std::istringstream stream(line);
    std::string word;
    while (stream >> std::quoted(word)) {
        words.push_back(word);
    }
    return words;
}

/// A text without what differs from run to run: folders, identities, and the thread and moment of a trace line.
std::string Masked(std::string text, const fs::path& profile)
{
    static const std::regex identity("[0-9a-f]{24,}");
    static const std::regex stamp("(^|\n)[0-9]+ [0-9]+/[0-9]+/[0-9]{4} [0-9]+:[0-9]{2}:[0-9]{2} [AP]M: ");
    static const std::regex install("[^ \r\n]*share/tempodial");
    static const std::regex synced("last synced: [^\r\n]*");
    text = Replace(text, profile.string(), "PROFILE");
    text = std::regex_replace(text, identity, "IDENTITY");
    text = std::regex_replace(text, install, "INSTALL");
    text = std::regex_replace(text, synced, "last synced: MOMENT");
    return std::regex_replace(text, stamp, "$1");
}

std::string RunAll(const fs::path& scenario, const fs::path& profile)
{
    std::ostringstream output;
    std::ifstream commands(scenario / "commands");
    for (std::string line; std::getline(commands, line);) {
        std::vector<std::string> arguments { "--profile", profile.string(), "--locale", "en_US" };
        const auto words = WordsOf(line);
        arguments.insert(arguments.end(), words.begin(), words.end());
        const auto result = RunTempodial(arguments);
        output << "$ tempodial " << line << "\n"
               << result.out << result.error << "exit status " << result.status << "\n\n";
    }
    return output.str();
}

std::string FileNames(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    std::string list;
    for (const auto& name : names) {
        list += name + "\n";
    }
    return list;
}

/// Compares a text with the file that holds what is expected. With TEMPODIAL_ACCEPT set the file is written instead,
/// to be read before it is committed.
void ExpectAsKept(const fs::path& file, const std::string& text)
{
    if (std::getenv("TEMPODIAL_ACCEPT")) {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }
    EXPECT_EQ(text, ContentOf(file)) << file.filename();
}

std::vector<std::string> ScenarioNames()
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Scenarios)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

}

class ScenarioTest : public testing::TestWithParam<std::string>
{
};

TEST_P(ScenarioTest, WholeDay_EndsAsKept)
{
    const TempFolder folder;
    const auto scenario = Scenarios / GetParam();
    const auto profile = fs::path(folder.Path()) / "profile";
    fs::create_directories(profile);
    fs::copy(scenario / "files", profile / "Tempodial");

    const auto output = RunAll(scenario, profile);

    ExpectAsKept(scenario / "expected/output", Masked(output, profile));
    ExpectAsKept(scenario / "expected/history", ContentOf(profile / "Tempodial/TempodialHistory.out"));
    ExpectAsKept(scenario / "expected/files", FileNames(profile / "Tempodial"));
    ExpectAsKept(scenario / "expected/trace",
        Masked(Replace(ContentOf(profile / "Tempodial/WorkLogTrace1.out"), "\r\n", "\n"), profile));
}

INSTANTIATE_TEST_SUITE_P(
    Days, ScenarioTest, testing::ValuesIn(ScenarioNames()), [](const auto& name) { return name.param; });

}
