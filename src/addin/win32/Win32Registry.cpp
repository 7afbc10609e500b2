#include "addin/win32/Win32Registry.h"

#include "addin/base/SystemText.h"
#include "addin/base/Windows.h"
#include "addin/win32/ErrorFailure.h"

#include <cstring>
#include <vector>

namespace tempodial {

namespace {

/// A key that is open, made when it was absent.
class OpenKey
{
public:
    OpenKey(Hive hive, const std::string& key, REGSAM access)
        : mError(static_cast<DWORD>(RegCreateKeyExW(hive == Hive::CurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
            Wide(key).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &mKey, nullptr)))
    {
    }
    ~OpenKey()
    {
        if (mKey != nullptr) {
            RegCloseKey(mKey);
        }
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    DWORD Error() const { return mError; }
    HKEY Get() const { return mKey; }

private:
    HKEY mKey = nullptr;
    DWORD mError;
};

/// The text of a value, whose last unit ends it.
Variant TextIn(const std::vector<unsigned char>& data, std::size_t size)
{
    std::wstring text(size / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    if (!text.empty()) {
        text.pop_back();
    }
    return Narrow(text);
}

}

Variant Win32Registry::Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access)
{
    const OpenKey open(hive, key, static_cast<REGSAM>(access));
    if (open.Error() != ERROR_SUCCESS) {
        return {};
    }
    const auto name = Wide(value);
    std::vector<unsigned char> data;
    DWORD size = 0;
    DWORD type = REG_NONE;
    auto result = RegQueryValueExW(open.Get(), name.c_str(), nullptr, &type, nullptr, &size);
    while (result == ERROR_SUCCESS && size > data.size()) {
        // The value may have grown since its size was told.
        data.resize(size);
        result = RegQueryValueExW(open.Get(), name.c_str(), nullptr, &type, data.data(), &size);
        if (result == ERROR_MORE_DATA) {
            result = ERROR_SUCCESS;
        }
    }
    if (result != ERROR_SUCCESS) {
        return {};
    }
    if (type == REG_SZ) {
        return TextIn(data, size);
    }
    std::int32_t number = 0;
    if (type != REG_DWORD || size != sizeof number) {
        return {};
    }
    std::memcpy(&number, data.data(), sizeof number);
    return number;
}

void Win32Registry::Write(Hive hive, const std::string& key, const std::string& value, const std::string& text)
{
    const OpenKey open(hive, key, KEY_SET_VALUE);
    if (open.Error() != ERROR_SUCCESS) {
        throw FailureOfError(open.Error());
    }
    const auto data = Wide(text);
    const auto size = (data.size() + 1) * sizeof(wchar_t);
    std::vector<unsigned char> bytes(size);
    std::memcpy(bytes.data(), data.c_str(), size);
    const auto result
        = RegSetValueExW(open.Get(), Wide(value).c_str(), 0, REG_SZ, bytes.data(), static_cast<DWORD>(size));
    if (result != ERROR_SUCCESS) {
        throw FailureOfError(static_cast<DWORD>(result));
    }
}

}
