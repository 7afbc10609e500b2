#include "standin/PrivateRegistry.h"

#include "addin/base/SystemText.h"
#include "wire/WireFailure.h"

#include <array>
#include <cstring>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::size_t LongestName = 16384;

void CheckRegistry(LONG result, const char* what)
{
    if (result != ERROR_SUCCESS) {
        throw WireFailure(WireFailure::Refused, std::string(what) + " failed with the error " + std::to_string(result));
    }
}

/// A key below a hive, made when it is absent.
class Key
{
public:
    Key(HKEY hive, const std::wstring& path)
    {
        CheckRegistry(RegCreateKeyExW(hive, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &mKey, nullptr),
            "opening a key of the registry");
    }
    /// The key that the first two arguments name.
    explicit Key(const std::vector<WireValue>& arguments)
        : Key(arguments.at(0).number != 0 ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, Wide(arguments.at(1).text))
    {
    }
    ~Key() { RegCloseKey(mKey); }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    HKEY Get() const { return mKey; }

private:
    HKEY mKey = nullptr;
};

WireValue ToWireData(DWORD type, const std::vector<BYTE>& data)
{
    if (type == REG_DWORD) {
        std::int32_t number = 0;
        std::memcpy(&number, data.data(), sizeof number);
        return WireValue::Number(number);
    }
    std::wstring text(data.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), data.data(), text.size() * sizeof(wchar_t));
    while (!text.empty() && text.back() == L'\0') {
        text.pop_back();
    }
    return WireValue::Text(Narrow(text));
}

}

PrivateRegistry::PrivateRegistry()
    : mRoot(L"Software\\TempodialStandIn\\" + std::to_wstring(GetCurrentProcessId()))
{
    // One that was ended by force, and had this number, may have left its own.
    RegDeleteTreeW(HKEY_CURRENT_USER, mRoot.c_str());
    const Key user(HKEY_CURRENT_USER, mRoot + L"\\user");
    const Key machine(HKEY_CURRENT_USER, mRoot + L"\\machine");
    CheckRegistry(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine.Get()), "hiding the machine's registry");
    CheckRegistry(RegOverridePredefKey(HKEY_CURRENT_USER, user.Get()), "hiding the user's registry");
}

PrivateRegistry::~PrivateRegistry()
{
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
    RegDeleteTreeW(HKEY_CURRENT_USER, mRoot.c_str());
}

void PrivateRegistry::Set(const std::vector<WireValue>& arguments)
{
    const Key key(arguments);
    const auto value = Wide(arguments.at(2).text);
    const auto& data = arguments.at(3);
    if (data.kind == WireKind::Nothing) {
        RegDeleteValueW(key.Get(), value.c_str());
        return;
    }
    std::vector<BYTE> bytes;
    if (data.kind == WireKind::Number) {
        const auto number = static_cast<std::int32_t>(data.number);
        bytes.resize(sizeof number);
        std::memcpy(bytes.data(), &number, sizeof number);
    } else {
        const auto text = Wide(data.text);
        bytes.resize((text.size() + 1) * sizeof(wchar_t));
        std::memcpy(bytes.data(), text.c_str(), bytes.size());
    }
    CheckRegistry(RegSetValueExW(key.Get(), value.c_str(), 0, data.kind == WireKind::Number ? REG_DWORD : REG_SZ,
                      bytes.data(), static_cast<DWORD>(bytes.size())),
        "setting a value of the registry");
}

WireValue PrivateRegistry::Get(const std::vector<WireValue>& arguments)
{
    const auto wanted = arguments.at(2).text;
    for (const auto& entry : List(arguments).list) {
        if (_stricmp(entry.list.at(0).text.c_str(), wanted.c_str()) == 0) {
            return entry.list.at(1);
        }
    }
    return {};
}

WireValue PrivateRegistry::List(const std::vector<WireValue>& arguments)
{
    const Key key(arguments);
    std::vector<WireValue> entries;
    DWORD largest = 0;
    CheckRegistry(RegQueryInfoKeyW(key.Get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                      &largest, nullptr, nullptr),
        "listing the registry");
    std::vector<wchar_t> name(LongestName);
    std::vector<BYTE> data(largest);
    for (DWORD index = 0;; ++index) {
        auto nameSize = static_cast<DWORD>(name.size());
        auto dataSize = largest;
        DWORD type = REG_NONE;
        if (RegEnumValueW(key.Get(), index, name.data(), &nameSize, nullptr, &type, data.data(), &dataSize)
            != ERROR_SUCCESS) {
            return WireValue::List(std::move(entries));
        }
        entries.push_back(WireValue::List({ WireValue::Text(Narrow({ name.data(), nameSize })),
            ToWireData(type, { data.begin(), data.begin() + static_cast<std::ptrdiff_t>(dataSize) }) }));
    }
}

}
