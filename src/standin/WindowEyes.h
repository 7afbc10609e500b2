#pragma once

#include "addin/base/Windows.h"
#include "forms/FormSnapshot.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What can be seen of the add-in's forms on the screen. They and their controls are found by the properties of their
/// windows.
class WindowEyes
{
public:
    /// The forms that can be seen, in the order of their numbers.
    static std::vector<FormSnapshot> Forms();
    /// The windows of those forms.
    static std::vector<HWND> Windows();
    /// The number of a form by its window.
    static std::int32_t NumberOf(HWND form);
    /// The control of a form, null when it has none of that name.
    static HWND Control(HWND form, const std::string& name);
    /// What can be seen of a control.
    static ControlSnapshot See(HWND control);
};

}
