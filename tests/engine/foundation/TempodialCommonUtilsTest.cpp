#include "engine/foundation/TempodialCommonUtils.h"

#include "engine/core/ProductWords.h"
#include "engine/foundation/TempodialWin32APICalls.h"
#include "support/MapRegistry.h"
#include "support/TraceFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto PolicyKey = R"(Software\Policies\Microsoft\Security)";
constexpr auto Popups = "Outlook Security Popups";

}

class TempodialCommonUtilsTest : public TraceFixture
{
protected:
    TempodialCommonUtilsTest()
    {
        auto platform = MakeRef<Platform>(*mPlatform);
        platform->registry = mRegistry;
        mUtils = MakeRef<TempodialCommonUtils>(platform);
        Initialize("11.0.0.8010");
    }

    void Initialize(const std::string& version) { mUtils->Initialize(mLog, "Data", version); }
    void SetPopups(const Variant& value) { mRegistry->values[{ Hive::LocalMachine, ProductKey, Popups }] = value; }
    void SetPolicy(const Variant& value)
    {
        mRegistry->values[{ Hive::CurrentUser, PolicyKey, "CheckAdminSettings" }] = value;
    }

    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    Ref<TempodialCommonUtils> mUtils;
};

TEST_F(TempodialCommonUtilsTest, GetDataFolderName_FolderIsAbsent_MakesIt)
{
    EXPECT_FALSE(mFolder.Has("Data"));
    EXPECT_EQ(mUtils->GetDataFolderName(), mFolder.Path("Data"));
    EXPECT_TRUE(mFolder.Has("Data"));
    EXPECT_EQ(mUtils->GetDataFolderName(), mFolder.Path("Data"));
}

TEST_F(TempodialCommonUtilsTest, GetDataFilePath_FreshMachine_MakesTheFolder)
{
    EXPECT_EQ(mUtils->GetDataFilePath("any.out"), mFolder.Path("Data/any.out"));
    EXPECT_TRUE(mFolder.Has("Data"));
    EXPECT_FALSE(mFolder.Has("Data/any.out"));
}

TEST_F(TempodialCommonUtilsTest, GetDataFolder_HasItsFiles)
{
    mUtils->GetDataFolderName();
    mFolder.Write("Data/b.out", "12345");
    mFolder.Write("Data/a.out", "");
    const auto folder = mUtils->GetDataFolder();
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->path, mFolder.Path("Data"));
    ASSERT_EQ(folder->files.size(), 2);
    EXPECT_EQ(folder->files[0].name, "a.out");
    EXPECT_EQ(folder->files[1].size, 5);
}

TEST_F(TempodialCommonUtilsTest, GetDataFolder_CannotBeHad_IsNothingWithoutALine)
{
    mFolder.Write("Data", "a file stands where the folder should");
    EXPECT_FALSE(mUtils->GetDataFolder());
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialCommonUtilsTest, Initialize_Again_LooksTheFolderUpAnew)
{
    mUtils->GetDataFolderName();
    mUtils->Initialize(mLog, "Other", "11.0");
    EXPECT_EQ(mUtils->GetDataFolderName(), mFolder.Path("Other"));
}

TEST_F(TempodialCommonUtilsTest, OpenDataFile_EachMode_ReadsWritesAndAppends)
{
    auto stream = mUtils->OpenDataFile("any.out", true, OpenMode::Writing);
    stream->Write("one");
    stream->Close();
    stream = mUtils->OpenDataFile("any.out", false, OpenMode::Appending);
    stream->Write("two");
    stream->Close();
    EXPECT_EQ(mUtils->OpenDataFile("any.out", false, OpenMode::Reading)->ReadAll(), "onetwo");
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialCommonUtilsTest, OpenDataFile_FileIsAbsent_IsNothingWithALine)
{
    EXPECT_FALSE(mUtils->OpenDataFile("any.out", false, OpenMode::Reading));
    EXPECT_THAT(Traced(), ElementsAre("TempodialCommonUtils OpenDataFile error File not found OpenTextFile"));
}

TEST_F(TempodialCommonUtilsTest, Terminate_TracesAndLetsGo)
{
    mUtils->GetDataFolderName();
    mUtils->Terminate();
    EXPECT_THAT(Traced(), ElementsAre("TempodialCommonUtils terminate common utils"));
    EXPECT_EQ(mUtils->GetDataFilePath("any.out"), "");
    // A second time there is no log any more.
    mUtils->Terminate();
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_RegistryWord_SettlesIt)
{
    SetPopups("true");
    EXPECT_TRUE(mUtils->EmailObjectGuardInPlace());
    EXPECT_THAT(Traced(), ElementsAre("TempodialCommonUtils Popups says reg"));
    EXPECT_EQ(mRegistry->lastAccess, RegistryAccess::All);

    // A "false" skips all other tests.
    Initialize("10.0");
    SetPolicy(1);
    SetPopups("false");
    EXPECT_FALSE(mUtils->EmailObjectGuardInPlace());
    EXPECT_THAT(Traced(), ElementsAre("TempodialCommonUtils No popups says reg "));
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_OtherWord_FallsToTheVersion)
{
    for (const auto* const word : { "TRUE", "False", "1", "" }) {
        SetPopups(word);
        EXPECT_FALSE(mUtils->EmailObjectGuardInPlace());
        EXPECT_THAT(Traced(),
            ElementsAre("TempodialCommonUtils Check for Outlook 2002",
                "TempodialCommonUtils Outlook version is 11.0.0.8010", "TempodialCommonUtils not 2002",
                "TempodialCommonUtils server security settings: "));
    }
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_Version10_IsTrueWithItsLine)
{
    Initialize("10.0.2627");
    EXPECT_TRUE(mUtils->EmailObjectGuardInPlace());
    EXPECT_THAT(Traced(),
        ElementsAre("TempodialCommonUtils Check for Outlook 2002", "TempodialCommonUtils Outlook version is 10.0.2627",
            "TempodialCommonUtils Outlook version is 2002 so abandon ship"));
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_Version9Or8_IsTrueWithoutIt)
{
    for (const auto* const version : { "9.0", "8.5" }) {
        Initialize(version);
        EXPECT_TRUE(mUtils->EmailObjectGuardInPlace());
        EXPECT_THAT(Traced(),
            ElementsAre("TempodialCommonUtils Check for Outlook 2002",
                std::string("TempodialCommonUtils Outlook version is ") + version));
    }
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_Policy_DecidesForLaterVersions)
{
    const std::pair<Variant, bool> rows[]
        = { { 1, true }, { "1", true }, { "2", true }, { 0, false }, { "0", false }, { "", false } };
    for (const auto& [policy, guarded] : rows) {
        SetPolicy(policy);
        ForgetTrace();
        EXPECT_EQ(mUtils->EmailObjectGuardInPlace(), guarded) << policy.ToText();
        const auto lines = Traced();
        EXPECT_EQ(lines[3], "TempodialCommonUtils server security settings: " + policy.ToText());
        EXPECT_EQ(lines.size(), guarded ? 5 : 4);
        EXPECT_EQ(lines.back() == "TempodialCommonUtils server security settings enabled", guarded);
    }
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_PolicyIsNoNumber_IsFalseWithALine)
{
    SetPolicy("abc");
    EXPECT_FALSE(mUtils->EmailObjectGuardInPlace());
    EXPECT_EQ(Traced().back(), "TempodialCommonUtils EmailObjectGuardInPlace error Type mismatch ");
}

TEST_F(TempodialCommonUtilsTest, EmailObjectGuardInPlace_VersionIsNoNumber_GoesOnToThePolicy)
{
    Initialize("");
    SetPolicy(1);
    EXPECT_TRUE(mUtils->EmailObjectGuardInPlace());
    EXPECT_THAT(Traced(), testing::Contains("TempodialCommonUtils EmailObjectGuardInPlace error Type mismatch "));
}

TEST_F(TempodialCommonUtilsTest, MarkEmailObjectGuardInPlace_WritesTheWord)
{
    mUtils->MarkEmailObjectGuardInPlace();
    EXPECT_THAT(Traced(), ElementsAre("TempodialCommonUtils MarkEmailObjectGuardInPlace"));
    EXPECT_EQ((mRegistry->values[{ Hive::LocalMachine, ProductKey, Popups }]), Variant("true"));
    EXPECT_TRUE(mUtils->EmailObjectGuardInPlace());
}

TEST_F(TempodialCommonUtilsTest, MarkEmailObjectGuardInPlace_UserMayNotWrite_FailsSilently)
{
    mRegistry->refusesWriting = true;
    mUtils->MarkEmailObjectGuardInPlace();
    EXPECT_THAT(Traced(), ElementsAre("TempodialCommonUtils MarkEmailObjectGuardInPlace"));
    EXPECT_THAT(mRegistry->values, IsEmpty());
}

}
