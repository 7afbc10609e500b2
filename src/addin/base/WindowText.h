#pragma once

#include "addin/base/Windows.h"

#include <string>

namespace tempodial {

/// The properties of windows by which those of forms and controls are found: the name of the form's class, its number,
/// and the name of the control.
inline constexpr auto FormProperty = L"Tempodial.Form";
inline constexpr auto FormNumberProperty = L"Tempodial.FormNumber";
inline constexpr auto ControlProperty = L"Tempodial.Control";

/// The text of a window, its lines parted by a line feed alone.
std::string TextOf(HWND window);
/// Gives a window a name under a property.
void SetName(HWND window, const wchar_t* property, const std::string& name);
/// The name of a window under a property, "" for none.
std::string NameOf(HWND window, const wchar_t* property);
/// Takes the name away, as is due before the window goes; harmless when there is none.
void RemoveName(HWND window, const wchar_t* property);

}
