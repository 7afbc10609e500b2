#include "slots/ViewSettings.h"

#include "support/SettingsRefusal.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using Settings = std::vector<Setting>;

SettingsFile File(const std::string& kind, Settings settings)
{
    std::size_t line = 1;
    for (auto& setting : settings) {
        setting.line = ++line;
    }
    return { "a.toml", { { kind, 1, std::move(settings) } } };
}

template <class Reader> std::string Refusal(Reader&& reader, const SettingsFile& file)
{
    return SettingsRefusal([&] { reader(file); });
}

using Texts = std::vector<std::string>;

}

TEST(ViewSettingsTest, ProgramsOf_Record_IsAProgram)
{
    const auto programs = ProgramsOf(File("program",
        { { "ids", Texts { "a", "b" } }, { "name", "Atlas" }, { "sort", "terminal" }, { "kind", std::int64_t(8) },
            { "suffixes", Texts { "S" } }, { "named-by-suffix", true }, { "empty-titles", Texts { "E" } },
            { "people", true } }));
    ASSERT_EQ(programs.size(), 1U);
    EXPECT_EQ(programs[0].ids, (Texts { "a", "b" }));
    EXPECT_EQ(programs[0].sort, ProgramSort::Terminal);
    EXPECT_EQ(programs[0].place, PlaceForm::Directory);
    EXPECT_EQ(programs[0].kind, 8);
    EXPECT_TRUE(programs[0].isNamedBySuffix && programs[0].namesPeople);
    EXPECT_EQ(programs[0].emptyTitles, Texts { "E" });
}

TEST(ViewSettingsTest, ProgramsOf_BadRecord_SaysWhatIsWrongAndWhere)
{
    const auto refusal = [](const std::string& kind, Settings settings) {
        settings.insert(settings.begin(), { { "ids", Texts { "a" } }, { "name", "Atlas" } });
        return Refusal(ProgramsOf, File(kind, std::move(settings)));
    };
    EXPECT_THAT(refusal("rule", {}), HasSubstr("a.toml, line 1: [[rule]] isn't known here"));
    EXPECT_THAT(refusal("program", { { "colour", "red" } }), HasSubstr("line 4: \"colour\" isn't known"));
    EXPECT_THAT(refusal("program", { { "sort", "game" } }), HasSubstr("line 4: sort can't be \"game\""));
    EXPECT_THAT(refusal("program", { { "sort", true } }), HasSubstr("sort must be a text"));
    EXPECT_THAT(refusal("program", { { "kind", std::int64_t(6) } }), HasSubstr("kind can be"));
    EXPECT_THAT(Refusal(ProgramsOf, File("program", { { "name", "Atlas" } })), HasSubstr("needs \"ids\""));
    EXPECT_THAT(Refusal(ProgramsOf, File("program", { { "ids", "a" } })), HasSubstr("list of texts"));
}

TEST(ViewSettingsTest, RulesOf_Record_IsARule)
{
    const auto rules = RulesOf(
        File("rule", { { "program", "firefox" }, { "title", "*bank*" }, { "do", "replace" }, { "text", "Banking" } }));
    ASSERT_EQ(rules.size(), 1U);
    EXPECT_TRUE(rules[0].program->Matches("Firefox"));
    EXPECT_TRUE(rules[0].title->Matches("My bank"));
    EXPECT_EQ(rules[0].action, PrivacyRule::Action::Replace);
    EXPECT_EQ(rules[0].text, "Banking");
    EXPECT_FALSE(RulesOf(File("rule", { { "do", "drop" } }))[0].program);
}

TEST(ViewSettingsTest, RulesOf_BadRecord_SaysWhatIsWrongAndWhere)
{
    EXPECT_THAT(Refusal(RulesOf, File("rule", { { "title", "x" } })), HasSubstr("needs \"do\""));
    EXPECT_THAT(Refusal(RulesOf, File("rule", { { "do", "hide" } })), HasSubstr("line 2: do can't be \"hide\""));
    EXPECT_THAT(Refusal(RulesOf, File("rule", { { "do", "project" } })), HasSubstr("needs a \"text\""));
    EXPECT_THAT(Refusal(RulesOf, File("rule", { { "do", "replace" }, { "text", " " } })), HasSubstr("line 3"));
    EXPECT_THAT(Refusal(RulesOf, File("rule", { { "title", "/(/" }, { "do", "drop" } })),
        HasSubstr("line 2: the regular expression /(/ can't be read"));
    EXPECT_THAT(Refusal(RulesOf, File("program", { { "do", "drop" } })), HasSubstr("isn't known here"));
}

TEST(ViewSettingsTest, ViewsBy_OwnPrograms_GoBeforeTheUsualOnes)
{
    const auto program = [](const std::string& name) {
        return File("program", { { "ids", Texts { "atlas" } }, { "name", name } });
    };
    const auto views = ViewsBy(program("Own"), program("Usual"), File("rule", { { "title", "x" }, { "do", "drop" } }));
    EXPECT_EQ(views.Make({ "atlas", "", "map", "", false }).view.program, "Own");
    EXPECT_EQ(views.Make({ "atlas", "", "x", "", false }).kind, Seen::Kind::Dropped);
}

}
