#include "review/SubjectWord.h"

#include "engine/foundation/ActivitySubject.h"
#include "engine/projects/FoldedText.h"
#include "engine/projects/ProjectRule.h"

#include <gmock/gmock.h>

#include <random>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ActivityGroup GroupOf(const std::string& application, const std::string& description, std::int64_t minutes)
{
    return { application, description, minutes, 1, {} };
}

}

TEST(SubjectWordTest, Largest_Words_AreLowerCaseAndOfThreeLetters)
{
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("MS", "Größe 12 345 ab-x", 7) }), ElementsAre(SubjectWord { "345", 7 }))
        << "the others are covered by the first, or too short";
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("Größe", "", 7), GroupOf("", "ÜBER", 6) }),
        ElementsAre(SubjectWord { "größe", 7 }, SubjectWord { "über", 6 }));
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("売上", "", 7), GroupOf("売上高", "", 6) }),
        ElementsAre(SubjectWord { "売上高", 6 }));
    EXPECT_THAT(SubjectWord::Largest({}), IsEmpty());
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("Word", "", 0) }), IsEmpty());
}

TEST(SubjectWordTest, Largest_WordWithinOthers_HasTheTimeOfAllThatARuleMatches)
{
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("plan", "", 10), GroupOf("planning plan", "", 20),
                    GroupOf("xplanx", "", 40), GroupOf("zzz", "None", 1) }),
        ElementsAre(SubjectWord { "plan", 70 }, SubjectWord { "zzz", 1 }));
}

TEST(SubjectWordTest, Largest_WordTwiceInAnActivity_CountsOnce)
{
    EXPECT_THAT(
        SubjectWord::Largest({ GroupOf("plan", "plan the plan", 10) }), ElementsAre(SubjectWord { "plan", 10 }));
}

TEST(SubjectWordTest, Largest_MostlyCovered_IsMoreThanHalf)
{
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("aaa bbb", "", 10), GroupOf("aaa", "", 30), GroupOf("bbb", "", 10) }),
        ElementsAre(SubjectWord { "aaa", 40 }, SubjectWord { "bbb", 20 }))
        << "half of it is not more than half";
    EXPECT_THAT(SubjectWord::Largest({ GroupOf("aaa bbb", "", 11), GroupOf("aaa", "", 30), GroupOf("bbb", "", 10) }),
        ElementsAre(SubjectWord { "aaa", 41 }));
}

TEST(SubjectWordTest, Largest_ManyWords_AreTen)
{
    std::vector<ActivityGroup> groups;
    for (int i = 0; i < 12; ++i) {
        groups.push_back(GroupOf("word" + std::string(1, static_cast<char>('a' + i)), "", 100 - i));
    }
    const auto words = SubjectWord::Largest(groups);
    EXPECT_EQ(words.size(), 10U);
    EXPECT_EQ(words.back(), (SubjectWord { "wordj", 91 }));
}

TEST(SubjectWordTest, Largest_AnyGroups_HaveTheTimeThatARuleOfTheWordGives)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same each time
    const auto any = [&random](std::size_t below) { return static_cast<std::size_t>(random() % below); };
    for (int round = 0; round < 50; ++round) {
        std::vector<ActivityGroup> groups;
        for (std::size_t i = 0; i < 20; ++i) {
            std::string text;
            for (std::size_t size = any(90); size > 0; --size) {
                text += std::string("abcAB -_,1")[any(10)];
            }
            groups.push_back(GroupOf(
                text.substr(0, text.size() / 3), text.substr(text.size() / 3), static_cast<std::int64_t>(1 + any(50))));
        }
        const auto words = SubjectWord::Largest(groups);
        for (const auto& word : words) {
            const auto rule = ProjectRule::ForSubjects(word.word);
            ASSERT_EQ(rule.MatchTerms().size(), 1U);
            std::int64_t minutes = 0;
            for (const auto& group : groups) {
                const FoldedText subject(ActivitySubject(group.application, group.description));
                minutes += subject.Contains(rule.MatchTerms()[0].parts[0]) ? group.minutes : 0;
            }
            EXPECT_EQ(word.minutes, minutes) << word.word;
        }
    }
}

}
