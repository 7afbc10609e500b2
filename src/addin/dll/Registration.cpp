#include "addin/dll/Registration.h"

#include "addin/base/AddInDesigner.h"
#include "addin/base/SystemText.h"
#include "addin/win32/ErrorFailure.h"
#include "engine/core/ProductWords.h"

#include <array>
#include <utility>

namespace tempodial {

namespace {

constexpr auto Classes = L"Software\\Classes\\";
constexpr auto AddIns = L"Software\\Microsoft\\Office\\Outlook\\Addins\\";
constexpr auto Description = L"Tempodial Outlook AddOn";
/// Loaded at the start, and connected.
constexpr DWORD LoadAtStart = 3;

void CheckWritten(LSTATUS result)
{
    if (result != ERROR_SUCCESS) {
        throw FailureOfError(static_cast<DWORD>(result));
    }
}

/// Writes a text under a key, which is made; without a name it is the key's own.
void WriteText(HKEY hive, const std::wstring& key, const wchar_t* name, const std::wstring& text)
{
    CheckWritten(RegSetKeyValueW(
        hive, key.c_str(), name, REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

void WriteNumber(HKEY hive, const std::wstring& key, const wchar_t* name, DWORD number)
{
    CheckWritten(RegSetKeyValueW(hive, key.c_str(), name, REG_DWORD, &number, sizeof number));
}

std::wstring ProgId()
{
    return Wide(ConnectProgId);
}

/// The identity of the class in braces.
std::wstring ClassId()
{
    constexpr int Longest = 40;
    std::array<wchar_t, Longest> text {};
    StringFromGUID2(AddInClass, text.data(), Longest);
    return text.data();
}

}

Registration::Registration(std::string module)
    : mModule(std::move(module))
{
}

void Registration::Write() const
{
    try {
        WriteClass(HKEY_LOCAL_MACHINE);
    } catch (const Failure& failure) {
        if (!failure.Is(Error::PermissionDenied)) {
            throw;
        }
        WriteClass(HKEY_CURRENT_USER);
    }
    const auto key = AddIns + ProgId();
    WriteText(HKEY_CURRENT_USER, key, L"FriendlyName", Wide(ProductName));
    WriteText(HKEY_CURRENT_USER, key, L"Description", Description);
    WriteNumber(HKEY_CURRENT_USER, key, L"LoadBehavior", LoadAtStart);
    WriteNumber(HKEY_CURRENT_USER, key, L"CommandLineSafe", 0);
    // Newer versions don't tell of their end otherwise.
    WriteNumber(HKEY_CURRENT_USER, key, L"RequireShutdownNotification", 1);
}

void Registration::WriteClass(HKEY hive) const
{
    const auto itsClass = Classes + std::wstring(L"CLSID\\") + ClassId();
    WriteText(hive, itsClass, nullptr, Wide(ProductName));
    WriteText(hive, itsClass + L"\\InprocServer32", nullptr, Wide(mModule));
    WriteText(hive, itsClass + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    WriteText(hive, itsClass + L"\\ProgID", nullptr, ProgId());
    WriteText(hive, Classes + ProgId() + L"\\CLSID", nullptr, ClassId());
}

void Registration::Remove()
{
    for (const auto hive : { HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER }) {
        RegDeleteTreeW(hive, (Classes + std::wstring(L"CLSID\\") + ClassId()).c_str());
        RegDeleteTreeW(hive, (Classes + ProgId()).c_str());
    }
    RegDeleteTreeW(HKEY_CURRENT_USER, (AddIns + ProgId()).c_str());
}

}
