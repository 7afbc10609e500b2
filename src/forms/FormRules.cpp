#include "forms/FormRules.h"

#include <algorithm>
#include <vector>

namespace tempodial {

namespace {

using DefinedRow = std::vector<ControlDefinition>;

bool IsShownLabel(const ControlDefinition& control)
{
    return control.kind == ControlKind::Label && control.onForm;
}

/// The last label of a row of labels alone, null for another row.
const ControlDefinition* LastOfLabels(const DefinedRow& row)
{
    return !row.empty() && std::all_of(row.begin(), row.end(), IsShownLabel) ? &row.back() : nullptr;
}

}

const ControlDefinition* LabelOf(const FormDefinition& form, const std::string& control)
{
    const DefinedRow* above = nullptr;
    for (const auto& row : form.rows) {
        const ControlDefinition* label = nullptr;
        for (const auto& candidate : row) {
            if (candidate.name == control) {
                return label != nullptr || above == nullptr ? label : LastOfLabels(*above);
            }
            if (IsShownLabel(candidate)) {
                label = &candidate;
            }
        }
        above = &row;
    }
    return nullptr;
}

const ControlDefinition* ButtonFor(const FormDefinition& form, ButtonRole role)
{
    for (const auto& row : form.rows) {
        const auto button = std::find_if(row.begin(), row.end(), [role](const ControlDefinition& control) {
            return control.kind == ControlKind::Button && control.onForm && control.role == role;
        });
        if (button != row.end()) {
            return &*button;
        }
    }
    return nullptr;
}

std::string WithoutKey(const std::string& caption)
{
    std::string read;
    bool isMark = false;
    for (const auto character : caption) {
        isMark = character == '&' && !isMark;
        if (!isMark) {
            read += character;
        }
    }
    return read;
}

}
