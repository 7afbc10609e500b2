#include "engine/foundation/TempodialConfig.h"

#include "engine/core/ProductWords.h"

namespace tempodial {

void TempodialConfig::Initialize()
{
    mDisplayTime = "5";
    mSavedDataDays = SavedDataDays;
    mApplyBackDays = ApplyBackDays;
    mApplyBackDayArray = { "1", "2", "3", "4", "5", "6", "7", "14", "21", "28" };
    mApplyBackDaysText = std::to_string(mApplyBackDays);
    mSlotsize = 5;
    mTDVersion = ProductVersion;
}

}
