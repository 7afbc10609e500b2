#include "forms/FormDifferences.h"

#include <algorithm>

namespace tempodial {

namespace {

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

std::string Fields(const ControlSnapshot& control)
{
    std::string list;
    for (const auto& entry : control.list) {
        list += (list.empty() ? "" : ", ") + Quoted(entry);
    }
    return Quoted(control.name) + " of kind " + std::to_string(static_cast<int>(control.kind)) + ", text "
        + Quoted(control.text) + ", list [" + list + "], index " + std::to_string(control.index)
        + (control.checked ? ", checked" : "") + (control.enabled ? "" : ", disabled")
        + (control.visible ? "" : ", hidden") + ", tip " + Quoted(control.tip) + ", " + std::to_string(control.value)
        + " in " + std::to_string(control.min) + " to " + std::to_string(control.max);
}

/// Where a form differs, "" when it doesn't.
std::string Difference(const FormSnapshot& model, const FormSnapshot& seen)
{
    const auto form = "the form " + std::to_string(model.number) + " of the class " + Quoted(model.className);
    if (model.className != seen.className || model.title != seen.title || model.visible != seen.visible
        || model.controls.size() != seen.controls.size()) {
        return form + " is " + Quoted(model.title) + " with " + std::to_string(model.controls.size())
            + " controls, and its window shows " + Quoted(seen.title) + " with " + std::to_string(seen.controls.size());
    }
    const auto [ours, theirs] = std::mismatch(model.controls.begin(), model.controls.end(), seen.controls.begin());
    return ours == model.controls.end() ? ""
                                        : form + " has " + Fields(*ours) + ", and its window shows " + Fields(*theirs);
}

}

std::vector<std::string> FormDifferences(
    const std::vector<FormSnapshot>& visible, const std::vector<FormSnapshot>& seen)
{
    if (seen.size() != visible.size()) {
        return { std::to_string(visible.size()) + " forms can be seen, and " + std::to_string(seen.size())
            + " windows show one" };
    }
    std::vector<std::string> differences;
    for (std::size_t place = 0; place < seen.size(); ++place) {
        if (auto difference = Difference(visible[place], seen[place]); !difference.empty()) {
            differences.push_back(std::move(difference));
        }
    }
    return differences;
}

}
