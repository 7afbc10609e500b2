#include "slots/ProgramTable.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

Program Row(std::vector<std::string> ids, const std::string& name, ProgramSort sort = ProgramSort::Other)
{
    Program program;
    program.ids = std::move(ids);
    program.name = name;
    program.sort = sort;
    return program;
}

ProgramTable Invented()
{
    return ProgramTable({ Row({ "firefox", "navigator" }, "Firefox", ProgramSort::Browser),
        Row({ "soffice", "libreoffice-writer" }, "LibreOffice Writer"), Row({ "jetbrains-*" }, "JetBrains"),
        Row({ "org.telegram.desktop", "telegram-desktop" }, "Telegram"), Row({ "code" }, "Visual Studio Code"),
        Row({ "firefox" }, "Another Firefox") });
}

}

TEST(ProgramTableTest, Find_FormsOfOneId_AreOneProgram)
{
    const auto table = Invented();
    for (const auto* id : { "firefox", "Firefox", "FIREFOX.EXE", "firefox_firefox", "org.mozilla.firefox", "Navigator",
             "org.mozilla.firefox.desktop", "/usr/lib/firefox/firefox", R"(C:\Program Files\Firefox\firefox.exe)" }) {
        EXPECT_EQ(table.Find(id).name, "Firefox") << id;
    }
    EXPECT_EQ(table.Find("org.telegram.desktop").name, "Telegram");
    EXPECT_EQ(table.Find("code_code").name, "Visual Studio Code");
    EXPECT_EQ(table.Find("com.visualstudio.code").name, "Visual Studio Code");
}

TEST(ProgramTableTest, Find_Name_IsKnownToo)
{
    const auto table = Invented();
    EXPECT_EQ(table.Find("Visual studio code").name, "Visual Studio Code");
    EXPECT_EQ(table.Find("Visual Studio Code.app").name, "Visual Studio Code");
    EXPECT_EQ(table.Find("x11-thing", "firefox").name, "Firefox");
}

TEST(ProgramTableTest, Find_BeginningWithStar_StandsForAll)
{
    EXPECT_EQ(Invented().Find("jetbrains-pycharm-ce").name, "JetBrains");
    EXPECT_EQ(Invented().Find("jetbrain").name, "Jetbrain");
}

TEST(ProgramTableTest, Find_Unknown_IsNamedByTheDesktopOrItsId)
{
    const auto table = Invented();
    EXPECT_EQ(table.Find("org.gnome.Calculator", "Calculator").name, "Calculator");
    EXPECT_EQ(table.Find("org.gnome.Calculator").name, "Calculator");
    EXPECT_EQ(table.Find("sketchpad").name, "Sketchpad");
    EXPECT_EQ(table.Find("Sketchpad.exe").name, "Sketchpad");
    EXPECT_EQ(table.Find("inkscape_inkscape").name, "Inkscape");
    EXPECT_EQ(table.Find("").name, "Unknown");
    EXPECT_EQ(table.Find("None").name, "none");
    EXPECT_EQ(table.Find(std::string(300, 'x')).name.size(), 59U + 3U);
}

TEST(ProgramTableTest, FormsOf_HostLikeName_NeedsThreeParts)
{
    EXPECT_EQ(ProgramTable::FormsOf("io.thing"), (std::vector<std::string> { "io.thing" }));
    EXPECT_EQ(ProgramTable::FormsOf("gimp-2.10.36"), (std::vector<std::string> { "gimp-2.10.36" }));
}

}
