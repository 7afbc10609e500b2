#include "support/ProgramFixture.h"

#include <fstream>

namespace tempodial {

namespace {

using testing::HasSubstr;

class RegistryCommandTest : public ProgramFixture
{
protected:
    static nlohmann::json Text(const std::string& text) { return { { "text", text } }; }
};

}

TEST_F(RegistryCommandTest, Set_Value_ComesBackInAnyCase)
{
    EXPECT_EQ(Json({ "registry", "set", "HKCU", "", "A Value", "Größe \"1\"" }), Text("Größe \"1\""));
    EXPECT_EQ(Json({ "registry", "get", "HKCU", "", "A Value" }), Text("Größe \"1\""));
    EXPECT_EQ(Json({ "registry", "get", "hkcu", "software\\lindenfold\\TEMPODIAL", "a value" }), Text("Größe \"1\""));
    EXPECT_EQ(Run({ "registry", "get", "HKCU", "", "A Value" }).out, "Größe \"1\"\n");
    Refusal({ "registry", "get", "HKLM", "", "A Value" }, 1);
}

TEST_F(RegistryCommandTest, Set_OtherKeyAndEmptyText_AreKept)
{
    EXPECT_EQ(Json({ "registry", "set", "HKLM", "Software\\Other", "A", "" }), Text(""));
    EXPECT_EQ(Json({ "registry", "get", "HKLM", "Software\\Other", "A" }), Text(""));
}

TEST_F(RegistryCommandTest, Get_Number_IsOne)
{
    std::filesystem::create_directories(mProfile);
    std::ofstream(mProfile + "/registry.toml") << "[HKCU.'Software\\Other']\nA = -480\n";
    EXPECT_EQ(Json({ "registry", "get", "HKCU", "Software\\Other", "A" }), (nlohmann::json { { "number", -480 } }));
    EXPECT_EQ(Run({ "registry", "get", "HKCU", "Software\\Other", "A" }).out, "-480\n");
}

TEST_F(RegistryCommandTest, Delete_Value_AnswersWhatItWas)
{
    Json({ "registry", "set", "HKCU", "", "A", "b" });
    EXPECT_EQ(Json({ "registry", "delete", "HKCU", "", "A" }), Text("b"));
    EXPECT_THAT(Refusal({ "registry", "get", "HKCU", "", "A" }, 1), HasSubstr("there is no value \"A\""));
    EXPECT_THAT(Refusal({ "registry", "delete", "HKCU", "", "A" }, 1), HasSubstr("there is no value \"A\""));
}

TEST_F(RegistryCommandTest, Get_AbsentValue_MakesNoKey)
{
    Json({ "registry", "set", "HKCU", "", "A", "a" });
    Refusal({ "registry", "get", "HKCU", "Software\\Absent", "A" }, 1);
    Json({ "registry", "set", "HKCU", "", "A", "b" });
    EXPECT_THAT(mFolder.Read("profile/registry.toml"), testing::Not(HasSubstr("Absent")));
}

TEST_F(RegistryCommandTest, BadArguments_AreUsageErrors)
{
    for (const auto& arguments : { Arguments {}, Arguments { "get" }, Arguments { "get", "HKCU", "" },
             Arguments { "get", "HKCU", "", "A", "b" }, Arguments { "set", "HKCU", "", "A" },
             Arguments { "delete", "HKCU", "", "A", "b" }, Arguments { "read", "HKCU", "", "A" },
             Arguments { "get", "HKCR", "", "A" }, Arguments { "set", "HKCU", "", "A", "b", "c" } }) {
        Arguments whole { "registry" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        Refusal(whole, 2);
    }
    EXPECT_FALSE(std::filesystem::exists(mProfile));
}

}
