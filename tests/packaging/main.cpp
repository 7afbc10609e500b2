// What the tests of the setup program ask of Windows:
//   probe             asks COM for the add-in as Outlook does, and says which module it comes from
//   probe hold        the same, and keeps it until the input ends
//   probe list KEY... prints all values below these keys of both hives, a line each: hive\key, name, value
//   probe limited PROGRAM... runs a program as a user who is no administrator, and ends as it does
//   probe remove KEY... deletes these keys of both hives with all that is below

#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "addin/base/SystemText.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

using tempodial::Narrow;
using tempodial::Wide;

const std::pair<HKEY, const char*> Hives[] = { { HKEY_CURRENT_USER, "HKCU" }, { HKEY_LOCAL_MACHINE, "HKLM" } };
constexpr DWORD LongestText = 4096;

std::string ModuleOfAddIn()
{
    std::array<wchar_t, MAX_PATH> path {};
    auto* const module = GetModuleHandleW(L"Tempodial.dll");
    return module == nullptr || GetModuleFileNameW(module, path.data(), MAX_PATH) == 0 ? std::string()
                                                                                       : Narrow(path.data());
}

int AskForAddIn(bool hold)
{
    CLSID found {};
    if (const auto result = CLSIDFromProgID(L"Tempodial.Connect", &found); FAILED(result)) {
        std::printf("no add-in is registered: %08lx\n", static_cast<unsigned long>(result));
        return 1;
    }
    tempodial::ComRef<IDTExtensibility2> addIn;
    const auto result
        = CoCreateInstance(found, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IDTExtensibility2), addIn.PutAny());
    if (FAILED(result)) {
        std::printf("the add-in can't be made: %08lx\n", static_cast<unsigned long>(result));
        return 1;
    }
    std::puts(ModuleOfAddIn().c_str());
    (void)std::fflush(stdout);
    if (hold) {
        (void)std::getchar();
    }
    return 0;
}

std::string TextOf(DWORD type, const std::vector<wchar_t>& data)
{
    if (type == REG_DWORD) {
        DWORD number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        return std::to_string(number);
    }
    return Narrow(data.data());
}

void List(HKEY hive, const std::string& hiveName, const std::wstring& path)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(hive, path.c_str(), 0, KEY_READ | KEY_WOW64_64KEY, &key) != ERROR_SUCCESS) {
        return;
    }
    std::vector<wchar_t> name(LongestText);
    for (DWORD index = 0;; ++index) {
        std::vector<wchar_t> data(LongestText);
        auto nameSize = LongestText;
        auto dataSize = static_cast<DWORD>((LongestText - 1) * sizeof(wchar_t));
        DWORD type = REG_NONE;
        auto* const bytes = reinterpret_cast<BYTE*>(data.data());
        if (RegEnumValueW(key, index, name.data(), &nameSize, nullptr, &type, bytes, &dataSize) != ERROR_SUCCESS) {
            break;
        }
        std::puts((hiveName + "\\" + Narrow(path) + "\t" + Narrow(name.data()) + "\t" + TextOf(type, data)).c_str());
    }
    for (DWORD index = 0;; ++index) {
        auto nameSize = LongestText;
        if (RegEnumKeyExW(key, index, name.data(), &nameSize, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) {
            break;
        }
        List(hive, hiveName, path + L"\\" + name.data());
    }
    RegCloseKey(key);
}

/// Runs a command with the rights of this process but those of an administrator; its exit status, or an error's number.
DWORD RunLimited(std::wstring command)
{
    SID_IDENTIFIER_AUTHORITY authority = SECURITY_NT_AUTHORITY;
    SID_AND_ATTRIBUTES administrators {};
    HANDLE own = nullptr;
    HANDLE limited = nullptr;
    STARTUPINFOW start {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process {};
    if (AllocateAndInitializeSid(
            &authority, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0, 0, 0, 0, 0, 0, &administrators.Sid)
            == FALSE
        || OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own) == FALSE
        || CreateRestrictedToken(own, 0, 1, &administrators, 0, nullptr, 0, nullptr, &limited) == FALSE
        || CreateProcessAsUserW(
               limited, nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)
            == FALSE) {
        return GetLastError();
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.hProcess, &status);
    return status;
}

}

int main(int count, char** arguments)
{
    const std::string_view what = count > 1 ? arguments[1] : "";
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 1;
    }
    int status = 0;
    if (what.empty() || what == "hold") {
        status = AskForAddIn(what == "hold");
    } else if (what == "limited") {
        std::wstring command;
        for (int index = 2; index < count; ++index) {
            command += (index == 2 ? L"" : L" ") + Wide(arguments[index]);
        }
        status = static_cast<int>(RunLimited(command));
    }
    for (int index = 2; index < count; ++index) {
        const auto path = Wide(arguments[index]);
        for (const auto& [hive, name] : Hives) {
            if (what == "list") {
                List(hive, name, path);
            } else if (what == "remove") {
                RegDeleteTreeW(hive, path.c_str());
            }
        }
    }
    CoUninitialize();
    return status;
}
