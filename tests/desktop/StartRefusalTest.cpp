#include "desktop/StartRefusal.h"

#include "base/Failure.h"
#include "session/ProfileError.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;

StartRefusal RefusalOf(const std::exception& failure)
{
    return { failure, { .profile = "/home/ann's/log" } };
}

}

TEST(StartRefusalTest, DamagedProfile_NamesWhatLooksAndWhatRestores)
{
    const auto refusal = RefusalOf(ProfileError("the mailbox /log/mailbox.db isn't a mailbox: move it away"));
    EXPECT_EQ(refusal.reason, "The mailbox /log/mailbox.db isn't a mailbox: move it away.");
    EXPECT_EQ(refusal.remedy,
        "Nothing was changed. See to it and try again. In a terminal, \"tempodial --profile '/home/ann'\\''s/log' "
        "doctor\" tells all that is wrong, and \"tempodial --profile '/home/ann'\\''s/log' restore --replace FILE\" "
        "brings a backup back and keeps what is there beside it.");
    EXPECT_THAT(StartRefusal(ProfileError("a"), {}).remedy, HasSubstr("\"tempodial doctor\""));
}

TEST(StartRefusalTest, ProfileInUse_IsNothingToRestore)
{
    const auto refusal = RefusalOf(ProfileInUse("the profile /log is in use by tempodial (process 7): wait"));
    EXPECT_EQ(refusal.reason, "The profile /log is in use by tempodial (process 7): wait.");
    EXPECT_THAT(refusal.remedy, HasSubstr("When that program has ended, try again"));
    EXPECT_THAT(refusal.remedy, Not(HasSubstr("restore")));
}

TEST(StartRefusalTest, FullDisk_SaysWhereRoomIsWanted)
{
    EXPECT_THAT(RefusalOf(Failure(Error::DiskFull)).reason, HasSubstr("make room on the disk of /home/ann's/log"));
}

}
