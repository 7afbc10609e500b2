#include "cli/UserUnits.h"

#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace tempodial {

namespace {

using testing::HasSubstr;

}

TEST(UserUnitsTest, Install_PathWithMarks_IsQuotedByTheRulesOfEachFile)
{
    const TempFolder folder(TempFolder::InMemory());
    ::setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1);
    const UserUnits units("/home/a b/$c %d\"e\\f`g");
    EXPECT_EQ(units.Install().size(), 4U);
    const std::string unitWords = R"(" --profile "/home/a b/$$c %%d\"e\\f`g")";
    EXPECT_THAT(folder.Read("systemd/user/tempodial-track.service"), HasSubstr("/tempodial-track" + unitWords + "\n"));
    EXPECT_THAT(
        folder.Read("systemd/user/tempodial-sync.service"), HasSubstr("/tempodial" + unitWords + " --quiet sync\n"));
    EXPECT_THAT(folder.Read("autostart/tempodial-track.desktop"),
        HasSubstr(R"(/tempodial-track" --profile "/home/a b/\\$c %%d\\"e\\\\f\\`g")"
                  "\n"));
    EXPECT_EQ(units.Uninstall().size(), 4U);
    ::unsetenv("XDG_CONFIG_HOME");
}

}
