#include "addin/base/SystemText.h"

#include "base/Failure.h"

namespace tempodial {

std::wstring Wide(std::string_view text)
{
    const auto size = static_cast<int>(text.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(std::wstring_view text)
{
    const auto size = static_cast<int>(text.size());
    const auto bytes = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), bytes, nullptr, nullptr);
    return narrow;
}

BSTR NewBstr(std::string_view text)
{
    const auto wide = Wide(text);
    auto* bstr = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (bstr == nullptr) {
        throw Failure(Error::OutOfMemory);
    }
    return bstr;
}

std::string FromBstr(BSTR text)
{
    return text == nullptr ? std::string() : Narrow({ text, SysStringLen(text) });
}

}
