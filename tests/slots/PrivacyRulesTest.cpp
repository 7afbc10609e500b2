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

Program Firefox()
{
    return { { "firefox", "navigator" }, "Firefox", ProgramSort::Browser };
}

PrivacyRules::Verdict VerdictOf(const PrivacyRules& rules, const std::string& id, const std::string& title)
{
    return rules.Find({ id, "", title, "", false }, Firefox());
}

const PrivacyRule* Find(const PrivacyRules& rules, const std::string& id, const std::string& title)
{
    return VerdictOf(rules, id, title).hiding;
}

/// True when a title of a program without rules of its own is private.
bool IsPrivate(const Program& program, const std::string& title)
{
    return PrivacyRules().Find({ "x", "", title, "", false }, program).hiding != nullptr;
}

}

TEST(PrivacyRulesTest, Find_FirstThatMatches_Decides)
{
    const PrivacyRules rules({ Rule("firefox", "*bank*", Action::Drop), Rule("", "*bank*", Action::Replace),
        Rule("fire*", "", Action::Project) });
    EXPECT_EQ(Find(rules, "x", "My Bank")->action, Action::Drop);
    const auto verdict = VerdictOf(rules, "x", "Plan");
    EXPECT_EQ(verdict.hiding, nullptr);
    EXPECT_EQ(verdict.project->action, Action::Project);
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
        const auto* rule = PrivacyRules().Find({ id, "", "Bank", "", false }, Program { { id }, "X" }).hiding;
        EXPECT_NE(rule, nullptr) << id;
    }
    EXPECT_EQ(
        PrivacyRules().Find({ "passage", "", "Plan", "", false }, Program { { "passage" }, "X" }).hiding, nullptr);
}

TEST(PrivacyRulesTest, Find_OwnRules_GoBeforeTheBuiltIn)
{
    const PrivacyRules rules({ Rule("", "*", Action::Drop) });
    EXPECT_EQ(Find(rules, "firefox", "Private Browsing")->action, Action::Drop);
}

TEST(PrivacyRulesTest, Find_ProjectRule_LeavesTheProductsProtectionAsItIs)
{
    const PrivacyRules rules({ Rule("", "", Action::Project), Rule("", "*plan*", Action::Drop) });
    const auto verdict = VerdictOf(rules, "firefox", "Bank \u2014 Mozilla Firefox Private Browsing");
    ASSERT_NE(verdict.hiding, nullptr);
    EXPECT_EQ(verdict.hiding->action, Action::ProgramOnly);
    ASSERT_NE(verdict.project, nullptr);
    const auto manager = rules.Find({ "keepassxc", "", "Bank", "", false }, Program { { "keepassxc" }, "KeePassXC" });
    EXPECT_NE(manager.hiding, nullptr);
    EXPECT_NE(manager.project, nullptr);
    // Among one's own rules the first that matches decides.
    EXPECT_EQ(VerdictOf(rules, "firefox", "My plan").hiding, nullptr);
}

TEST(PrivacyRulesTest, Find_WordsOfPrivateWindowsInOtherPlaces_HideNothing)
{
    Program editor { { "code" }, "Visual Studio Code", ProgramSort::Editor };
    Program unknown { { "x" }, "X" };
    unknown.isUnknown = true;
    for (const auto* title : { "MainPrivate.cpp", "Contrato Sociedad An\u00f3nima.odt", "Private mode - Notes",
             "MainPrivate.cpp - [InPrivate]" }) {
        EXPECT_FALSE(IsPrivate(editor, title)) << title;
    }
    for (const auto* title : { "MainPrivate.cpp", "Contrato Sociedad An\u00f3nima.odt", "Atlas - MainPrivate.cpp",
             "An\u00f3nima (carta) - Writer", "Private mode - Notes" }) {
        EXPECT_FALSE(IsPrivate(unknown, title)) << title;
    }
    for (const auto* title : { "What is incognito mode? - Mozilla Firefox",
             "Sociedad an\u00f3nima - Enciclopedia - Chrome", "MainPrivate.cpp at main - Mozilla Firefox" }) {
        EXPECT_FALSE(IsPrivate(Firefox(), title)) << title;
    }
}

TEST(PrivacyRulesTest, Find_MarkInTheLastPartOrInBrackets_IsPrivate)
{
    Program unknown { { "x" }, "X" };
    unknown.isUnknown = true;
    for (const auto* title : { "Plan - Falcon Private Browsing", "Plan - [InPrivate] - Falcon", "Plan (Incognito)",
             "\u8ba1\u5212 - \u6d4f\u89c8\u5668\uff08\u65e0\u75d5\u6a21\u5f0f\uff09" }) {
        EXPECT_TRUE(IsPrivate(unknown, title)) << title;
        EXPECT_TRUE(IsPrivate(Firefox(), title)) << title;
    }
    EXPECT_TRUE(IsPrivate(Firefox(), "Mozilla Firefox Private Browsing"));
}

TEST(PrivacyRulesTest, FindStated_WordsOfPrivateWindows_HideNothing)
{
    const PrivacyRules rules({ Rule("", "*bank*", Action::Drop) });
    Program stated;
    stated.name = "Toggl";
    const auto find = [&](const std::string& title) {
        return rules.FindStated({ "Toggl", "", title, "", false }, stated).hiding;
    };
    EXPECT_EQ(find("Tests - Private Browsing"), nullptr);
    EXPECT_EQ(find("Contrato (an\u00f3nima)"), nullptr);
    EXPECT_NE(find("My bank"), nullptr);
}

}
