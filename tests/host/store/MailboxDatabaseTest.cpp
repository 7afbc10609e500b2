#include "host/store/MailboxDatabase.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(MailboxDatabaseTest, Execute_TriggersAndViewsOfAFile_NeverRun)
{
    MailboxDatabase database(":memory:");
    database.Execute("CREATE TABLE one (id INTEGER); CREATE VIEW planted AS SELECT 7 AS id;"
                     "CREATE TRIGGER trap AFTER INSERT ON one BEGIN DELETE FROM one; END");
    database.Execute("INSERT INTO one VALUES (1)");
    EXPECT_EQ(database.Number("SELECT count(*) FROM one"), 1);
    EXPECT_NE(FailureNumber([&] { database.Number("SELECT id FROM planted"); }), 0);
}

}
