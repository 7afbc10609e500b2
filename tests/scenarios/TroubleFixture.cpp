#include "scenarios/TroubleFixture.h"

#include <sstream>

namespace tempodial {

TroubleFixture::TroubleFixture()
{
    const auto profile = mProfile;
    mProfile = mFolder.Path("undisturbed");
    WriteDays();
    const auto result = Sync();
    EXPECT_EQ(result.status, 0) << result.error;
    mExpected = StateOf(mProfile, mNow);
    EXPECT_EQ(mExpected.items.size(), 31U);
    mProfile = profile;
}

std::vector<std::string> TroubleFixture::SlotsOf(const std::string& day, int count)
{
    std::vector<std::string> slots;
    for (int i = 0; i < count; ++i) {
        const int begin = 32400 + i * 600;
        const auto document = day + " " + std::to_string(i) + ".doc";
        slots.push_back(WordSlot(begin, begin + 300, document));
        slots.push_back(WordLine(begin + 300, begin + 600, document).Continuation().Text());
        slots.push_back(WordLine(begin + 400, begin + 600, "aside of " + document).Detail().Text());
    }
    return slots;
}

void TroubleFixture::WriteDays() const
{
    WriteTracker("20061010", SlotsOf("today", 12));
    WriteTracker("20061009", SlotsOf("yesterday", 12));
    WriteTracker("20061007", SlotsOf("saturday", 7));
}

ProgramResult TroubleFixture::Sync() const
{
    return Run({ "sync", "--quiet" });
}

void TroubleFixture::ExpectTold(const ProgramResult& result)
{
    EXPECT_TRUE(result.status == 0 || result.status == 1) << result.status << ": " << result.error;
    EXPECT_EQ(result.error.empty(), result.status == 0) << result.error;
    std::istringstream lines(result.error);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_THAT(line + "\n", testing::MatchesRegex(MessageForm));
    }
}

void TroubleFixture::ExpectNextSyncCompletes() const
{
    ExpectNextSyncImportsAll();
    EXPECT_EQ(FilesOf(StateOf(mProfile, mNow)), FilesOf(mExpected));
}

void TroubleFixture::ExpectNextSyncImportsAll() const
{
    const auto result = Sync();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "");
    const auto state = StateOf(mProfile, mNow);
    EXPECT_EQ(state.items, mExpected.items);
    EXPECT_EQ(state.history, mExpected.history);
}

std::map<std::string, std::string> TroubleFixture::FilesOf(const ProfileState& state)
{
    std::map<std::string, std::string> files;
    for (const auto& [name, content] : state.trackerFiles) {
        files[name] = std::to_string(content.size()) + " bytes, " + std::to_string(std::hash<std::string>()(content));
    }
    return files;
}

}
