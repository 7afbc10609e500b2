#pragma once

#include "addin/win32/forms/MessageOwner.h"
#include "platform/controls/MessageBox.h"

#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// Message boxes of the system, in front of the window that owns them.
class Win32MessageBox final : public MessageBox
{
public:
    Win32MessageBox(std::string title, MessageOwner owner)
        : mTitle(std::move(title))
        , mOwner(std::move(owner))
    {
    }

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

    /// The number of the system's for a box.
    static unsigned Kind(const std::vector<Answer>& buttons, MessageIcon icon);

private:
    std::string mTitle;
    MessageOwner mOwner;
};

}
