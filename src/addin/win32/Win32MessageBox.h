#pragma once

#include "platform/controls/MessageBox.h"

#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// Message boxes of the system, in front of the window that is in front.
class Win32MessageBox final : public MessageBox
{
public:
    explicit Win32MessageBox(std::string title)
        : mTitle(std::move(title))
    {
    }

    Answer Show(const std::string& text, const std::vector<Answer>& buttons, MessageIcon icon) override;

    /// The number of the system's for a box.
    static unsigned Kind(const std::vector<Answer>& buttons, MessageIcon icon);

private:
    std::string mTitle;
};

}
