#include "addin/dll/Registration.h"

#include "addin/base/SystemText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tempodial {

namespace {

constexpr auto Root = L"Software\\TempodialTests\\Registration";
constexpr auto ClassKey = "Software\\Classes\\CLSID\\{6C1F8A52-3D0E-4B7B-9E57-2A94C60D7F13}";
constexpr auto AddInKey = "Software\\Microsoft\\Office\\Outlook\\Addins\\Tempodial.Connect";

std::string Text(HKEY hive, const std::string& key, const char* name = "")
{
    std::array<wchar_t, 256> text {};
    DWORD size = sizeof text;
    const auto result
        = RegGetValueW(hive, Wide(key).c_str(), Wide(name).c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size);
    return result == ERROR_SUCCESS ? Narrow(text.data()) : "(absent)";
}

DWORD Number(const char* name)
{
    DWORD number = 99;
    DWORD size = sizeof number;
    RegGetValueW(
        HKEY_CURRENT_USER, Wide(AddInKey).c_str(), Wide(name).c_str(), RRF_RT_REG_DWORD, nullptr, &number, &size);
    return number;
}

}

/// Both hives are keys of the test's own.
class RegistrationTest : public testing::Test
{
protected:
    RegistrationTest()
    {
        HKEY user = nullptr;
        HKEY machine = nullptr;
        RegCreateKeyW(HKEY_CURRENT_USER, (std::wstring(Root) + L"\\user").c_str(), &user);
        RegCreateKeyW(HKEY_CURRENT_USER, (std::wstring(Root) + L"\\machine").c_str(), &machine);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine);
        RegOverridePredefKey(HKEY_CURRENT_USER, user);
        RegCloseKey(user);
        RegCloseKey(machine);
    }
    ~RegistrationTest() override
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        RegDeleteTreeW(HKEY_CURRENT_USER, Root);
    }
};

TEST_F(RegistrationTest, Write_NamesTheModuleAndTheAddIn)
{
    Registration("C:\\Łódź\\Tempodial.dll").Write();
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, ClassKey), "Tempodial");
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, std::string(ClassKey) + "\\InprocServer32"), "C:\\Łódź\\Tempodial.dll");
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, std::string(ClassKey) + "\\InprocServer32", "ThreadingModel"), "Apartment");
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, std::string(ClassKey) + "\\ProgID"), "Tempodial.Connect");
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, "Software\\Classes\\Tempodial.Connect\\CLSID"),
        "{6C1F8A52-3D0E-4B7B-9E57-2A94C60D7F13}");
    EXPECT_EQ(Text(HKEY_CURRENT_USER, AddInKey, "FriendlyName"), "Tempodial");
    EXPECT_EQ(Text(HKEY_CURRENT_USER, AddInKey, "Description"), "Tempodial Outlook AddOn");
    EXPECT_EQ(Number("LoadBehavior"), 3U);
    EXPECT_EQ(Number("CommandLineSafe"), 0U);
    EXPECT_EQ(Number("RequireShutdownNotification"), 1U);
}

TEST_F(RegistrationTest, Remove_TakesAllOfItAway_AlsoTwice)
{
    Registration("C:\\Tempodial.dll").Write();
    Registration::Remove();
    Registration::Remove();
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, std::string(ClassKey) + "\\InprocServer32"), "(absent)");
    EXPECT_EQ(Text(HKEY_LOCAL_MACHINE, "Software\\Classes\\Tempodial.Connect\\CLSID"), "(absent)");
    EXPECT_EQ(Text(HKEY_CURRENT_USER, AddInKey, "FriendlyName"), "(absent)");
}

}
