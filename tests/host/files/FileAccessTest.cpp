#include "host/files/FileAccess.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

TEST(FileAccessTest, IsOpenToOthers_AnyRightOfOthers_Counts)
{
    const TempFolder folder;
    const auto path = folder.Write("file", "x");
    for (const auto& [mode, isOpen] :
        { std::pair(0600, false), std::pair(0400, false), std::pair(0640, true), std::pair(0602, true) }) {
        std::filesystem::permissions(path, std::filesystem::perms(mode));
        EXPECT_EQ(IsOpenToOthers(NativePath::Exactly(path)), isOpen) << mode;
    }
    EXPECT_FALSE(IsOpenToOthers(NativePath::Exactly(folder.Path("absent"))));
}

TEST(FileAccessTest, FreeBytes_FolderThatIsThere_HasSome)
{
    const TempFolder folder;
    EXPECT_GT(FreeBytes(NativePath::Exactly(folder.Path())).value_or(0), 0U);
    EXPECT_FALSE(FreeBytes(NativePath::Exactly(folder.Path("absent"))).has_value());
}

}
