#include "engine/dialogs/ProblemReportText.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

constexpr auto Closing
    = "To help diagnose your problem, we have attached the information about your activities that Tempodial uses to "
      "build the activity calendar. This information may include email subjects and addresses. We will use the "
      "information we have collected solely to diagnose your problem, we will treat the information with complete "
      "confidentiality and never pass it to anyone else, and we will destroy it once we have resolved your problem. If "
      "this is OK, hit 'Send'.";

}

TEST(ProblemReportTextTest, Body_HasALineForEachAnswer)
{
    EXPECT_EQ(ProblemReportText::Body("Tuesday, October 10, 2006", "a list", "nothing\r\nat all", "1.2.0"),
        std::string("Day: Tuesday, October 10, 2006\r\nExpected: a list\r\nActual: nothing\r\nat all\r\n"
                    "Version: 1.2.0\r\n\r\n")
            + Closing);
}

TEST(ProblemReportTextTest, Body_NothingAnswered_KeepsTheLines)
{
    EXPECT_EQ(ProblemReportText::Body("", "", "", "1.2.0"),
        std::string("Day: \r\nExpected: \r\nActual: \r\nVersion: 1.2.0\r\n\r\n") + Closing);
}

}
