#include "addin/base/Windows.h"
#include "addin/com/AutomationObject.h"
#include "addin/win32/ModuleFolder.h"
#include "addin/win32/OlePictureLoader.h"
#include "addin/win32/ScratchFolder.h"
#include "addin/win32/Win32Clock.h"
#include "addin/win32/Win32EventPump.h"
#include "addin/win32/Win32MessageBox.h"
#include "addin/win32/Win32Registry.h"
#include "addin/win32/Win32Shell.h"
#include "base/Failure.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {

namespace {

constexpr auto TestKey = R"(Software\TempodialTests)";

std::int32_t FailureNumberOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

/// A bitmap of two by two points in 24 bits.
std::string Bitmap()
{
    std::string bytes("BM\x46\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\2\0\0\0\2\0\0\0\1\0\x18\0", 30);
    bytes.resize(54, '\0');
    return bytes + std::string(16, '\x7f');
}

}

TEST(OlePictureLoaderTest, Load_Bitmap_IsAPictureOfTheSystems)
{
    const ScratchFolder folder;
    folder.Write("icon.bmp", Bitmap());
    const auto picture = OlePictureLoader().Load(folder.Path("icon.bmp"));
    EXPECT_TRUE(DispatchOf(picture).As<IPicture>());
}

TEST(OlePictureLoaderTest, Load_WhatIsNone_Fails)
{
    const ScratchFolder folder;
    folder.Write("text.bmp", "no picture at all");
    folder.Write("empty.bmp", "");
    OlePictureLoader loader;
    EXPECT_EQ(FailureNumberOf([&] { loader.Load(folder.Path("text.bmp")); }), 481);
    EXPECT_EQ(FailureNumberOf([&] { loader.Load(folder.Path("empty.bmp")); }), 481);
    EXPECT_EQ(FailureNumberOf([&] { loader.Load(folder.Path("none.bmp")); }), 53);
    EXPECT_EQ(FailureNumberOf([&] { loader.Load(folder.Path("none\\none.bmp")); }), 53);
}

class Win32RegistryTest : public testing::Test
{
protected:
    Win32RegistryTest() { RegDeleteTreeA(HKEY_CURRENT_USER, TestKey); }
    ~Win32RegistryTest() override { RegDeleteTreeA(HKEY_CURRENT_USER, TestKey); }

    Variant Read(const std::string& value)
    {
        return mRegistry.Read(Hive::CurrentUser, TestKey, value, RegistryAccess::Query);
    }
    static void Set(const char* value, DWORD type, const std::string& bytes)
    {
        RegSetKeyValueA(HKEY_CURRENT_USER, TestKey, value, type, bytes.data(), static_cast<DWORD>(bytes.size()));
    }

    Win32Registry mRegistry;
};

TEST_F(Win32RegistryTest, Write_Text_IsReadAgain)
{
    EXPECT_TRUE(Read("A").IsEmpty());
    mRegistry.Write(Hive::CurrentUser, TestKey, "A", "Łódź");
    EXPECT_EQ(Read("A"), Variant("Łódź"));
    mRegistry.Write(Hive::CurrentUser, TestKey, "A", "");
    EXPECT_EQ(Read("a"), Variant(""));
    mRegistry.Write(Hive::CurrentUser, TestKey, "A", std::string(100000, 'x'));
    EXPECT_EQ(Read("A").ToText().size(), 100000U);
}

TEST_F(Win32RegistryTest, Read_OtherTypes_AreNumbersOrNothing)
{
    Set("Number", REG_DWORD, std::string("\x07\0\0\0", 4));
    Set("Bytes", REG_BINARY, "abc");
    Set("Long", REG_QWORD, std::string(8, '\1'));
    EXPECT_EQ(Read("Number"), Variant(7));
    EXPECT_TRUE(Read("Bytes").IsEmpty());
    EXPECT_TRUE(Read("Long").IsEmpty());
}

TEST_F(Win32RegistryTest, Read_OfAnAbsentKey_MakesIt)
{
    Read("A");
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExA(HKEY_CURRENT_USER, TestKey, 0, KEY_READ, &key), ERROR_SUCCESS);
    RegCloseKey(key);
}

namespace {

int timers = 0;

void CALLBACK CountTimer(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    ++timers;
}

}

TEST(Win32EventPumpTest, ProcessPending_Messages_AreDispatchedAndAQuitIsKept)
{
    Win32EventPump pump;
    pump.ProcessPending();
    const auto timer = SetTimer(nullptr, 0, 1, &CountTimer);
    Sleep(20);
    pump.ProcessPending();
    KillTimer(nullptr, timer);
    EXPECT_GE(timers, 1);

    PostQuitMessage(5);
    pump.ProcessPending();
    MSG message {};
    ASSERT_NE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE), FALSE);
    EXPECT_EQ(message.wParam, 5U);
}

TEST(Win32MessageBoxTest, Kind_ButtonsAndIcon_AreTheSystems)
{
    EXPECT_EQ(Win32MessageBox::Kind({ Answer::Ok }, MessageIcon::None), static_cast<unsigned>(MB_OK));
    EXPECT_EQ(Win32MessageBox::Kind({ Answer::Yes, Answer::No, Answer::Cancel }, MessageIcon::Question),
        static_cast<unsigned>(MB_YESNOCANCEL | MB_ICONQUESTION));
    EXPECT_EQ(Win32MessageBox::Kind({ Answer::Yes, Answer::No }, MessageIcon::Exclamation),
        static_cast<unsigned>(MB_YESNO | MB_ICONEXCLAMATION));
    EXPECT_EQ(FailureNumberOf([] { Win32MessageBox::Kind({ Answer::Cancel }, MessageIcon::None); }), 5);
}

TEST(Win32ClockTest, Now_IsTheSystems)
{
    SYSTEMTIME time {};
    GetLocalTime(&time);
    const auto before = FromSystemTime(time);
    const auto now = Win32Clock().Now();
    EXPECT_GE(now, before);
    EXPECT_LE(SecondsBetween(before, now), 5);
}

TEST(Win32ShellTest, ThreadId_IsTheSystems)
{
    EXPECT_EQ(Win32Shell().ThreadId(), static_cast<std::int32_t>(GetCurrentThreadId()));
}

TEST(ModuleFolderTest, ModuleFolder_IsThatOfThisProgram)
{
    const auto folder = ModuleFolder();
    EXPECT_NE(folder.find("\\tests"), std::string::npos) << folder;
    EXPECT_NE(folder.back(), '\\');
}

}
