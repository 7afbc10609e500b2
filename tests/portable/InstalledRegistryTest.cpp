#include "portable/InstalledRegistry.h"

#include <gtest/gtest.h>

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

class InstalledRegistryTest : public testing::Test
{
protected:
    Variant Read(Hive hive, const std::string& key, const std::string& value)
    {
        return mRegistry.Read(hive, key, value, RegistryAccess::Query);
    }

    InstalledRegistry mRegistry { MakeRef<MapRegistry>(), { Key, "Install Directory" }, "/usr/share/tempodial" };
};

TEST_F(InstalledRegistryTest, InstallFolderAbsent_IsTheProgramsOwn)
{
    EXPECT_EQ(Read(Hive::LocalMachine, Key, "Install Directory"), Variant("/usr/share/tempodial"));
    EXPECT_EQ(Read(Hive::LocalMachine, R"(software\lindenfold\TEMPODIAL)", "install directory"),
        Variant("/usr/share/tempodial"));
}

TEST_F(InstalledRegistryTest, InstallFolderSet_IsThatOne)
{
    mRegistry.Write(Hive::LocalMachine, Key, "Install Directory", "/opt/templates");
    EXPECT_EQ(Read(Hive::LocalMachine, Key, "Install Directory"), Variant("/opt/templates"));
}

TEST_F(InstalledRegistryTest, OtherValues_AreNotAnswered)
{
    EXPECT_TRUE(Read(Hive::CurrentUser, Key, "Install Directory").IsEmpty());
    EXPECT_TRUE(Read(Hive::LocalMachine, "Software\\Other", "Install Directory").IsEmpty());
    EXPECT_TRUE(Read(Hive::LocalMachine, Key, "CurrentVersion").IsEmpty());
}

}
