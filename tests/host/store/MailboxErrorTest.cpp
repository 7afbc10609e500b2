#include "host/store/MailboxError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace tempodial {

using testing::EndsWith;
using testing::HasSubstr;

TEST(MailboxErrorTest, Of_FullDisk_AsksForRoomAndNotForACopy)
{
    const std::string full = MailboxError::Of("a/mailbox.db", Failure(Error::DiskFull)).what();
    EXPECT_THAT(full, HasSubstr("a/mailbox.db"));
    EXPECT_THAT(full, EndsWith(": make room on the disk and run the command again"));
    EXPECT_THAT(MailboxError::Of("a/mailbox.db", Failure(Error::DeviceError)).what(), HasSubstr("put a good copy"));
}

}
