#include "support/ProgramFixture.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace tempodial {

using testing::HasSubstr;

namespace {

class SettingsCommandTest : public ProgramFixture
{
protected:
    std::string Value(const std::string& name) const
    {
        for (const auto& setting : nlohmann::json::parse(Run({ "settings", "--json" }).out)) {
            if (setting.at("name") == name) {
                return setting.at("value");
            }
        }
        return "no setting";
    }
    /// What a problem report is addressed to.
    std::string Address() const
    {
        const auto mail = mFolder.Path("problem.eml");
        EXPECT_EQ(Run({ "problem-report", "--expected", "a", "--actual", "b", "--out", mail }).status, 0);
        return mFolder.Read("problem.eml");
    }
};

}

TEST_F(SettingsCommandTest, Settings_NoProfile_AreTheUsualOnes)
{
    const auto result = Run({ "settings", "--json" });
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.error, "tempodial: no profile at " + mProfile + " yet\n");
    EXPECT_FALSE(std::filesystem::exists(mProfile));
    std::vector<std::string> names;
    for (const auto& setting : nlohmann::json::parse(result.out)) {
        names.push_back(setting.at("name").get<std::string>() + "=" + setting.at("value").get<std::string>());
        EXPECT_EQ(setting.at("value"), setting.at("default"));
        EXPECT_NE(setting.at("meaning"), "");
        EXPECT_EQ(setting.size(), 4U);
    }
    EXPECT_THAT(names,
        testing::ElementsAre("work-week=Mon-Fri 08:00-17:00", "support-address=support@tempodial.example",
            "retention=22", "week-start=locale", "author="));
}

TEST_F(SettingsCommandTest, Set_GoodValues_AreShown)
{
    const std::vector<std::array<std::string, 3>> values {
        { "work-week", "Mon-Fri 09:00-17:30", "Mon-Fri 09:00-17:30" },
        { "work-week", "sun-thu 00:00-24:00", "Sun-Thu 00:00-24:00" },
        { "work-week", "Mon,Wed,Thu 08:00-12:00", "Mon,Wed-Thu 08:00-12:00" },
        { "work-week", "Mon-Sun 08:00-17:00", "Mon-Sun 08:00-17:00" },
        { "work-week", "Fri-Mon 08:00-17:00", "Fri-Mon 08:00-17:00" },
        { "work-week", "Sun 08:00-17:00", "Sun 08:00-17:00" },
        { "support-address", "help@example.org", "help@example.org" }, { "retention", "1", "1" },
        { "retention", "36500", "36500" }, { "retention", "forever", "forever" }, { "week-start", "monday", "monday" },
        { "week-start", "locale", "locale" }, { "author", "Änn \"B\" Berger", "Änn \"B\" Berger" }, { "author", "", "" }
    };
    for (const auto& [name, value, shown] : values) {
        const auto answer = Json({ "settings", "set", name, value });
        EXPECT_EQ(answer.at("name"), name);
        EXPECT_EQ(answer.at("value"), shown);
        EXPECT_EQ(Value(name), shown);
    }
    EXPECT_EQ(Json({ "log" }).size(), 0U) << "a setting is no step";
}

TEST_F(SettingsCommandTest, Set_UsualValue_IsNotKept)
{
    Json({ "settings", "set", "retention", "30" });
    Json({ "settings", "set", "work-week", "Sat 10:00-12:00" });
    Json({ "settings", "set", "retention", "22" });
    Json({ "settings", "set", "work-week", "Mon-Fri 08:00-17:00" });
    const auto registry = mFolder.Read("profile/registry.toml");
    EXPECT_THAT(registry, testing::Not(HasSubstr("Retention")));
    EXPECT_THAT(registry, testing::Not(HasSubstr("CalDefStart")));
}

TEST_F(SettingsCommandTest, Set_BadValues_AreRefusedAndMakeNoProfile)
{
    const std::vector<std::pair<std::string, std::string>> values { { "work-week", "" }, { "work-week", "Mon-Fri" },
        { "work-week", "Mon-Fri 09:00" }, { "work-week", "Mon-Fri 17:00-09:00" }, { "work-week", "Mon-Fri 9-17" },
        { "work-week", "Mon-Fri 09:00-24:01" }, { "work-week", "Mon-Fri 09:60-17:00" },
        { "work-week", "Mon-Tue-Wed 09:00-17:00" }, { "work-week", "Mon,,Tue 09:00-17:00" },
        { "work-week", "Mox 09:00-17:00" }, { "work-week", "Mon 09:00-17:00 x" }, { "work-week", "Mon 09.00-17.00" },
        { "support-address", "" }, { "support-address", "nobody" }, { "support-address", "@example.org" },
        { "support-address", "a@" }, { "support-address", "a@b@c" }, { "support-address", "a b@example.org" },
        { "support-address", "a@example.org\r\nBcc: b@example.org" }, { "retention", "" }, { "retention", "0" },
        { "retention", "36501" }, { "retention", "1.5" }, { "retention", "never" }, { "retention", "99999999999" },
        { "week-start", "" }, { "week-start", "Monday" }, { "week-start", "someday" }, { "author", "a\nb" },
        { "author", std::string(201, 'a') } };
    for (const auto& [name, value] : values) {
        EXPECT_THAT(Refusal({ "settings", "set", name, value }, 2), HasSubstr(name + " can't be ")) << value;
    }
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

TEST_F(SettingsCommandTest, Set_UnknownName_NamesTheNearest)
{
    EXPECT_THAT(Refusal({ "settings", "set", "week-strat", "monday" }, 2), HasSubstr("\"week-start\""));
    Refusal({ "settings", "set", "colour", "blue" }, 2);
    Refusal({ "settings", "set", "author" }, 2);
}

TEST_F(SettingsCommandTest, Settings_WrittenByHandAndUnusable_AreTheUsualOnes)
{
    std::filesystem::create_directories(mProfile);
    std::ofstream(mProfile + "/registry.toml") << "[HKCU.\"Software\\\\Lindenfold\\\\Tempodial\"]\n"
                                                  "Retention = \"soon\"\n\"Week Start\" = \"x\"\n"
                                                  "[HKCU.\"Software\\\\Microsoft\\\\Office\\\\16.0\\\\Outlook\\\\"
                                                  "Options\\\\Calendar\"]\nCalDefStart = \"600\"\nWorkDay = \"x\"\n";
    EXPECT_EQ(Value("retention"), "22");
    EXPECT_EQ(Value("week-start"), "locale");
    EXPECT_EQ(Value("work-week"), "Mon-Fri 10:00-17:00");
}

TEST_F(SettingsCommandTest, WorkWeek_Set_IsWhatReportsGoBy)
{
    WriteTracker("20061010", { WordSlot(32400, 33000, "morning.doc"), WordSlot(54000, 54600, "afternoon.doc") });
    EXPECT_EQ(Run({ "sync" }).status, 0);
    Json({ "settings", "set", "work-week", "Tue 14:00-16:00" });
    const auto text = Run({ "report", "--text", "--work-week" }).out;
    EXPECT_THAT(text, HasSubstr("afternoon.doc"));
    EXPECT_THAT(text, testing::Not(HasSubstr("morning.doc")));
    Json({ "settings", "set", "work-week", "Wed 00:00-24:00" });
    EXPECT_THAT(Run({ "report", "--text", "--work-week" }).out, testing::Not(HasSubstr("afternoon.doc")));
}

TEST_F(SettingsCommandTest, SupportAddress_Set_IsWhereProblemReportsGo)
{
    EXPECT_THAT(Address(), HasSubstr("support@tempodial.example"));
    Json({ "settings", "set", "support-address", "help@example.org" });
    EXPECT_THAT(Address(), HasSubstr("To: help@example.org"));
    EXPECT_THAT(Address(), testing::Not(HasSubstr("support@tempodial.example")));
}

TEST_F(SettingsCommandTest, Retention_Set_IsHowLongImportedFilesAreKept)
{
    // Files are made in this moment, so the clock of the runs goes far ahead of it.
    mNow = "2037-01-10T17:00:00";
    const auto isKept = [&](const std::string& retention) {
        Json({ "settings", "set", "retention", "forever" });
        WriteTracker("20370110", { WordSlot(32400, 33000, "a.doc") });
        EXPECT_EQ(Run({ "sync" }).status, 0);
        EXPECT_TRUE(std::filesystem::exists(DataPath("tracker_granules20370110.out")));
        Json({ "settings", "set", "retention", retention });
        EXPECT_EQ(Run({ "sync" }).status, 0);
        return std::filesystem::exists(DataPath("tracker_granules20370110.out"));
    };
    EXPECT_TRUE(isKept("forever"));
    EXPECT_TRUE(isKept("36500"));
    EXPECT_FALSE(isKept("22"));
    EXPECT_FALSE(isKept("1"));
    EXPECT_FALSE(std::filesystem::exists(DataPath("kept"))) << "it was imported as a whole";
}

}
