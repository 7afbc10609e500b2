#pragma once

#include "addin/base/ComRef.h"
#include "addin/base/DispatchObject.h"
#include "addin/base/Windows.h"

namespace tempodial {

/// A window that a test makes and takes away.
class PlainWindow
{
public:
    PlainWindow()
        : mWindow(CreateWindowExW(0, L"STATIC", L"host", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr))
    {
    }
    ~PlainWindow() { Destroy(); }
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;

    HWND Get() const { return mWindow; }
    void Destroy()
    {
        if (mWindow != nullptr) {
            DestroyWindow(mWindow);
            mWindow = nullptr;
        }
    }

private:
    HWND mWindow;
};

/// An object of a host that has a window.
class WindowObject final : public DispatchObject<IDispatch, IOleWindow>
{
public:
    explicit WindowObject(HWND window)
        : mWindow(window)
    {
    }
    static ComRef<IDispatch> Make(HWND window)
    {
        return ComRef<IDispatch>(static_cast<IDispatch*>(new WindowObject(window)));
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override
    {
        *object = iid == IID_IOleWindow                   ? static_cast<void*>(static_cast<IOleWindow*>(this))
            : iid == IID_IUnknown || iid == IID_IDispatch ? static_cast<void*>(static_cast<IDispatch*>(this))
                                                          : nullptr;
        if (*object == nullptr) {
            return E_NOINTERFACE;
        }
        AddRef();
        return S_OK;
    }
    STDMETHODIMP GetWindow(HWND* window) override
    {
        *window = mWindow;
        return mWindow == nullptr ? E_FAIL : S_OK;
    }
    STDMETHODIMP ContextSensitiveHelp(BOOL /*enters*/) override { return E_NOTIMPL; }

private:
    HWND mWindow;
};

}
