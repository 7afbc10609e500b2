#include "engine/foundation/TempodialConfig.h"

#include <gmock/gmock.h>

namespace tempodial {

TEST(TempodialConfigTest, Initialize_SetsEachConstant)
{
    TempodialConfig config;
    config.Initialize();
    EXPECT_EQ(config.mTraceInfo, "");
    EXPECT_EQ(config.mDisplayTime, "5");
    EXPECT_EQ(config.mSavedDataDays, 21);
    EXPECT_EQ(config.mApplyBackDays, 7);
    EXPECT_THAT(config.mApplyBackDayArray, testing::ElementsAre("1", "2", "3", "4", "5", "6", "7", "14", "21", "28"));
    EXPECT_EQ(config.mApplyBackDaysText, "7");
    EXPECT_EQ(config.mSlotsize, 5);
    EXPECT_EQ(config.mTDVersion, "1.2.0");
}

TEST(TempodialConfigTest, BeforeInitialize_EverythingIsEmpty)
{
    const TempodialConfig config;
    EXPECT_EQ(config.mSavedDataDays, 0);
    EXPECT_EQ(config.mSlotsize, 0);
    EXPECT_EQ(config.mTDVersion, "");
}

}
