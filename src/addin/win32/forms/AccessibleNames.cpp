#include "addin/win32/forms/AccessibleNames.h"

#include "addin/base/SystemText.h"
#include "addin/win32/forms/WindowParts.h"

#include <array>

namespace tempodial {

namespace {

// The system's identities, which no library of the compiler's has.
constexpr GUID NameProperty { 0x608d3df8, 0x8128, 0x4aa7, { 0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91 } };
constexpr GUID DescriptionProperty { 0x4d48dfe4, 0xbd3f, 0x491f, { 0xa6, 0x48, 0x49, 0x2d, 0x6f, 0x20, 0xc5, 0x88 } };
constexpr GUID ServiceClass { 0xb5f8350b, 0x0548, 0x48b1, { 0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7 } };

constexpr GUID ServiceInterface { 0x6e26e776, 0x04f0, 0x495d, { 0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69 } };

constexpr auto WholeWindow = static_cast<DWORD>(OBJID_CLIENT);

}

AccessibleNames::AccessibleNames()
{
    CoCreateInstance(ServiceClass, nullptr, CLSCTX_INPROC_SERVER, ServiceInterface, mService.PutAny());
}

void AccessibleNames::Name(HWND window, const std::string& name) const
{
    Say(window, NameProperty, name);
}

void AccessibleNames::Describe(HWND window, const std::string& description) const
{
    Say(window, DescriptionProperty, description);
}

void AccessibleNames::Forget(HWND window) const
{
    if (mService) {
        const std::array properties { NameProperty, DescriptionProperty };
        for (auto* const part : WithItsParts(window)) {
            mService->ClearHwndProps(
                part, WholeWindow, CHILDID_SELF, properties.data(), static_cast<int>(properties.size()));
        }
    }
}

void AccessibleNames::Say(HWND window, const GUID& property, const std::string& text) const
{
    if (mService) {
        for (auto* const part : WithItsParts(window)) {
            mService->SetHwndPropStr(part, WholeWindow, CHILDID_SELF, property, Wide(text).c_str());
        }
    }
}

}
