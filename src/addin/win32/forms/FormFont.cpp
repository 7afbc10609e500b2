#include "addin/win32/forms/FormFont.h"

#include "addin/base/SystemText.h"
#include "addin/win32/forms/ScreenScale.h"

#include <string_view>

namespace tempodial {

FormFont::FormFont(unsigned dpi)
    : mDevice(CreateCompatibleDC(nullptr))
{
    const auto font = MessageFont(dpi);
    mFont = CreateFontIndirectW(&font);
    mFormer = SelectObject(mDevice, mFont);
}

FormFont::~FormFont()
{
    SelectObject(mDevice, mFormer);
    DeleteDC(mDevice);
    DeleteObject(mFont);
}

PixelSize FormFont::Of(const std::string& text, int widest) const
{
    const auto wide = Wide(text.empty() ? "X" : text);
    RECT area { .left = 0, .top = 0, .right = widest, .bottom = 0 };
    DrawTextW(mDevice, wide.c_str(), static_cast<int>(wide.size()), &area,
        DT_CALCRECT | (widest > 0 ? DT_WORDBREAK : DT_SINGLELINE));
    return { .width = text.empty() ? 0 : static_cast<int>(area.right), .height = static_cast<int>(area.bottom) };
}

int FormFont::CharacterWidth() const
{
    constexpr std::wstring_view Letters = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr auto Count = static_cast<int>(Letters.size());
    SIZE size {};
    GetTextExtentPoint32W(mDevice, Letters.data(), Count, &size);
    return static_cast<int>(size.cx) / Count;
}

}
