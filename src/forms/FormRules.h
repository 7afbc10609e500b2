#pragma once

#include "platform/controls/Form.h"

#include <string>

namespace tempodial {

/// The label that tells what a control is for: the nearest one in front of it in its row, else the last of the row
/// above when that holds labels alone; null for none. The label's key goes to the first control that it tells of.
const ControlDefinition* LabelOf(const FormDefinition& form, const std::string& control);

/// The button on the form that has a role, null for none.
const ControlDefinition* ButtonFor(const FormDefinition& form, ButtonRole role);

/// A caption as it reads: the mark of its key is no part of it.
std::string WithoutKey(const std::string& caption);

}
