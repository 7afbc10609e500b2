#include "addin/win32/Win32FileSystem.h"

#include "addin/base/SystemText.h"
#include "addin/base/Windows.h"
#include "addin/win32/ScratchFolder.h"
#include "base/Failure.h"

#include <gmock/gmock.h>

#include <functional>

namespace tempodial {

namespace {

using testing::ElementsAre;

std::int32_t FailureOfWork(const std::function<void()>& work)
{
    try {
        work();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

}

class Win32FileSystemTest : public testing::Test
{
protected:
    Ref<TextStream> Open(const std::string& name, OpenMode mode, bool create)
    {
        return mFiles.OpenTextFile(mFolder.Path(name), mode, create);
    }
    void MakeReadOnly(const std::string& name) const
    {
        SetFileAttributesW(Wide(mFolder.Path(name)).c_str(), FILE_ATTRIBUTE_READONLY);
    }

    ScratchFolder mFolder;
    Win32FileSystem mFiles { FileText::OfHost() };
};

TEST_F(Win32FileSystemTest, GetSpecialFolder_Temporary_HasNoSeparatorBehindIt)
{
    const auto folder = mFiles.GetSpecialFolder(SpecialFolder::Temporary);
    EXPECT_FALSE(folder.empty());
    EXPECT_NE(folder.back(), '\\');
    EXPECT_TRUE(mFiles.FolderExists(folder));
}

TEST_F(Win32FileSystemTest, BuildPath_JoinsByOneSeparator)
{
    EXPECT_EQ(mFiles.BuildPath("C:", "a"), "C:\\a");
    EXPECT_EQ(mFiles.BuildPath("C:\\a", "b"), "C:\\a\\b");
    EXPECT_EQ(mFiles.BuildPath("C:\\a\\", "b"), "C:\\a\\b");
}

TEST_F(Win32FileSystemTest, Folders_AreMadeAndTold)
{
    EXPECT_FALSE(mFiles.FolderExists(mFolder.Path("Łódź")));
    mFiles.CreateFolder(mFolder.Path("Łódź"));
    EXPECT_TRUE(mFiles.FolderExists(mFolder.Path("Łódź")));
    EXPECT_FALSE(mFiles.FileExists(mFolder.Path("Łódź")));
    EXPECT_EQ(FailureOfWork([&] { mFiles.CreateFolder(mFolder.Path("Łódź")); }), 58);
    EXPECT_EQ(FailureOfWork([&] { mFiles.CreateFolder(mFolder.Path("none\\a")); }), 76);
}

TEST_F(Win32FileSystemTest, GetFolder_ListsFilesByName)
{
    mFolder.Write("b.out", "12");
    mFolder.Write("a.out", "1");
    mFiles.CreateFolder(mFolder.Path("folder"));
    const auto folder = mFiles.GetFolder(mFolder.Path());
    ASSERT_EQ(folder.files.size(), 2U);
    EXPECT_EQ(folder.files[0].name, "a.out");
    EXPECT_EQ(folder.files[0].path, mFolder.Path("a.out"));
    EXPECT_EQ(folder.files[1].size, 2);
    EXPECT_GT(folder.files[0].dateCreated, Date::FromYearMonthDay(2020, 1, 1));
    EXPECT_EQ(FailureOfWork([&] { mFiles.GetFolder(mFolder.Path("none")); }), 76);
}

TEST_F(Win32FileSystemTest, GetFile_AbsentOrAFolder_Fails)
{
    mFolder.Write("a", "123");
    EXPECT_EQ(mFiles.GetFile(mFolder.Path("a")).size, 3);
    EXPECT_EQ(mFiles.GetFile(mFolder.Path("a")).name, "a");
    EXPECT_EQ(FailureOfWork([&] { mFiles.GetFile(mFolder.Path("b")); }), 53);
    EXPECT_EQ(FailureOfWork([&] { mFiles.GetFile(mFolder.Path("none\\b")); }), 53);
    EXPECT_EQ(FailureOfWork([&] { mFiles.GetFile(mFolder.Path()); }), 70);
}

TEST_F(Win32FileSystemTest, MoveFile_NeverReplaces)
{
    mFolder.Write("a", "1");
    mFolder.Write("b", "2");
    EXPECT_EQ(FailureOfWork([&] { mFiles.MoveFile(mFolder.Path("a"), mFolder.Path("b")); }), 58);
    EXPECT_EQ(FailureOfWork([&] { mFiles.MoveFile(mFolder.Path("x"), mFolder.Path("y")); }), 53);
    EXPECT_EQ(FailureOfWork([&] { mFiles.MoveFile(mFolder.Path("a"), mFolder.Path("none\\y")); }), 76);
    mFiles.MoveFile(mFolder.Path("a"), mFolder.Path("c"));
    EXPECT_EQ(mFolder.Read("a"), "(absent)");
    EXPECT_EQ(mFolder.Read("b"), "2");
    EXPECT_EQ(mFolder.Read("c"), "1");
}

TEST_F(Win32FileSystemTest, CopyFile_ReplacesOnlyWhenItMay)
{
    mFolder.Write("a", "1");
    mFolder.Write("b", "2");
    EXPECT_EQ(FailureOfWork([&] { mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), false); }), 58);
    EXPECT_EQ(FailureOfWork([&] { mFiles.CopyFile(mFolder.Path("x"), mFolder.Path("b"), true); }), 53);
    EXPECT_EQ(FailureOfWork([&] { mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("none\\b"), true); }), 76);
    EXPECT_EQ(mFolder.Read("b"), "2");
    mFiles.CopyFile(mFolder.Path("a"), mFolder.Path("b"), true);
    EXPECT_EQ(mFolder.Read("b"), "1");
    EXPECT_EQ(mFolder.Read("a"), "1");
}

TEST_F(Win32FileSystemTest, DeleteFile_ReadOnly_NeedsForce)
{
    mFolder.Write("a", "1");
    MakeReadOnly("a");
    EXPECT_EQ(FailureOfWork([&] { mFiles.DeleteFile(mFolder.Path("a"), false); }), 70);
    mFiles.DeleteFile(mFolder.Path("a"), true);
    EXPECT_EQ(mFolder.Read("a"), "(absent)");
    EXPECT_EQ(FailureOfWork([&] { mFiles.DeleteFile(mFolder.Path("a"), true); }), 53);
    EXPECT_EQ(FailureOfWork([&] { mFiles.DeleteFile(mFolder.Path(), true); }), 70);
}

TEST_F(Win32FileSystemTest, Reading_Lines_WhileAnotherAppends)
{
    mFolder.Write("a", "first\r\nü\nM\xFCnchen\r\nend");
    const auto stream = Open("a", OpenMode::Reading, false);
    EXPECT_EQ(stream->ReadLine(), "first");
    const auto appending = Open("a", OpenMode::Appending, false);
    appending->WriteLine("");
    appending->Close();
    EXPECT_EQ(stream->ReadLine(), "ü");
    EXPECT_EQ(stream->ReadLine(), "München") << "what is no UTF-8 is decoded";
    EXPECT_EQ(stream->ReadLine(), "end");
    EXPECT_EQ(FailureOfWork([&] { stream->ReadLine(); }), 62);
    EXPECT_EQ(FailureOfWork([&] { stream->Write("a"); }), 54);
}

TEST_F(Win32FileSystemTest, Opening_WhatCantBe_Fails)
{
    EXPECT_EQ(FailureOfWork([&] { Open("a", OpenMode::Reading, false); }), 53);
    EXPECT_EQ(FailureOfWork([&] { Open("a", OpenMode::Appending, false); }), 53);
    EXPECT_EQ(FailureOfWork([&] { Open("a", OpenMode::Writing, false); }), 53);
    EXPECT_EQ(FailureOfWork([&] { Open("none\\a", OpenMode::Writing, true); }), 76);
    EXPECT_EQ(FailureOfWork([&] { Open("none\\a", OpenMode::Reading, true); }), 76);
    mFiles.CreateFolder(mFolder.Path("folder"));
    EXPECT_EQ(FailureOfWork([&] { Open("folder", OpenMode::Reading, false); }), 70);
    EXPECT_EQ(FailureOfWork([&] { Open("folder", OpenMode::Writing, true); }), 70);
    mFolder.Write("fixed", "1");
    MakeReadOnly("fixed");
    EXPECT_EQ(FailureOfWork([&] { Open("fixed", OpenMode::Writing, true); }), 70);
    SetFileAttributesW(Wide(mFolder.Path("fixed")).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Win32FileSystemTest, Writing_OldFile_StaysUntilTheNewOneIsClosed)
{
    mFolder.Write("a", "old");
    const auto stream = Open("a", OpenMode::Writing, true);
    stream->Write("new ü");
    stream->WriteLine("");
    EXPECT_EQ(mFolder.Read("a"), "old");
    EXPECT_EQ(FailureOfWork([&] { stream->ReadLine(); }), 54);
    stream->Close();
    EXPECT_EQ(mFolder.Read("a"), "new ü\r\n");
    EXPECT_EQ(FailureOfWork([&] { stream->Write("more"); }), 52);
    EXPECT_EQ(mFiles.GetFolder(mFolder.Path()).files.size(), 1U) << "nothing is left beside it";
}

TEST_F(Win32FileSystemTest, Writing_LetGoOf_ClosesItselfUnlessAnExceptionTakesIt)
{
    Open("a", OpenMode::Writing, true)->Write("whole");
    EXPECT_EQ(mFolder.Read("a"), "whole");
    try {
        const auto stream = Open("a", OpenMode::Writing, true);
        stream->Write("half");
        throw Failure(Error::Automation);
    } catch (const Failure&) {
        EXPECT_EQ(mFolder.Read("a"), "whole");
    }
    EXPECT_EQ(mFiles.GetFolder(mFolder.Path()).files.size(), 1U);
}

TEST_F(Win32FileSystemTest, SystemsCodePage_IsThatOfFiles)
{
    Win32FileSystem files(FileText::OfSystem());
    files.OpenTextFile(mFolder.Path("a"), OpenMode::Writing, true)->Write("plain 日 ü");
    EXPECT_EQ(mFolder.Read("a"), InCodePage("plain 日 ü", GetACP()));
    mFolder.Write("b", "ü");
    EXPECT_EQ(files.OpenTextFile(mFolder.Path("b"), OpenMode::Reading, false)->ReadLine(), "ü");
}

TEST_F(Win32FileSystemTest, CodePage_LosesWhatItLacks_AndTakesNothingLikeIt)
{
    constexpr unsigned Western = 1252;
    constexpr unsigned Central = 1250;
    EXPECT_EQ(InCodePage("Łódź", Western),
        "?\xF3"
        "d?");
    EXPECT_EQ(InCodePage("Łódź", Central),
        "\xA3\xF3"
        "d\x9F");
    EXPECT_EQ(InCodePage("日 ∞ ß", Western), "? ? \xDF");
    EXPECT_EQ(InCodePage("Łódź 日", CP_UTF8), "Łódź 日");
    EXPECT_EQ(InCodePage("", Western), "");
}

}
