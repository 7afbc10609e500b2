#include "addin/win32/forms/FormControls.h"

#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"
#include "addin/win32/forms/PlainWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The name of a control, or of the one that a window is part of.
std::string WhatIs(HWND window)
{
    const auto name = NameOf(window, ControlProperty);
    return name.empty() ? NameOf(GetParent(window), ControlProperty) + " inside" : name;
}

/// The system's service for screen readers, noting what it is told.
class NotingService final : public IAccPropServices
{
public:
    std::vector<std::string> told;
    std::vector<std::string> forgotten;

    STDMETHODIMP QueryInterface(REFIID /*iid*/, void** /*object*/) override { return E_NOINTERFACE; }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property, LPCWSTR text) override
    {
        const auto isName = property.Data1 == 0x608d3df8;
        const auto isWhole = object == static_cast<DWORD>(OBJID_CLIENT) && child == CHILDID_SELF;
        told.push_back(WhatIs(window) + (isName ? " is " : " says ") + Narrow(text) + (isWhole ? "" : " in part"));
        return S_OK;
    }
    STDMETHODIMP ClearHwndProps(
        HWND window, DWORD /*object*/, DWORD /*child*/, const MSAAPROPID* /*properties*/, int count) override
    {
        forgotten.push_back(WhatIs(window) + " " + std::to_string(count));
        return S_OK;
    }

    STDMETHODIMP SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    STDMETHODIMP SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*, AnnoScope) override
    {
        return E_NOTIMPL;
    }
    STDMETHODIMP ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    STDMETHODIMP ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override { return E_NOTIMPL; }
};

TEST(FormControlsTest, ScreenReaders_AreToldWhatTheWindowsDoNotSay)
{
    using enum ControlKind;
    const FormDefinition form { .className = "SampleForm",
        .title = "Sample",
        .rows = { { { "When", Label, "&When was it?" } }, { { "Year", ComboBox, "" }, { "Month", ComboBox, "" } },
            { { .name = "Tick", .kind = CheckBox, .text = "&Tick", .toolTip = "Tick it." } } } };
    NotingService service;
    const PlainWindow window;
    {
        const FormControls controls(window.Get(), form, AccessibleNames(ComRef<IAccPropServices>(&service)));
        // The year has its label directly in front, so that the system knows.
        EXPECT_THAT(
            service.told, ElementsAre("Month is When was it?", "Month inside is When was it?", "Tick says Tick it."));
        EXPECT_THAT(service.forgotten, IsEmpty());
    }
    EXPECT_THAT(
        service.forgotten, ElementsAre("When 2", "Year 2", "Year inside 2", "Month 2", "Month inside 2", "Tick 2"));
}

TEST(FormControlsTest, SystemHasNoService_NothingIsTold)
{
    const PlainWindow window;
    const FormControls controls(window.Get(),
        { .className = "SampleForm", .title = "", .rows = { { { "Box", ControlKind::TextBox, "" } } } },
        AccessibleNames(ComRef<IAccPropServices>()));
    auto* const box = GetWindow(window.Get(), GW_CHILD);
    EXPECT_EQ(NameOf(box, ControlProperty), "Box");
}

}
}
