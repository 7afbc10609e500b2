#include "host/files/ProgramFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

TEST(ProgramFolderTest, InProgramFolder_LiesBesideTheProgramsOwn)
{
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(InProgramFolder("share/a"), (program.parent_path().parent_path() / "share" / "a").string());
}

}
