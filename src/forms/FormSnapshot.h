#pragma once

#include "forms/FormModel.h"
#include "platform/controls/Form.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// A control as a person sees it at a moment. What its kind doesn't have stays as it is here.
struct ControlSnapshot
{
    std::string name;
    ControlKind kind = ControlKind::Label;
    /// The text, or the caption of what has one.
    std::string text {};
    std::vector<std::string> list {};
    std::int32_t index = -1;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    std::string tip {};
    std::int32_t min = 0;
    std::int32_t max = 0;
    std::int32_t value = 0;

    bool operator==(const ControlSnapshot&) const = default;
};

/// A form as a person sees it at a moment.
struct FormSnapshot
{
    std::int32_t number = 0;
    std::string className {};
    std::string title {};
    bool visible = false;
    std::vector<ControlSnapshot> controls {};

    bool operator==(const FormSnapshot&) const = default;
};

/// What can be seen of a form now.
FormSnapshot SnapshotOf(FormModel& form);

}
