#include "host/files/SystemFailure.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tempodial {

TEST(SystemFailureTest, ErrorNumber_GivesFailureAndReason)
{
    const SystemFailure full(ENOSPC);
    EXPECT_TRUE(full.Is(Error::DiskFull));
    EXPECT_EQ(full.Description(), "Disk full");
    EXPECT_EQ(full.Reason(), "No space left on device");
    EXPECT_FALSE(full.IsAbsence());
    EXPECT_TRUE(SystemFailure(EIO).Is(Error::DeviceError));
    EXPECT_TRUE(SystemFailure(ELOOP).Is(Error::PermissionDenied));
}

TEST(SystemFailureTest, OtherMeaning_KeepsTheReason)
{
    const SystemFailure absent(ENOENT, Error::PathNotFound);
    EXPECT_TRUE(absent.Is(Error::PathNotFound));
    EXPECT_TRUE(absent.IsAbsence());
    EXPECT_EQ(absent.Reason(), "No such file or directory");
}

}
