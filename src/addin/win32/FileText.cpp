#include "addin/win32/FileText.h"

#include "addin/base/SystemText.h"

namespace tempodial {

namespace {

std::string ToSystem(const std::string& text)
{
    return InCodePage(text, GetACP());
}

std::string FromSystem(std::string_view bytes)
{
    const auto size = static_cast<int>(bytes.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, wide.data(), static_cast<int>(wide.size()));
    return Narrow(wide);
}

std::string AsItIs(const std::string& text)
{
    return text;
}

}

std::string InCodePage(const std::string& text, unsigned page)
{
    // It lacks nothing, and the system refuses to be told what to do about that.
    if (page == CP_UTF8) {
        return text;
    }
    const auto wide = Wide(text);
    const auto size = static_cast<int>(wide.size());
    const auto length = WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, wide.data(), size, nullptr, 0, "?", nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, wide.data(), size, bytes.data(), length, "?", nullptr);
    return bytes;
}

FileText FileText::OfSystem()
{
    return { ToSystem, FromSystem };
}

FileText FileText::OfHost()
{
    return { AsItIs, FromWindows1252 };
}

}
