#include "addin/base/WindowText.h"

#include "addin/base/SystemText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace tempodial {

namespace {

/// The atom that a property holds, 0 for none.
ATOM AtomIn(HANDLE property)
{
    return static_cast<ATOM>(std::bit_cast<std::uintptr_t>(property));
}

}

std::string TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    std::erase(text, L'\r');
    return Narrow(text);
}

void SetName(HWND window, const wchar_t* property, const std::string& name)
{
    const std::uintptr_t atom = GlobalAddAtomW(Wide(name).c_str());
    SetPropW(window, property, std::bit_cast<HANDLE>(atom));
}

std::string NameOf(HWND window, const wchar_t* property)
{
    constexpr int LongestName = 256;
    std::array<wchar_t, LongestName> name {};
    const auto atom = AtomIn(GetPropW(window, property));
    const auto size = atom == 0 ? 0U : GlobalGetAtomNameW(atom, name.data(), LongestName);
    return Narrow({ name.data(), size });
}

void RemoveName(HWND window, const wchar_t* property)
{
    if (const auto atom = AtomIn(RemovePropW(window, property))) {
        GlobalDeleteAtom(atom);
    }
}

}
