#include "workload/Projects.h"

#include "base/Text.h"

#include <set>

namespace tempodial {

namespace {

TEST(ProjectsTest, Name_FiveHundredProjects_HaveNamesOfTheirOwn)
{
    std::set<std::string> rules;
    for (std::size_t number = 0; number < 500; ++number) {
        EXPECT_EQ(Fold(Projects::Name(number)), Projects::Rule(number));
        rules.insert(Projects::Rule(number));
    }
    EXPECT_EQ(rules.size(), 500U);
    for (const auto& rule : rules) {
        for (const auto& other : rules) {
            EXPECT_TRUE(rule == other || other.find(rule) == std::string::npos) << rule << " in " << other;
        }
    }
}

}

}
