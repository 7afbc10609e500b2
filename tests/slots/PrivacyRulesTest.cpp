#include "slots/PrivacyRules.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using Action = PrivacyRule::Action;

PrivacyRule Rule(const std::string& program, const std::string& title, Action action)
{
    return { program.empty() ? std::nullopt : std::optional(TextPattern(program)),
        title.empty() ? std::nullopt : std::optional(TextPattern(title)), action, "" };
}

const PrivacyRule* Find(const PrivacyRules& rules, const std::string& id, const std::string& title)
{
    Program program;
    program.ids = { "firefox", "navigator" };
    program.name = "Firefox";
    return rules.Find({ id, "", title, "", false }, program);
}

}

TEST(PrivacyRulesTest, Find_FirstThatMatches_Decides)
{
    const PrivacyRules rules({ Rule("firefox", "*bank*", Action::Drop), Rule("", "*bank*", Action::Replace),
        Rule("fire*", "", Action::Project) });
    EXPECT_EQ(Find(rules, "x", "My Bank")->action, Action::Drop);
    EXPECT_EQ(Find(rules, "x", "Plan")->action, Action::Project);
}

TEST(PrivacyRulesTest, Find_AnyIdOrNameOfTheProgram_Matches)
{
    for (const auto* pattern : { "Navigator", "FIREFOX", "org.example.fox", "fox" }) {
        EXPECT_NE(Find(PrivacyRules({ Rule(pattern, "", Action::Drop) }), "org.example.Fox", "Plan"), nullptr)
            << pattern;
    }
    EXPECT_EQ(Find(PrivacyRules({ Rule("chrome", "", Action::Drop) }), "firefox", "Plan"), nullptr);
}

TEST(PrivacyRulesTest, Find_PrivateWindows_AreNameOnly)
{
    const PrivacyRules rules;
    for (const auto* title : { "Plan \u2014 Mozilla Firefox Private Browsing", "Plan - [InPrivate] - Edge",
             "Plan \u2014 Mozilla Firefox (Privater Modus)", "Plan \u2014 Navigation priv\u00e9e de Mozilla Firefox",
             "Plan - Chromium (Incognito)",
             "\u041f\u043b\u0430\u043d \u2014 "
             "\u041f\u0440\u0438\u0432\u0430\u0442\u043d\u044b\u0439 "
             "\u043f\u0440\u043e\u0441\u043c\u043e\u0442\u0440" }) {
        const auto* rule = Find(rules, "firefox", title);
        ASSERT_NE(rule, nullptr) << title;
        EXPECT_EQ(rule->action, Action::ProgramOnly);
    }
    EXPECT_EQ(Find(rules, "firefox", "Plan"), nullptr);
}

TEST(PrivacyRulesTest, Find_PasswordManagers_AreNameOnly)
{
    for (const auto* id : { "keepassxc", "org.keepassxc.KeePassXC", "Bitwarden", "com.bitwarden.desktop",
             "1Password.exe", "org.gnome.World.Secrets", "KeePass" }) {
        const auto* rule = PrivacyRules().Find({ id, "", "Bank", "", false }, Program { { id }, "X" });
        EXPECT_NE(rule, nullptr) << id;
    }
    EXPECT_EQ(PrivacyRules().Find({ "passage", "", "Plan", "", false }, Program { { "passage" }, "X" }), nullptr);
}

TEST(PrivacyRulesTest, Find_OwnRules_GoBeforeTheBuiltIn)
{
    const PrivacyRules rules({ Rule("", "*", Action::Drop) });
    EXPECT_EQ(Find(rules, "firefox", "Private Browsing")->action, Action::Drop);
}

}
