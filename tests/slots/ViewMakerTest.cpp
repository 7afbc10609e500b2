#include "slots/ViewMaker.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

ProgramTable Programs()
{
    Program firefox { { "firefox" }, "Firefox", ProgramSort::Browser, PlaceForm::Page };
    Program word { { "winword" }, "Microsoft Word", ProgramSort::Office, PlaceForm::Document, 2, { "Word" } };
    Program mail { { "outlook" }, "Microsoft Outlook", ProgramSort::Mail, PlaceForm::Mail, 5, { "Outlook" } };
    Program office { { "soffice" }, "LibreOffice", ProgramSort::Office };
    office.suffixes = { "LibreOffice Calc" };
    office.isNamedBySuffix = true;
    Program explorer { { "explorer" }, "Windows Explorer", ProgramSort::Files, PlaceForm::Document, 9 };
    explorer.emptyTitles = { "Program Manager" };
    return ProgramTable({ firefox, word, mail, office, explorer, { { "lockapp" }, "Lock", ProgramSort::Lock },
        { { "shell" }, "Shell", ProgramSort::Shell } });
}

Seen See(
    const std::string& program, const std::string& title, std::vector<PrivacyRule> rules = {}, bool isPrivate = false)
{
    return ViewMaker(Programs(), PrivacyRules(std::move(rules))).Make({ program, "", title, "", isPrivate });
}

SlotView ViewOf(const std::string& program, const std::string& title)
{
    const auto seen = See(program, title);
    EXPECT_EQ(seen.kind, Seen::Kind::View);
    return seen.view;
}

PrivacyRule Rule(PrivacyRule::Action action, const std::string& text = "")
{
    return { TextPattern("firefox"), TextPattern("*secret*"), action, text };
}

}

TEST(ViewMakerTest, Make_Documents_KeepTheirKindOnlyWithADocument)
{
    EXPECT_EQ(ViewOf("winword", "Plan.docx - Word"),
        (SlotView { "Microsoft Word", ProgramSort::Office, 2, "Plan.docx", "Plan.docx", "" }));
    EXPECT_EQ(ViewOf("WINWORD.EXE", "Word"), (SlotView { "Microsoft Word", ProgramSort::Office, 0, "", "", "" }));
}

TEST(ViewMakerTest, Make_Mail_KeepsItsKindOnlyWithASubject)
{
    EXPECT_EQ(ViewOf("outlook", "Plan for May - Message (HTML)"),
        (SlotView { "Microsoft Outlook", ProgramSort::Mail, 5, "Plan for May", "Plan for May", "" }));
    EXPECT_EQ(ViewOf("outlook", "Inbox - ann@example.com - Outlook"),
        (SlotView { "Microsoft Outlook", ProgramSort::Mail, 0, "Inbox", "Inbox", "" }));
    EXPECT_EQ(ViewOf("outlook", "Untitled - Message (HTML)").kind, 0);
}

TEST(ViewMakerTest, Make_NamedBySuffix_HasItsName)
{
    EXPECT_EQ(ViewOf("soffice", "Sum.ods - LibreOffice Calc").program, "LibreOffice Calc");
    EXPECT_EQ(ViewOf("soffice", "Sum.ods").program, "LibreOffice");
}

TEST(ViewMakerTest, Make_LockDesktopAndShell_AreNoViews)
{
    EXPECT_EQ(See("LockApp.exe", "Windows Default Lock Screen").kind, Seen::Kind::Locked);
    EXPECT_EQ(See("explorer", "Program Manager").kind, Seen::Kind::Nothing);
    EXPECT_EQ(See("explorer", "Riverside").kind, Seen::Kind::View);
    EXPECT_EQ(See("shell", "").kind, Seen::Kind::Nothing);
}

TEST(ViewMakerTest, Make_Rules_DecideWhatIsKnown)
{
    using Action = PrivacyRule::Action;
    EXPECT_EQ(See("firefox", "secret", { Rule(Action::Drop) }).kind, Seen::Kind::Dropped);
    EXPECT_EQ(See("firefox", "secret", { Rule(Action::ProgramOnly) }).view,
        (SlotView { "Firefox", ProgramSort::Browser, 0, "private", "private", "" }));
    EXPECT_EQ(See("firefox", "secret", { Rule(Action::Replace, "Banking") }).view,
        (SlotView { "Firefox", ProgramSort::Browser, 0, "Banking", "Banking", "" }));
    EXPECT_EQ(See("firefox", "secret plan", { Rule(Action::Project, "Riverside") }).view,
        (SlotView { "Firefox", ProgramSort::Browser, 0, "secret plan", "secret plan", "Riverside" }));
    EXPECT_EQ(See("firefox", "plan", { Rule(Action::Drop) }).view.text, "plan");
}

TEST(ViewMakerTest, Make_PrivateSighting_TellsNoTitle)
{
    using Action = PrivacyRule::Action;
    EXPECT_EQ(See("firefox", "secret", {}, true).view.text, "private");
    EXPECT_EQ(See("firefox", "secret", { Rule(Action::Project, "Riverside") }, true).view.text, "private");
    EXPECT_EQ(See("firefox", "secret", { Rule(Action::Replace, "Banking") }, true).view.text, "Banking");
    EXPECT_EQ(See("firefox", "secret", { Rule(Action::Drop) }, true).kind, Seen::Kind::Dropped);
}

TEST(ViewMakerTest, Make_ProjectRuleOnAPrivateWindow_TellsTheProjectAndNoTitle)
{
    const PrivacyRule rule { TextPattern("firefox"), std::nullopt, PrivacyRule::Action::Project, "Riverside" };
    EXPECT_EQ(See("firefox", "Bank \u2014 Mozilla Firefox Private Browsing", { rule }).view,
        (SlotView { "Firefox", ProgramSort::Browser, 0, "private", "private", "Riverside" }));
}

TEST(ViewMakerTest, Make_ProjectOfTheSightingItself_GoesBeforeARules)
{
    const ViewMaker views(
        Programs(), PrivacyRules({ { std::nullopt, std::nullopt, PrivacyRule::Action::Project, "Riverside" } }));
    EXPECT_EQ(views.Make({ "firefox", "", "Plan", "", false, "Atlas" }).view.project, "Atlas");
    EXPECT_EQ(views.Make({ "firefox", "", "Plan", "", false, "no project" }).view.project, "Riverside");
    EXPECT_EQ(views.MakeStated({ "Toggl", "", "Plan", "", false, "Atlas" }).view.project, "Atlas");
}

TEST(ViewMakerTest, MakeStated_WordsOfPrivateWindows_StayAsTheyAre)
{
    const ViewMaker views(Programs(), PrivacyRules());
    EXPECT_EQ(
        views.MakeStated({ "Toggl", "", "Tests - Private Browsing", "", false }).view.text, "Tests - Private Browsing");
}

TEST(ViewMakerTest, ProjectText_WordsForNone_AreEmpty)
{
    EXPECT_EQ(ProjectText(" Riverside\t"), "Riverside");
    EXPECT_EQ(ProjectText("no project"), "");
    EXPECT_EQ(ProjectText(" "), "");
}

}
