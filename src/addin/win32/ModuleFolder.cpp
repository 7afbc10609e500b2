#include "addin/win32/ModuleFolder.h"

#include "addin/base/SystemText.h"
#include "addin/win32/ErrorFailure.h"

#include <cstddef>

namespace tempodial {

namespace {

/// Lies in this module, so that the system can tell which one it is.
constexpr int PlaceInModule = 0;

}

std::string ModulePath()
{
    HMODULE module = nullptr;
    if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            reinterpret_cast<LPCWSTR>(&PlaceInModule), &module) // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
        == FALSE) {
        throw FailureOfLastError();
    }
    std::wstring path(MAX_PATH, L'\0');
    auto size = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    while (size == path.size()) {
        path.resize(path.size() * 2);
        size = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(size);
    return Narrow(path);
}

std::string ModuleFolder()
{
    const auto path = ModulePath();
    return path.substr(0, path.find_last_of('\\'));
}

}
