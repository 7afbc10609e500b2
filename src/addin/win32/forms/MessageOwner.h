#pragma once

#include "addin/base/Windows.h"
#include "addin/win32/forms/Win32FormFactory.h"
#include "base/Ref.h"

#include <utility>

namespace tempodial {

/// Who owns a message box, so that it stands in front of that window and nobody works it meanwhile.
class MessageOwner
{
public:
    explicit MessageOwner(Ref<const Win32FormFactory> forms)
        : mForms(std::move(forms))
    {
    }

    /// The form on top, else the host's window, else the one in front of all.
    HWND Get() const
    {
        auto* owner = mForms->OnTop();
        if (owner == nullptr) {
            owner = mForms->Host().Get();
        }
        return owner != nullptr ? owner : GetForegroundWindow();
    }

private:
    Ref<const Win32FormFactory> mForms;
};

}
