#include "forms/ProgressBarModel.h"

#include "base/Failure.h"

#include <algorithm>

namespace tempodial {

void ProgressBarModel::SetMin(std::int32_t min)
{
    ChangeBounds({ min, mRange.max, mRange.value });
}

void ProgressBarModel::SetMax(std::int32_t max)
{
    ChangeBounds({ mRange.min, max, mRange.value });
}

void ProgressBarModel::SetValue(std::int32_t value)
{
    if (value < mRange.min || value > mRange.max) {
        throw Failure(Error::InvalidPropertyValue);
    }
    Change(mRange.value, value);
}

void ProgressBarModel::Reset()
{
    ControlState::Reset();
    mRange = {};
}

void ProgressBarModel::ChangeBounds(Range range)
{
    if (range.max < range.min) {
        throw Failure(Error::InvalidPropertyValue);
    }
    range.value = std::clamp(range.value, range.min, range.max);
    Change(mRange, range);
}

}
