#pragma once

#include "forms/ControlModel.h"
#include "platform/controls/ProgressBar.h"

#include <cstdint>

namespace tempodial {

/// A progress bar as a plain model; its range is 0 to 100 until it is set.
class ProgressBarModel final : public ControlModel<ProgressBar>
{
public:
    using ControlModel::ControlModel;

    std::int32_t Min() const override { return mRange.min; }
    void SetMin(std::int32_t min) override;
    std::int32_t Max() const override { return mRange.max; }
    void SetMax(std::int32_t max) override;
    std::int32_t Value() const override { return mRange.value; }
    void SetValue(std::int32_t value) override;
    void Reset() override;

private:
    struct Range
    {
        std::int32_t min = 0;
        std::int32_t max = 100;
        std::int32_t value = 0;
    };

    /// Takes another range, its value moved into it; one that ends before it begins fails (380).
    void ChangeBounds(Range range);

    Range mRange;
};

}
