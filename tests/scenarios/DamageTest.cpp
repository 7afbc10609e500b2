#include "host/store/MailboxDatabase.h"
#include "host/store/StoreItem.h"
#include "scenarios/ProfileState.h"
#include "session/OpenProfile.h"
#include "session/WorkLogFolder.h"
#include "support/ProgramFixture.h"
#include "support/TestDatabase.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tempodial {

namespace {

using testing::HasSubstr;

/// A log of four weeks, too large to be looked over at each opening, of which something is damaged in the middle.
class DamageTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        WriteTracker("20061010", { WordSlot(32400, 32700, "a.doc"), WordSlot(32700, 33000, "b.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
        const Profile profile(mProfile, "en_US", std::nullopt);
        const auto log = WorkLogOf(profile);
        const auto mailbox = profile.Mailbox();
        const auto model = mailbox->Stored(mailbox->ItemById(log->Items()->Item(1)->EntryID()));
        TestDatabase(mailbox).Atomically([&] {
            for (int i = 0; i < Added; ++i) {
                auto data = model;
                data.subject = "large " + std::to_string(i);
                data.start = model.start.AddDays(-28).AddMinutes(60 * i);
                data.end = data.start.AddMinutes(5);
                data.body = std::string(4000, 'x');
                mailbox->NewItem(log, data)->Save();
            }
        });
    }

    std::string Mailbox() const { return ContentOf(mProfile + "/mailbox.db"); }
    /// Takes the content of the pages that hold the middle of the activities.
    void DamagePages() const
    {
        auto content = Mailbox();
        constexpr std::size_t Page = 4096;
        constexpr std::size_t Pages = 40;
        const auto at = content.find("large " + std::to_string(Added / 2));
        ASSERT_NE(at, std::string::npos);
        const auto first = at / Page * Page;
        content.replace(first, Pages * Page, std::string(Pages * Page, '\xee'));
        std::ofstream(mProfile + "/mailbox.db", std::ios::binary) << content;
    }
    /// Takes the sense of the user properties of one activity.
    void DamageProperties() const
    {
        MailboxDatabase database(mProfile + "/mailbox.db");
        database.Trust();
        database.Execute("UPDATE item SET properties = substr(properties, 1, 40) WHERE subject = 'large "
            + std::to_string(Added / 2) + "'");
    }
    /// Each command that meets the damage is refused, and nothing is written.
    void ExpectRefused() const
    {
        const auto before = Mailbox();
        const auto registry = mFolder.Read("profile/registry.toml");
        const auto out = mFolder.Path("out.csv");
        const Arguments span { "--from", "2006-09-01", "--to", "2006-10-10" };
        for (auto arguments : { Arguments { "list" }, Arguments { "list", "--json" },
                 Arguments { "export", "--format", "csv" }, Arguments { "export", "--out", out },
                 Arguments { "report", "--text" }, Arguments { "report", "--json" },
                 Arguments { "report", "--out", out }, Arguments { "assign", "Wish", "--overwrite" } }) {
            if (arguments.front() == "assign") {
                arguments.insert(arguments.end(), { "--from", "2006-09-01T00:00", "--to", "2006-10-10T23:00" });
            } else {
                arguments.insert(arguments.end(), span.begin(), span.end());
            }
            SCOPED_TRACE(testing::PrintToString(arguments));
            EXPECT_THAT(Refusal(arguments, 1), HasSubstr("mailbox " + mProfile + "/mailbox.db is damaged"));
            EXPECT_FALSE(mFolder.Has("out.csv"));
            EXPECT_TRUE(Mailbox() == before);
            EXPECT_EQ(mFolder.Read("profile/registry.toml"), registry);
        }
    }

    static constexpr int Added = 640;
};

}

TEST_F(DamageTest, Commands_DamagedPages_GiveNoAnswerAndWriteNothing)
{
    DamagePages();
    ExpectRefused();
}

TEST_F(DamageTest, Commands_DamagedProperties_GiveNoAnswerAndWriteNothing)
{
    DamageProperties();
    ExpectRefused();
}

TEST_F(DamageTest, Sync_DamagedMemoryOfLines_TakesNoLine)
{
    {
        MailboxDatabase database(mProfile + "/mailbox.db");
        database.Trust();
        database.Execute("UPDATE import_line SET hashes = x'0102'");
    }
    const auto before = Mailbox();
    const auto history = mFolder.Read("profile/Tempodial/TempodialHistory.out");
    WriteTracker("20061010",
        { WordSlot(32400, 32700, "a.doc"), WordSlot(32700, 33000, "b.doc"), WordSlot(33000, 33300, "c.doc") });
    EXPECT_THAT(Refusal({ "sync" }, 1), HasSubstr("is damaged"));
    EXPECT_TRUE(Mailbox() == before);
    EXPECT_EQ(mFolder.Read("profile/Tempodial/TempodialHistory.out"), history);
}

TEST_F(DamageTest, Commands_AnyLackOfMemory_GiveAllOrNothing)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the sanitizer needs more memory than there is";
#endif
    constexpr rlim_t Step = 3 << 20;
    constexpr rlim_t Most = 1 << 30;
    const auto out = mFolder.Path("out.csv");
    // With less the system can't load it, or gives it no stack to say so.
    constexpr rlim_t Room = 1 << 20;
    rlim_t least = 24 << 20;
    while (least < Most && RunTempodialWith({ .memory = least }, { "--version" }).status != 0) {
        least += Room;
    }
    least += Room;
    for (const auto& arguments : { Arguments { "list", "--json", "2006" }, Arguments { "report", "--text", "2006" },
             Arguments { "export", "2006", "--out", out },
             Arguments { "assign", "Wish", "--from", "2006-09-01T00:00", "--to", "2006-10-10T23:00" } }) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        std::filesystem::remove(out);
        const auto whole = Run({ "list", "--json", "2006" }).out;
        int refused = 0;
        bool isDone = false;
        for (auto memory = least; memory < Most && !isDone; memory += Step) {
            SCOPED_TRACE(memory >> 20);
            const auto result = RunTempodialWith({ .memory = memory }, Whole(arguments));
            isDone = result.status == 0;
            ASSERT_TRUE(isDone || result.status == 1) << result.status << result.error;
            if (!isDone) {
                ++refused;
                EXPECT_EQ(result.out, "");
                EXPECT_NE(result.error, "");
                EXPECT_FALSE(mFolder.Has("out.csv"));
                EXPECT_EQ(Run({ "list", "--json", "2006" }).out, whole) << "nothing was written";
            } else if (arguments.front() == "list") {
                EXPECT_EQ(result.out, whole);
            } else if (arguments.front() == "report") {
                EXPECT_EQ(result.out, Run(arguments).out);
            }
        }
        EXPECT_TRUE(isDone);
        EXPECT_GT(refused, 0);
    }
}

}
