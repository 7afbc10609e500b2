#include "host/files/FileLock.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace tempodial {

namespace {

TEST(FileLockTest, Try_NobodyHoldsIt_IsTakenAndTheFileIsThere)
{
    const TempFolder folder;
    const FileLock lock(NativePath::Exactly(folder.Path("lock")));
    EXPECT_TRUE(lock.Try());
    EXPECT_TRUE(folder.Has("lock"));
}

TEST(FileLockTest, Try_AnotherHoldsIt_IsRefusedUntilThatHasEnded)
{
    const TempFolder folder;
    const auto path = NativePath::Exactly(folder.Path("lock"));
    std::optional<FileLock> first(path);
    ASSERT_TRUE(first->Try());
    const FileLock second(path);
    EXPECT_FALSE(second.Try());
    first.reset();
    EXPECT_TRUE(second.Try());
}

TEST(FileLockTest, Try_ItsProcessHasEnded_IsTaken)
{
    const TempFolder folder;
    const auto path = NativePath::Exactly(folder.Path("lock"));
    const auto child = ::fork();
    if (child == 0) {
        const FileLock lock(path);
        std::_Exit(lock.Try() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(status, 0);
    EXPECT_TRUE(FileLock(path).Try());
}

}

}
