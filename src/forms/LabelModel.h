#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/Label.h"

#include <string>

namespace tempodial {

/// A label as a plain model.
class LabelModel final : public ControlModel<Label>
{
public:
    using ControlModel::ControlModel;

    std::string Caption() const override { return mText; }
    void SetCaption(const std::string& caption) override { Change(mText, caption); }
};

}
