#include "host/store/MailboxSchema.h"

#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxFile.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(MailboxSchemaTest, Migrate_RunsTheStepsThatAreMissing)
{
    MailboxDatabase database(":memory:");
    MailboxSchema::Migrate(database, { "CREATE TABLE one (id INTEGER)" });
    EXPECT_EQ(database.Number("PRAGMA user_version"), 1);
    MailboxSchema::Migrate(
        database, { "CREATE TABLE one (id INTEGER)", "CREATE TABLE two (id INTEGER)", "INSERT INTO two VALUES (7)" });
    EXPECT_EQ(database.Number("PRAGMA user_version"), 3);
    EXPECT_EQ(database.Number("SELECT id FROM two"), 7);
    EXPECT_EQ(database.Number("PRAGMA application_id"), MailboxFile::ApplicationId);
}

TEST(MailboxSchemaTest, Migrate_FailedStep_LeavesTheOldVersion)
{
    MailboxDatabase database(":memory:");
    MailboxSchema::Migrate(database, { "CREATE TABLE one (id INTEGER)" });
    EXPECT_NE(FailureNumber([&] {
        MailboxSchema::Migrate(
            database, { "CREATE TABLE one (id INTEGER)", "CREATE TABLE two (id INTEGER)", "no statement" });
    }),
        0);
    EXPECT_EQ(database.Number("PRAGMA user_version"), 1);
    EXPECT_EQ(database.Number("SELECT count(*) FROM sqlite_schema WHERE name = 'two'"), 0);
}

TEST(MailboxSchemaTest, Fingerprint_IsThatOfWhatTheStepsMake)
{
    MailboxDatabase database(":memory:");
    MailboxSchema::Migrate(database, MailboxSchema::Steps());
    EXPECT_TRUE(MailboxSchema::IsToldByFingerprint(database)) << "the schema changed: put its fingerprint in its place";
    database.Execute("CREATE TRIGGER one AFTER INSERT ON item BEGIN DELETE FROM item; END");
    EXPECT_FALSE(MailboxSchema::IsToldByFingerprint(database));
}

TEST(MailboxSchemaTest, Migrate_NewerVersion_IsRefused)
{
    MailboxDatabase database(":memory:");
    database.Execute("PRAGMA user_version = 2");
    EXPECT_THROW(MailboxSchema::Migrate(database, { "CREATE TABLE one (id INTEGER)" }), MailboxError);
}

}
