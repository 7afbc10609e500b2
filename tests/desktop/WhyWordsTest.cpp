#include "desktop/WhyWords.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

RuledProject ProjectRuledBy(const std::string& name, const std::string& subject, const std::string& people)
{
    return { .name = name, .precedence = "2", .subjectRule = subject, .peopleRule = people };
}

class WhyWordsTest : public testing::Test
{
protected:
    std::string Why(const std::string& project, bool isByHand, const std::string& description)
    {
        Activity activity;
        activity.type = "Writer";
        activity.description = description;
        activity.people = "Ann Berger";
        activity.project = project;
        activity.isProjectByHand = isByHand;
        return WhySentence(activity, mRules, mTitles);
    }

    Titles mTitles = Titles::Shown;
    RuleTrial mRules { { ProjectRuledBy("Alpha", "plan", ""), ProjectRuledBy("Beta", "sheet", "") } };
};

}

TEST_F(WhyWordsTest, WhySentence_GivenByARule_NamesItsTerm)
{
    EXPECT_EQ(Why("Alpha", false, "the plan"), "Given by the subject rule \"plan\" of Alpha.");
    EXPECT_EQ(Why("Alpha", true, "the plan"), "Set by hand; the subject rule \"plan\" of Alpha would give it, too.");
}

TEST_F(WhyWordsTest, WhySentence_NoRule_SaysSo)
{
    EXPECT_EQ(Why("", false, "letter"), "No rule of a project matches it.");
    EXPECT_EQ(Why("", true, "letter"), "Set by hand; no rule matches it either.");
    EXPECT_EQ(Why("Gamma", true, "letter"), "Set by hand; no rule matches it.");
}

TEST_F(WhyWordsTest, WhySentence_RulesGiveAnother_SaysWhich)
{
    EXPECT_EQ(Why("Alpha", true, "sheet"), "Set by hand; the rules would give Beta.");
    EXPECT_EQ(Why("Alpha", false, "sheet"), "Alpha is from before; now the rules would give Beta.");
    EXPECT_EQ(Why("Gamma", false, "letter"), "Gamma is from before; now no rule matches it.");
}

TEST_F(WhyWordsTest, WhySentence_RuleForPeople_SaysSo)
{
    mRules = RuleTrial({ ProjectRuledBy("Alpha", "", "berger") });
    EXPECT_EQ(Why("Alpha", false, "letter"), "Given by the people rule \"berger\" of Alpha.");
}

TEST_F(WhyWordsTest, WhySentence_TitlesHidden_TellsNoTerm)
{
    mTitles = Titles::Hidden;
    EXPECT_EQ(Why("Alpha", false, "the plan"), "Given by the subject rule of Alpha.");
}

TEST_F(WhyWordsTest, WhyLines_Projects_StandInTheirOrderWithWhatHitAndWhatExcluded)
{
    const RuleTrial rules(
        { { .name = "Draft", .precedence = "1", .subjectRule = "plan", .notSubjectRule = "final", .peopleRule = "" },
            { .name = "Team", .precedence = "2", .subjectRule = "", .notSubjectRule = "", .peopleRule = "berger" },
            ProjectRuledBy("Alpha", "plan", ""), ProjectRuledBy("Beta", "sheet", "") });
    Activity activity;
    activity.type = "Writer";
    activity.description = "the final plan";
    activity.people = "Ann Berger";
    const auto lines = WhyLines(activity, rules, Titles::Shown);
    ASSERT_EQ(lines.size(), 4U);
    const auto text = [](const WhyLine& line) {
        return line.project + "|" + line.precedence + "|" + line.hit + "|" + line.excluded + "|" + line.outcome;
    };
    EXPECT_EQ(text(lines[0]), "Draft|High|\"plan\" in the subject|\"final\" in the subject|Excluded");
    EXPECT_EQ(text(lines[1]), "Team|Medium|\"berger\" among the people||Given by the rules");
    EXPECT_EQ(text(lines[2]), "Alpha|Medium|\"plan\" in the subject||Matches, but is tried later");
    EXPECT_EQ(text(lines[3]), "Beta|Medium|||No match");
    EXPECT_EQ(text(WhyLines(activity, rules, Titles::Hidden)[0]),
        "Draft|High|A term in the subject|A term in the subject|Excluded");
}

}
