#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "addin/base/SystemText.h"
#include "addin/com/FakeObject.h"
#include "addin/win32/ScratchFolder.h"
#include "engine/core/ProductWords.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <string>

namespace tempodial {

namespace {

constexpr auto ShippedName = L"Tempodial.dll";
constexpr auto ShippedProgId = L"Tempodial.Connect";

/// Where the module lies that is installed: beside the folder of the tests.
std::wstring ShippedPath()
{
    std::array<wchar_t, MAX_PATH> program {};
    GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
    std::wstring path(program.data());
    path.resize(path.find_last_of(L'\\'));
    path.resize(path.find_last_of(L'\\') + 1);
    return path + L"bin\\" + ShippedName;
}

/// Registers the module, or takes it out again, as an administrator does it; gives how the program ended.
DWORD Regsvr32(const std::wstring& option)
{
    auto line = L"regsvr32.exe /s " + option + L"\"" + ShippedPath() + L"\"";
    STARTUPINFOW start {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process {};
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process) == FALSE) {
        return GetLastError();
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 1;
    GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return status;
}

HRESULT ClassOfAddIn(CLSID& found)
{
    return CLSIDFromProgID(ShippedProgId, &found);
}

ComRef<FakeObject> ApplicationWithoutWindows()
{
    const auto none = FakeObject::Make();
    none->Has("Count", AutomationValue(std::int32_t { 0 }));
    auto application = FakeObject::Make();
    application->Has("Explorers", AutomationValue(none->Automation()));
    application->Has("Inspectors", AutomationValue(none->Automation()));
    return application;
}

}

class ShippedModuleTest : public testing::Test
{
protected:
    ShippedModuleTest()
    {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        SetEnvironmentVariableW(L"TMP", Wide(mFolder.Path()).c_str());
        EXPECT_EQ(Regsvr32(L""), 0U);
    }
    ~ShippedModuleTest() override
    {
        EXPECT_EQ(Regsvr32(L"/u "), 0U);
        CoUninitialize();
        // Another test in this process finds the user's own.
        SetEnvironmentVariableW(L"TMP", nullptr);
    }

    ScratchFolder mFolder;
};

TEST_F(ShippedModuleTest, Registered_IsFoundByItsName_AndGoneAfterwards)
{
    CLSID found {};
    ASSERT_EQ(ClassOfAddIn(found), S_OK);
    EXPECT_TRUE(found == AddInClass);
    ASSERT_EQ(Regsvr32(L"/u "), 0U);
    EXPECT_NE(ClassOfAddIn(found), S_OK);
}

TEST_F(ShippedModuleTest, Registered_IsMadeByItsClass_AndCanGoAgain)
{
    ComRef<IDTExtensibility2> addIn;
    ASSERT_EQ(
        CoCreateInstance(AddInClass, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IDTExtensibility2), addIn.PutAny()), S_OK);
    auto* const module = GetModuleHandleW(ShippedName);
    ASSERT_NE(module, nullptr);
    using Answer = HRESULT(STDAPICALLTYPE*)();
    const auto canUnload = std::bit_cast<Answer>(GetProcAddress(module, "DllCanUnloadNow"));
    ASSERT_NE(canUnload, nullptr);
    EXPECT_EQ(canUnload(), S_FALSE);
    const auto application = ApplicationWithoutWindows();
    EXPECT_EQ(addIn->OnConnection(application->Automation().Get(), ConnectAtStartup, nullptr, nullptr), S_OK);
    EXPECT_FALSE(application->calls.empty());
    EXPECT_EQ(addIn->OnDisconnection(DisconnectAtShutdown, nullptr), S_OK);
    addIn.Clear();
    EXPECT_EQ(canUnload(), S_OK);
}

TEST_F(ShippedModuleTest, File_TellsWhatItIs)
{
    const auto path = ShippedPath();
    const auto version = Wide(ProductVersion);
    DWORD unused = 0;
    std::string facts(GetFileVersionInfoSizeW(path.c_str(), &unused), '\0');
    ASSERT_NE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(facts.size()), facts.data()), FALSE);
    for (const auto& [name, value] : { std::pair { L"ProductName", L"Tempodial" }, { L"FileVersion", version.c_str() },
             { L"ProductVersion", version.c_str() }, { L"OriginalFilename", ShippedName } }) {
        void* text = nullptr;
        UINT size = 0;
        const auto key = L"\\StringFileInfo\\040904B0\\" + std::wstring(name);
        ASSERT_NE(VerQueryValueW(facts.data(), key.c_str(), &text, &size), FALSE) << Narrow(name);
        EXPECT_EQ(Narrow(static_cast<const wchar_t*>(text)), Narrow(value)) << Narrow(name);
    }
}

}
