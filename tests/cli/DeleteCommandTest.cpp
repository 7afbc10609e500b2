#include "cli/CorrectionFixture.h"

namespace tempodial {

namespace {

class DeleteCommandTest : public CorrectionFixture
{
};

}

TEST_F(DeleteCommandTest, Delete_Several_AreGone)
{
    EXPECT_EQ(Json({ "delete", "@1", "@3", "@1" }), (nlohmann::json { { "deleted", 2 } }));
    EXPECT_EQ(Json({ "list" }).size(), 1U);
    EXPECT_EQ(Run({ "sync" }).status, 0);
    EXPECT_EQ(Json({ "list" }).size(), 1U) << "their lines were taken";
}

TEST_F(DeleteCommandTest, Delete_UnknownNumber_DeletesNone)
{
    Refusal({ "delete", "@1", "@9" }, 1);
    Refusal({ "delete" }, 2);
    EXPECT_EQ(Json({ "list" }).size(), 3U);
}

}
