#pragma once

#include "desktop/October.h"
#include "desktop/StartedSession.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {

/// A test of a log with the add-in over it and no windows on a screen.
class LogFixture : public testing::Test
{
protected:
    Activity Added(const std::string& description, Date start, const std::string& project = "Garden")
    {
        return mStarted.Added(description, start, project);
    }

    StartedSession mStarted;
    Session& mSession = mStarted.Opened();
};

}
