#include "host/files/ProgramModule.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

namespace {

using Function = void (*)();

TEST(ProgramModuleTest, PathOf_LiesBesideTheProgramsFolder)
{
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(
        ProgramModule::PathOf("a"), (program.parent_path().parent_path() / "lib" / "tempodial" / "a.so").string());
}

TEST(ProgramModuleTest, Get_AbsentModule_Fails)
{
    const ProgramModule module(ProgramModule::PathOf("absent"));
    EXPECT_EQ(FailureNumber([&] { module.Get<Function>("anything"); }), 429);
}

TEST(ProgramModuleTest, Get_AbsentFunction_Fails)
{
    const ProgramModule module(ProgramModule::PathOf("tempodial-form"));
    EXPECT_EQ(FailureNumber([&] { module.Get<Function>("TempodialAbsent"); }), 429);
    EXPECT_NE(module.Get<Function>("TempodialReadCompoundStreams"), nullptr);
}

}

}
