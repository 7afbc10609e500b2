#include "desktop/KeyGuide.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace tempodial {

TEST(KeyGuideTest, KeyGuide_EachLine_StandsInTheManualPage)
{
    std::stringstream page;
    page << std::ifstream(TEMPODIAL_SOURCE_DIR "/docs/man/tempodial-desktop.1").rdbuf();
    std::string wanted = ".Sh KEYS\n";
    std::string place;
    for (const auto& line : KeyGuide()) {
        if (line.place != place) {
            wanted += place.empty() ? "" : ".El\n";
            place = line.place;
            wanted += ".Ss " + place + "\n.Bl -tag -width Ds\n";
        }
        wanted += ".It " + std::string(line.keys) + "\n" + line.what + ".\n";
    }
    EXPECT_THAT(page.str(), testing::HasSubstr(wanted + ".El\n"));
}

TEST(KeyGuideTest, KeyGuide_Places_StandTogether)
{
    std::set<std::string> left;
    std::string place;
    for (const auto& line : KeyGuide()) {
        if (line.place != place) {
            EXPECT_TRUE(left.insert(line.place).second) << line.place;
            place = line.place;
        }
    }
}

}
