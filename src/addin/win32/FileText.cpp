#include "addin/win32/FileText.h"

#include "addin/base/SystemText.h"

namespace tempodial {

namespace {

std::string ToSystem(const std::string& text)
{
    const auto wide = Wide(text);
    const auto size = static_cast<int>(wide.size());
    const auto length = WideCharToMultiByte(CP_ACP, 0, wide.data(), size, nullptr, 0, "?", nullptr);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), size, bytes.data(), length, "?", nullptr);
    return bytes;
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

FileText FileText::OfSystem()
{
    return { ToSystem, FromSystem };
}

FileText FileText::OfHost()
{
    return { AsItIs, FromWindows1252 };
}

}
