#include "base/Text.h"
#include "desktop/StartedSession.h"
#include "desktop/WhyWords.h"
#include "engine/core/TempodialMain.h"
#include "session/ProductFacts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <regex>

namespace tempodial {

namespace {

constexpr std::array WhyTerms { "plan", "budget", "garden", "letter", "site", "review", "ann", "berger", "draft",
    "q3" };

/// Made-up rules of the product, and made-up activities that they may match.
class WhyPropertyTest : public testing::Test
{
protected:
    struct Rules
    {
        std::vector<std::string> subject;
        std::vector<std::string> people;
    };

    std::size_t Below(std::size_t bound) { return mRandom() % bound; }
    std::vector<std::string> SomeTerms(std::size_t most)
    {
        std::vector<std::string> terms(Below(most + 1));
        std::generate(terms.begin(), terms.end(), [this] { return std::string(WhyTerms[Below(WhyTerms.size())]); });
        return terms;
    }
    static std::string Joined(const std::vector<std::string>& terms, const char* separator)
    {
        std::string text;
        for (const auto& term : terms) {
            text += (text.empty() ? "" : separator) + term;
        }
        return text;
    }
    void MakeProjects()
    {
        for (const auto* name : { "Alpha", "Beta", "Gamma", "Delta", "Epsilon" }) {
            const Rules rules { SomeTerms(3), SomeTerms(1) };
            mSession.AddIn().UpdateorAddProject(name, Joined(rules.subject, ", "), Joined(SomeTerms(1), ", "),
                Joined(rules.people, ", "), std::to_string(Below(3) + 1), false);
            mRules[name] = rules;
        }
    }
    Activity MakeActivity()
    {
        Activity activity;
        activity.type = "Editor";
        activity.description = Joined(SomeTerms(4), Below(2) == 0 ? " " : " of the ");
        activity.people = Joined(SomeTerms(2), "; ");
        return activity;
    }

    StartedSession mSession;
    std::mt19937 mRandom { 7 };
    std::map<std::string, Rules> mRules;
};

}

TEST_F(WhyPropertyTest, WhySentence_RandomActivities_NamesTheProductsProjectAndATermThatIsThere)
{
    constexpr int Rounds = 10;
    constexpr int Activities = 20;
    static const std::regex given("Given by the (subject|people) rule \"([^\"]*)\" of (.*)\\.");
    int ruled = 0;
    for (int i = 0; i < Rounds * Activities; ++i) {
        if (i % Activities == 0) {
            MakeProjects();
        }
        auto activity = MakeActivity();
        const auto subject = RuledSubject(activity);
        activity.project = mSession.AddIn().WhatProject(subject, activity.people);
        const auto why = WhySentence(activity, RuleTrial(RuledProject::ReadAll(mSession.Profile())), Titles::Shown);
        SCOPED_TRACE(subject + " with " + activity.people + ": " + why);
        std::smatch said;
        if (EqualIgnoringCase(activity.project, NoProject)) {
            EXPECT_EQ(why, "No rule of a project matches it.");
            continue;
        }
        ASSERT_TRUE(std::regex_match(why, said, given));
        ++ruled;
        EXPECT_EQ(said[3], activity.project);
        const bool isSubject = said[1] == "subject";
        const auto& rules = mRules[activity.project];
        const auto& terms = isSubject ? rules.subject : rules.people;
        EXPECT_NE(std::find(terms.begin(), terms.end(), said[2]), terms.end());
        EXPECT_NE((isSubject ? subject : activity.people).find(said[2]), std::string::npos);
    }
    EXPECT_GT(ruled, Rounds);
    EXPECT_LT(ruled, Rounds * Activities);
}

}
