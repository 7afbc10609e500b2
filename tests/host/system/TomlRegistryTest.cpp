#include "host/system/TomlRegistry.h"

#include "base/Failure.h"
#include "base/Utf8.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace tempodial {
namespace {

namespace fs = std::filesystem;

const std::string Key = "Software\\Lindenfold\\Tempodial";
constexpr auto User = Hive::CurrentUser;
constexpr auto Machine = Hive::LocalMachine;

class TomlRegistryTest : public testing::Test
{
protected:
    TomlRegistry Open() { return TomlRegistry(mFolder.Path("registry.toml")); }
    std::string Content() { return mFolder.Read("registry.toml"); }
    Variant Reopened(Hive hive, const std::string& key, const std::string& value)
    {
        return Open().Get(hive, key, value);
    }
    /// The message of a file that can't be used, "" when it can.
    std::string Refusal()
    {
        try {
            Open();
        } catch (const RegistryFileError& error) {
            return error.what();
        }
        return "";
    }

    TempFolder mFolder;
};

/// A character as UTF-8.
std::string Utf8(char32_t character)
{
    std::string text;
    AppendUtf8(text, character);
    return text;
}

TEST_F(TomlRegistryTest, Open_NoFile_IsEmptyAndMakesNone)
{
    auto registry = Open();
    EXPECT_TRUE(registry.Read(User, Key, "CurrentVersion", RegistryAccess::All).IsEmpty());
    EXPECT_FALSE(mFolder.Has("registry.toml"));
}

TEST_F(TomlRegistryTest, Write_Values_AreReadableByHandAndComeBack)
{
    auto registry = Open();
    registry.Write(User, Key, "CurrentVersion", "1.2.0");
    registry.Write(Machine, Key, "Install Directory", "C:\\Program Files\\T");
    registry.WriteNumber(User, "Software\\Office", "CalDefStart", 480);
    EXPECT_EQ(Content(),
        "[HKCU.\"Software\\\\Lindenfold\\\\Tempodial\"]\n"
        "CurrentVersion = \"1.2.0\"\n\n"
        "[HKCU.\"Software\\\\Office\"]\n"
        "CalDefStart = 480\n\n"
        "[HKLM.\"Software\\\\Lindenfold\\\\Tempodial\"]\n"
        "\"Install Directory\" = \"C:\\\\Program Files\\\\T\"\n");
    EXPECT_EQ(Reopened(User, Key, "CurrentVersion"), Variant("1.2.0"));
    EXPECT_EQ(Reopened(Machine, Key, "Install Directory"), Variant("C:\\Program Files\\T"));
    EXPECT_EQ(Reopened(User, "Software\\Office", "CalDefStart"), Variant(480));
    EXPECT_TRUE(Reopened(Machine, Key, "CurrentVersion").IsEmpty());
    struct stat status
    {
    };
    ::stat(mFolder.Path("registry.toml").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    EXPECT_FALSE(mFolder.Has(".registry.toml.new"));
}

TEST_F(TomlRegistryTest, Read_AnyCase_FindsTheValueAndKeepsTheSpelling)
{
    auto registry = Open();
    registry.Write(User, Key, "CurrentVersion", "1");
    EXPECT_EQ(
        registry.Read(User, "SOFTWARE\\lindenfold\\TEMPODIAL", "currentVERSION", RegistryAccess::Query), Variant("1"));
    registry.Write(User, "software\\lindenfold\\tempodial", "CURRENTVERSION", "2");
    EXPECT_EQ(Content(), "[HKCU.\"Software\\\\Lindenfold\\\\Tempodial\"]\nCurrentVersion = \"2\"\n");
    EXPECT_TRUE(registry.Delete(User, Key, "currentversion"));
    EXPECT_TRUE(registry.Get(User, Key, "CurrentVersion").IsEmpty());
}

TEST_F(TomlRegistryTest, Write_OtherSpellingsMadeByHand_AreReplaced)
{
    mFolder.Write("registry.toml", "[HKLM.key]\nnumber = 'a'\nNumber = 'b'\nother = 1\n");
    Open().Write(Machine, "key", "Number", "c");

    EXPECT_EQ(Reopened(Machine, "key", "number"), Variant("c"));
    EXPECT_EQ(Reopened(Machine, "key", "Number"), Variant("c"));
    EXPECT_EQ(Reopened(Machine, "key", "other"), Variant(1));
}

TEST_F(TomlRegistryTest, Delete_OtherSpellingsMadeByHand_AreGoneToo)
{
    mFolder.Write("registry.toml", "[HKLM.key]\nnumber = 'a'\nNumber = 'b'\nother = 1\n");

    EXPECT_TRUE(Open().Delete(Machine, "key", "NUMBER"));
    EXPECT_EQ(Reopened(Machine, "key", "number"), Variant());
    EXPECT_EQ(Reopened(Machine, "key", "other"), Variant(1));
}

TEST_F(TomlRegistryTest, Read_AbsentKey_IsInTheFileAfterTheNextWrite)
{
    auto registry = Open();
    registry.Read(Machine, "Software\\Policies", "CheckAdminSettings", RegistryAccess::All);
    registry.Get(User, "Software\\NotMade", "x");
    EXPECT_FALSE(mFolder.Has("registry.toml"));
    registry.Write(User, Key, "a", "b");
    EXPECT_NE(Content().find("[HKLM.\"Software\\\\Policies\"]"), std::string::npos);
    EXPECT_EQ(Content().find("NotMade"), std::string::npos);
    EXPECT_TRUE(Reopened(Machine, "Software\\Policies", "CheckAdminSettings").IsEmpty());
}

TEST_F(TomlRegistryTest, Write_SameValue_TouchesNoFile)
{
    auto registry = Open();
    registry.Write(User, Key, "a", "b");
    registry.WriteNumber(User, Key, "n", 5);
    fs::remove(mFolder.Path("registry.toml"));
    registry.Write(User, Key, "a", "b");
    registry.Write(User, Key, "A", "b");
    registry.WriteNumber(User, Key, "n", 5);
    registry.Read(User, Key, "a", RegistryAccess::All);
    EXPECT_FALSE(registry.Delete(User, Key, "absent"));
    EXPECT_FALSE(registry.Delete(User, "absent", "a"));
    EXPECT_FALSE(mFolder.Has("registry.toml"));
    registry.Write(User, Key, "n", "5");
    EXPECT_EQ(Reopened(User, Key, "n"), Variant("5"));
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("b"));
}

TEST_F(TomlRegistryTest, Together_Changes_ReachTheFileAtTheEnd)
{
    auto registry = Open();
    registry.Write(User, Key, "gone", "a");
    registry.Together([&] {
        registry.Write(User, Key, "a", "b");
        registry.WriteNumber(User, Key, "n", 5);
        registry.Delete(User, Key, "gone");
        EXPECT_EQ(registry.Get(User, Key, "a"), Variant("b"));
        EXPECT_EQ(Reopened(User, Key, "gone"), Variant("a"));
        EXPECT_TRUE(Reopened(User, Key, "a").IsEmpty());
    });
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("b"));
    EXPECT_EQ(Reopened(User, Key, "n"), Variant(5));
    EXPECT_TRUE(Reopened(User, Key, "gone").IsEmpty());
    registry.Write(User, Key, "a", "c");
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("c"));
}

TEST_F(TomlRegistryTest, Together_WorkFails_KeepsWhatWasWritten)
{
    auto registry = Open();
    const auto work = [&] {
        registry.Write(User, Key, "a", "b");
        throw Failure(Error::InvalidCall);
    };
    EXPECT_EQ(FailureNumber([&] { registry.Together(work); }), 5);
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("b"));
}

TEST_F(TomlRegistryTest, AllOrNothing_WorkFails_DropsWhatWasWritten)
{
    auto registry = Open();
    registry.Write(User, Key, "a", "old");
    const auto work = [&] {
        registry.Write(User, Key, "a", "new");
        registry.Write(User, Key, "b", "new");
        throw Failure(Error::InvalidCall);
    };
    EXPECT_EQ(FailureNumber([&] { registry.AllOrNothing(work); }), 5);
    EXPECT_EQ(registry.Get(User, Key, "a"), Variant("old"));
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("old"));
    EXPECT_TRUE(Reopened(User, Key, "b").IsEmpty());
    registry.Write(User, Key, "b", "c");
    EXPECT_EQ(Reopened(User, Key, "b"), Variant("c"));
}

TEST_F(TomlRegistryTest, AllOrNothing_WorkGoesWell_ReachesTheFileTogether)
{
    auto registry = Open();
    registry.AllOrNothing([&] {
        registry.Write(User, Key, "a", "b");
        EXPECT_TRUE(Reopened(User, Key, "a").IsEmpty());
    });
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("b"));
}

TEST_F(TomlRegistryTest, Together_NothingChanged_TouchesNoFile)
{
    auto registry = Open();
    registry.Write(User, Key, "a", "b");
    fs::remove(mFolder.Path("registry.toml"));
    registry.Together([&] { registry.Write(User, Key, "a", "b"); });
    EXPECT_FALSE(mFolder.Has("registry.toml"));
}

TEST_F(TomlRegistryTest, Together_FileRefuses_FailsWithItsNameAndChangesNothing)
{
    fs::create_directory(mFolder.Path("profile"));
    const auto path = mFolder.Path("profile/registry.toml");
    TomlRegistry registry(path);
    registry.Write(User, Key, "a", "old");
    fs::remove_all(mFolder.Path("profile"));
    try {
        registry.Together([&] {
            registry.Write(User, Key, "a", "new");
            registry.Write(User, Key, "b", "new");
        });
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.Is(Error::PathNotFound));
        EXPECT_NE(failure.Description().find(path), std::string::npos);
    }
    EXPECT_EQ(registry.Get(User, Key, "a"), Variant("old"));
    EXPECT_TRUE(registry.Get(User, Key, "b").IsEmpty());
}

TEST_F(TomlRegistryTest, Write_EmptyText_IsAValue)
{
    Open().Write(User, Key, "a", "");
    EXPECT_EQ(Reopened(User, Key, "a"), Variant(""));
    EXPECT_TRUE(Open().Delete(User, Key, "a"));
    EXPECT_TRUE(Reopened(User, Key, "a").IsEmpty());
}

TEST_F(TomlRegistryTest, Write_AnyCharacters_ComeBack)
{
    const std::string odd
        = "'''\"\"\"\\ [x]\r\n\t|\b\x1F\x7F = # \u0085\u2028\u20AC\U0001F600 " + std::string("\0", 1) + " ";
    {
        auto registry = Open();
        registry.Write(User, odd, odd, odd);
        registry.Write(User, "", "", "nameless");
        registry.Write(User, "a.b", "c.d", "dotted");
    }
    EXPECT_EQ(Reopened(User, odd, odd), Variant(odd));
    EXPECT_EQ(Reopened(User, "", ""), Variant("nameless"));
    EXPECT_EQ(Reopened(User, "a.b", "c.d"), Variant("dotted"));
}

TEST_F(TomlRegistryTest, Write_AnyCharacterInAName_ComesBack)
{
    for (char character = 0; character < 'A'; ++character) {
        const std::string name { 'a', character };
        Open().Write(User, name, name, name);
        Open().Write(Machine, std::string(1, character), "A", "b");
        EXPECT_EQ(Reopened(User, name, name), Variant(name));
        EXPECT_EQ(Reopened(Machine, std::string(1, character), "A"), Variant("b"));
    }
}

TEST_F(TomlRegistryTest, Write_OtherThingsInTheFile_AreKept)
{
    mFolder.Write("registry.toml",
        "z = [1, {'a b' = \"it's\", \"'\" = [ ], e = {}}]\n[[t]]\nd = 2006-10-10T09:00:00\n[[t]]\nf = 1.5\n"
        "[n.'k\\l'.m]\n[HKCU.\"'\"]\nA = true\n");
    Open().Write(User, "", "B", "c");
    const std::string rest = "t = [ { d = 2006-10-10T09:00:00 }, { f = 1.5 } ]\n"
                             "z = [ 1, { \"'\" = [], \"a b\" = \"it's\", e = {} } ]\n";
    EXPECT_EQ(Content(), rest + "\n[HKCU.\"\"]\nB = \"c\"\n\n[HKCU.\"'\"]\nA = true\n\n[n.\"k\\\\l\".m]\n");
    Open().Write(User, "", "B", "d");
    EXPECT_THAT(Content(), testing::StartsWith(rest));
}

TEST_F(TomlRegistryTest, Write_EveryCharacterThereIs_ComesBack)
{
    std::string all;
    for (char32_t character = 0; character <= 0x10FFFF; ++character) {
        if (character < 0xD800 || character > 0xDFFF) {
            all += Utf8(character);
        }
    }
    Open().Write(User, Key, "all", all);
    EXPECT_TRUE(Reopened(User, Key, "all") == Variant(all));
}

TEST_F(TomlRegistryTest, Write_NotUtf8_FailsAndChangesNothing)
{
    auto registry = Open();
    registry.Write(User, Key, "a", "b");
    EXPECT_EQ(FailureNumber([&] { registry.Write(User, Key, "a", "\xFF"); }), 5);
    EXPECT_EQ(FailureNumber([&] { registry.Write(User, Key, "\xFF", "b"); }), 5);
    EXPECT_EQ(FailureNumber([&] { registry.Write(User, "\xFF", "a", "b"); }), 5);
    EXPECT_TRUE(registry.Read(User, "\xFF", "a", RegistryAccess::All).IsEmpty());
    registry.Write(User, Key, "c", "d");
    EXPECT_EQ(Reopened(User, Key, "a"), Variant("b"));
}

TEST_F(TomlRegistryTest, Write_FolderIsGone_FailsAndChangesNothing)
{
    fs::create_directory(mFolder.Path("profile"));
    TomlRegistry registry(mFolder.Path("profile/registry.toml"));
    registry.Write(User, Key, "a", "old");
    fs::remove_all(mFolder.Path("profile"));
    EXPECT_EQ(FailureNumber([&] { registry.Write(User, Key, "a", "new"); }), 76);
    EXPECT_EQ(FailureNumber([&] { registry.Delete(User, Key, "a"); }), 76);
    EXPECT_EQ(registry.Get(User, Key, "a"), Variant("old"));
    fs::create_directory(mFolder.Path("profile"));
    registry.Write(User, Key, "a", "new");
    EXPECT_EQ(registry.Get(User, Key, "a"), Variant("new"));
}

TEST_F(TomlRegistryTest, Write_LinkOrReadOnlyFile_FailsAndChangesNothing)
{
    Open().Write(User, Key, "a", "old");
    const auto content = Content();
    const auto path = mFolder.Path("registry.toml");
    fs::permissions(path, fs::perms::owner_read);
    auto protectedOne = Open();
    EXPECT_EQ(FailureNumber([&] { protectedOne.Write(User, Key, "a", "new"); }), 70);
    EXPECT_EQ(FailureNumber([&] { protectedOne.Delete(User, Key, "a"); }), 70);
    EXPECT_EQ(protectedOne.Get(User, Key, "a"), Variant("old"));
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    fs::rename(path, mFolder.Path("kept.toml"));
    fs::create_symlink("kept.toml", path);
    auto linked = Open();
    EXPECT_EQ(linked.Get(User, Key, "a"), Variant("old"));
    EXPECT_EQ(FailureNumber([&] { linked.Write(User, Key, "a", "new"); }), 70);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(mFolder.Read("kept.toml"), content);
}

TEST_F(TomlRegistryTest, Read_EditedByHand_TakesTextsAndNumbersOnly)
{
    mFolder.Write("registry.toml",
        "# mine\r\n[hkcu.'Software\\Lindenfold\\Tempodial']\r\n"
        "text = 'a\\b'\nlong = \"\"\"\none\ntwo\"\"\"\nnumber = 0x10\nlowest = -2147483648\n"
        "highest = 2147483647\nlarge = 2147483648\nsmall = -2147483649\nreal = 1.5\nflag = true\n"
        "day = 2006-10-10\nlist = [1]\ntable = { a = 1 }\n[HKLM]\nloose = 5\n");
    auto registry = Open();
    EXPECT_EQ(registry.Get(User, Key, "text"), Variant("a\\b"));
    EXPECT_EQ(registry.Get(User, Key, "long"), Variant("one\ntwo"));
    EXPECT_EQ(registry.Get(User, Key, "number"), Variant(16));
    EXPECT_EQ(registry.Get(User, Key, "lowest"), Variant(INT32_MIN));
    EXPECT_EQ(registry.Get(User, Key, "highest"), Variant(INT32_MAX));
    for (const auto* value : { "large", "small", "real", "flag", "day", "list", "table", "absent" }) {
        EXPECT_TRUE(registry.Get(User, Key, value).IsEmpty()) << value;
    }
    EXPECT_TRUE(registry.Read(Machine, "loose", "x", RegistryAccess::All).IsEmpty());
    EXPECT_EQ(FailureNumber([&] { registry.Write(Machine, "loose", "x", "y"); }), 75);

    registry.Write(User, Key, "real", "text now");
    for (const auto* kept : { "flag = true", "day = 2006-10-10", "large = 2147483648", "loose = 5", "list = [ 1 ]" }) {
        EXPECT_NE(Content().find(kept), std::string::npos) << kept;
    }
    EXPECT_EQ(Reopened(User, Key, "real"), Variant("text now"));
}

TEST_F(TomlRegistryTest, Open_DamagedFile_SaysWhereAndWhatToDo)
{
    const struct
    {
        const char *content, *line;
    } rows[] = {
        { "[HKCU.\"a\"]\nb = \"c\n", "line 2" },
        { "\n\nnonsense", "line 3" },
        { "[HKCU.a]\nb = 1\nb = 2\n", "line 3" },
        { "[HKCU.a]\nb = \"\xFF\"\n", "line 2" },
        { "x = 1\nHKCU = 5\n", "line 2" },
        { "[[hklm]]\na = 1\n", "line 1" },
    };
    for (const auto& row : rows) {
        mFolder.Write("registry.toml", row.content);
        const auto refusal = Refusal();
        EXPECT_NE(refusal.find(row.line), std::string::npos) << refusal;
        EXPECT_NE(refusal.find(mFolder.Path("registry.toml")), std::string::npos) << refusal;
        EXPECT_NE(refusal.find(": correct that line, or move the file away"), std::string::npos) << refusal;
        EXPECT_EQ(Content(), row.content);
    }
}

TEST_F(TomlRegistryTest, Open_DamagedFile_IsToldInOurWords)
{
    for (const auto* content : { "[HKCU.a]\nb = 1\n[HKCU.a]\nc = 2\n", "[HKCU.a]\nb = 1\nb = 2\n" }) {
        mFolder.Write("registry.toml", content);
        EXPECT_THAT(Refusal(), testing::HasSubstr("line 3: the name stands in the file a second time: "));
    }
    mFolder.Write("registry.toml", "[HKCU.\"a\"]\nb = \"c\n");
    EXPECT_THAT(Refusal(), testing::HasSubstr("a quotation mark or a bracket may be missing"));
}

TEST_F(TomlRegistryTest, Open_NestedFile_HasABound)
{
    const auto repeated = [](const std::string& text, int count) {
        std::string all;
        for (int i = 0; i < count; ++i) {
            all += text;
        }
        return all;
    };
    const auto refusalOf = [&](const std::string& content) {
        mFolder.Write("registry.toml", content);
        return Refusal();
    };
    EXPECT_EQ(refusalOf("[a" + repeated(".a", 32) + "]\nb = " + repeated("[", 32) + repeated("]", 32) + "\n"), "");
    for (const int depth : { 33, 30'000 }) {
        for (const auto& content :
            { "\n[a" + repeated(".a", depth) + "]\n", "\na" + repeated(". 'a'", depth) + " = 1\n",
                "\na = " + repeated("[", depth) + repeated("]", depth), "\na = " + repeated("{a = ", depth) + "1",
                "\na = {b = \"\"\"x\"\"\"\"\", c" + repeated(".a", depth) + " = 1}\n" }) {
            EXPECT_THAT(refusalOf(content), testing::HasSubstr("line 2: it is nested more than 32 deep: "));
        }
    }
}

TEST_F(TomlRegistryTest, Open_BracketsAndPointsInTexts_AreNoNesting)
{
    const std::string many(100, '[');
    const std::string points(100, '.');
    std::string reals = "1.5";
    for (int i = 0; i < 50; ++i) {
        reals += ", 1.5";
    }
    mFolder.Write("registry.toml",
        "[HKCU.key]\na = \"\\\"" + many + points + "\"\nb = '" + many + points + "\\'\nc = \"\"\"\n" + many + "\""
            + points + "\"\"\"\nd = '''" + points + many + "''' # " + many + points + "\ne = [ " + reals + " ]\n");
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(Reopened(User, "key", "b"), Variant(many + points + "\\"));
}

TEST_F(TomlRegistryTest, Open_LargerThanARegistryMayBe_SaysSo)
{
    mFolder.Write("registry.toml", "");
    fs::resize_file(mFolder.Path("registry.toml"), (std::uintmax_t { 64 } << 20) + 1);
    EXPECT_THAT(Refusal(), testing::HasSubstr("is larger than 64 MiB"));
}

TEST_F(TomlRegistryTest, RequireSound_ValueOfAnotherKind_IsRefusedWithItsLine)
{
    const auto refusalOf = [&](const std::string& content) -> std::string {
        mFolder.Write("registry.toml", content);
        const auto registry = Open();
        try {
            registry.RequireSound(Key, { "Words" });
        } catch (const RegistryFileError& error) {
            return error.what();
        }
        return "";
    };
    const std::string heading = "[HKCU.'Software\\Lindenfold\\Tempodial']\n";
    EXPECT_EQ(refusalOf(""), "");
    EXPECT_EQ(refusalOf(heading + "words = 'a'\nb = 5\n[HKCU.other]\nc = 1.5\n"), "");
    for (const auto* value : { "1.5", "true", "[ 'a' ]", "{ a = 'b' }", "2006-10-10", "2147483648" }) {
        EXPECT_THAT(refusalOf(heading + "a = 'b'\nc = " + value + "\n"),
            testing::HasSubstr("line 3: \"c\" must be a text in quotation marks, or a whole number of 32 bits: "));
    }
    EXPECT_THAT(refusalOf(heading + "words = 5\n"), testing::HasSubstr("line 2: \"words\" must be a text, in"));
    EXPECT_THAT(refusalOf("[HKLM]\n'Software\\Lindenfold\\Tempodial' = 5\n"), testing::HasSubstr("isn't a table"));
}

TEST_F(TomlRegistryTest, Open_NoReadableFile_SaysSo)
{
    fs::create_directory(mFolder.Path("registry.toml"));
    EXPECT_NE(Refusal().find("Permission denied"), std::string::npos);
    fs::remove(mFolder.Path("registry.toml"));
    ASSERT_EQ(::mkfifo(mFolder.Path("registry.toml").c_str(), 0600), 0);
    EXPECT_NE(Refusal().find(mFolder.Path("registry.toml")), std::string::npos);
}

TEST_F(TomlRegistryTest, Open_EmptyFile_IsAnEmptyRegistry)
{
    mFolder.Write("registry.toml", "");
    EXPECT_EQ(Refusal(), "");
    EXPECT_TRUE(Reopened(User, Key, "a").IsEmpty());
}

}
}
