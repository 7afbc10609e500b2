#include "session/ProgramRegistry.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>

namespace tempodial {

namespace {

constexpr auto Key = R"(Software\Lindenfold\Tempodial)";

class MapRegistry final : public Registry
{
public:
    Variant Read(Hive, const std::string&, const std::string& value, RegistryAccess) override
    {
        const auto found = mValues.find(value);
        return found == mValues.end() ? Variant() : Variant(found->second);
    }
    void Write(Hive, const std::string&, const std::string& value, const std::string& text) override
    {
        mValues[value] = text;
    }

private:
    std::map<std::string, std::string> mValues;
};

}

class ProgramRegistryTest : public testing::Test
{
protected:
    Variant Read(Hive hive, const std::string& key, const std::string& value)
    {
        return mRegistry.Read(hive, key, value, RegistryAccess::Query);
    }

    ProgramRegistry mRegistry { MakeRef<MapRegistry>(), "/usr/share/tempodial" };
};

TEST_F(ProgramRegistryTest, InstallFolderAbsent_IsTheProgramsOwn)
{
    EXPECT_EQ(Read(Hive::LocalMachine, Key, "Install Directory"), Variant("/usr/share/tempodial"));
    EXPECT_EQ(Read(Hive::LocalMachine, R"(software\lindenfold\TEMPODIAL)", "install directory"),
        Variant("/usr/share/tempodial"));
}

TEST_F(ProgramRegistryTest, InstallFolderSet_IsThatOne)
{
    mRegistry.Write(Hive::LocalMachine, Key, "Install Directory", "/opt/templates");
    EXPECT_EQ(Read(Hive::LocalMachine, Key, "Install Directory"), Variant("/opt/templates"));
}

TEST_F(ProgramRegistryTest, OtherValues_AreNotAnswered)
{
    EXPECT_TRUE(Read(Hive::CurrentUser, Key, "Install Directory").IsEmpty());
    EXPECT_TRUE(Read(Hive::LocalMachine, "Software\\Other", "Install Directory").IsEmpty());
    EXPECT_TRUE(Read(Hive::LocalMachine, Key, "CurrentVersion").IsEmpty());
}

TEST_F(ProgramRegistryTest, FolderOfThisProgram_LiesBesideItsOwn)
{
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_EQ(
        ProgramRegistry::FolderOfThisProgram(), (program.parent_path().parent_path() / "share" / "tempodial").string());
}

}
