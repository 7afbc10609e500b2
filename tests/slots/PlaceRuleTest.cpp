#include "slots/PlaceRule.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

void ExpectPlaced(PlaceForm form, const std::string& title, const std::string& text, const std::string& place,
    const std::string& host = "", bool namesPeople = false)
{
    Program program;
    program.place = form;
    program.namesPeople = namesPeople;
    const auto placed = PlaceRule::Of(program, title, host);
    EXPECT_EQ(placed.text, text) << title;
    EXPECT_EQ(placed.place, place) << title;
}

}

TEST(PlaceRuleTest, Of_Document_IsItsOwnPlace)
{
    ExpectPlaced(PlaceForm::Document, "Plan - part 2.odt", "Plan - part 2.odt", "Plan - part 2.odt");
}

TEST(PlaceRuleTest, Of_Page_HasItsSite)
{
    ExpectPlaced(PlaceForm::Page, "Generator | Logo Diffusion", "Generator | Logo Diffusion", "Logo Diffusion");
    ExpectPlaced(PlaceForm::Page, "Michael Hess - Slack", "Michael Hess - Slack", "Slack");
    ExpectPlaced(
        PlaceForm::Page, "Issue 3 \u00b7 ann/atlas \u00b7 Forge", "Issue 3 \u00b7 ann/atlas \u00b7 Forge", "Forge");
    ExpectPlaced(PlaceForm::Page, "New tab", "New tab", "New tab");
    ExpectPlaced(PlaceForm::Page, "Plan", "Plan (wiki.example.com)", "wiki.example.com", "wiki.example.com");
    ExpectPlaced(PlaceForm::Page, "Plan on Wiki.Example.com", "Plan on Wiki.Example.com", "wiki.example.com",
        "wiki.example.com");
    ExpectPlaced(PlaceForm::Page, "", "wiki.example.com", "wiki.example.com", "wiki.example.com");
    ExpectPlaced(PlaceForm::Page, "", "", "");
}

TEST(PlaceRuleTest, Of_Editor_SaysProjectAndFile)
{
    ExpectPlaced(PlaceForm::FileInProject, "main.py - Atlas", "Atlas: main.py", "Atlas");
    ExpectPlaced(PlaceForm::FileInProject, "main.py (~/src/Atlas)", "Atlas: main.py", "Atlas");
    ExpectPlaced(PlaceForm::FileInProject, "~/src/Atlas/main.py (Atlas)", "Atlas: main.py", "Atlas");
    ExpectPlaced(PlaceForm::FileInProject, "Untitled", "Untitled", "Untitled");
    ExpectPlaced(PlaceForm::ProjectWithFile, "Atlas \u2013 src/main.py [Atlas.core]", "Atlas: main.py", "Atlas");
    ExpectPlaced(PlaceForm::ProjectWithFile, "Welcome", "Welcome", "Welcome");
}

TEST(PlaceRuleTest, Of_Terminal_NeverTellsACommandLine)
{
    ExpectPlaced(PlaceForm::Directory, "ann@box: ~/src", "box: ~/src", "box: ~/src");
    ExpectPlaced(PlaceForm::Directory, "ann@box:/var/log", "box: /var/log", "box: /var/log");
    ExpectPlaced(PlaceForm::Directory, "ann@box: mysql -psecret", "box: mysql", "box: mysql");
    ExpectPlaced(PlaceForm::Directory, "/usr/bin/htop -d 5", "htop", "htop");
    ExpectPlaced(PlaceForm::Directory, "curl -u ann:secret https://example.com", "curl", "curl");
    ExpectPlaced(PlaceForm::Directory, "~/src : make -j4", "~/src", "~/src");
    ExpectPlaced(PlaceForm::Directory, R"(Administrator: C:\Windows\System32)", R"(C:\Windows\System32)",
        R"(C:\Windows\System32)");
    ExpectPlaced(PlaceForm::Directory, "", "", "");
}

TEST(PlaceRuleTest, Of_TerminalWithVariables_TellsTheirProgramAlone)
{
    ExpectPlaced(PlaceForm::Directory, "PASSWORD=hunter2 make deploy", "make", "make");
    ExpectPlaced(PlaceForm::Directory, R"(A="x y" B='p q' C=r\ s /usr/bin/make deploy)", "make", "make");
    ExpectPlaced(PlaceForm::Directory, "PASSWORD=hun@ter:2 make", "make", "make");
    ExpectPlaced(PlaceForm::Directory, "ann@box: PASSWORD=hunter2 make", "box: make", "box: make");
    ExpectPlaced(PlaceForm::Directory, "$env:PASSWORD=\"x\"; make", "make", "make");
    ExpectPlaced(PlaceForm::Directory, "PASSWORD=hunter2", "", "");
    ExpectPlaced(PlaceForm::Directory, "PASSWORD='hunter 2 make", "", "");
    ExpectPlaced(PlaceForm::Directory, "/srv/a=b", "/srv/a=b", "/srv/a=b");
}

TEST(PlaceRuleTest, Of_Chat_TellsRoomsAndNoPeople)
{
    ExpectPlaced(PlaceForm::Room, "general (Channel) - Atlas", "general (Atlas)", "Atlas");
    ExpectPlaced(PlaceForm::Room, "general - Atlas - 3 new items", "general (Atlas)", "Atlas");
    ExpectPlaced(PlaceForm::Room, "#general | Atlas", "#general (Atlas)", "Atlas");
    ExpectPlaced(PlaceForm::Room, "general", "general", "general");
    ExpectPlaced(PlaceForm::Room, "Ann Berger (DM) - Atlas", "Atlas", "Atlas");
    ExpectPlaced(PlaceForm::Room, "Ann Berger (DM)", "", "");
    ExpectPlaced(PlaceForm::Room, "Chat | Ann Berger", "", "");
    ExpectPlaced(PlaceForm::Room, "@ann", "", "");
    ExpectPlaced(PlaceForm::Room, "Ann Berger (DM) - Atlas", "Ann Berger (DM) (Atlas)", "Atlas", "", true);
    ExpectPlaced(PlaceForm::Person, "Ann Berger", "", "");
    ExpectPlaced(PlaceForm::Person, "Ann Berger", "Ann Berger", "Ann Berger", "", true);
}

TEST(PlaceRuleTest, Of_Mail_LosesTheAccount)
{
    ExpectPlaced(PlaceForm::Mail, "Inbox - ann@example.com", "Inbox", "Inbox");
    ExpectPlaced(PlaceForm::Mail, "Write: To ann@example.com now", "Write: To ann@example.com now",
        "Write: To ann@example.com now");
}

}
