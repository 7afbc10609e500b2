#pragma once

#include "track/DesktopSource.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>

namespace tempodial {

/// One kind of desktop, opened with an idle time of 300 ms or refused.
template <class Desktop> class DesktopSourceFixture : public testing::Test
{
protected:
    static std::unique_ptr<DesktopSource> Opened()
    {
        DesktopSight sight;
        auto desktop = Desktop::Open({ Notice }, sight);
        EXPECT_TRUE(desktop) << sight.why;
        return desktop;
    }
    /// Why it can't be opened here.
    static std::string Refusal()
    {
        DesktopSight sight;
        EXPECT_FALSE(Desktop::Open({}, sight));
        EXPECT_FALSE(sight.window || sight.title || sight.idle || sight.lock);
        return sight.why;
    }

    static constexpr std::chrono::milliseconds Notice { 300 };
};

}
