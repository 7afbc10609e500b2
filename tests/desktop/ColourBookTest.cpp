#include "desktop/ColourBook.h"

#include "desktop/Tone.h"
#include "host/settings/SettingsText.h"
#include "host/settings/TomlSettings.h"
#include "support/SettingsRefusal.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::HasSubstr;

class ColourBookTest : public testing::Test
{
protected:
    ColourBook Read(const std::string& content)
    {
        return ColourBook(ReadSettingsFile(mFolder.Write(ColourBook::FileName, content)));
    }
    std::string Refusal(const std::string& content)
    {
        return SettingsRefusal([&] { Read(content); });
    }

    TempFolder mFolder { TempFolder::InMemory() };
    ColourBook mBook { ReadSettingsFile(mFolder.Path("none.toml")) };
};

}

TEST_F(ColourBookTest, ToneOf_NewProjects_AreGivenInOrder)
{
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "Riverside"), (ToneUse { 0, false }));
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "Admin"), (ToneUse { 1, false }));
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "RIVERSIDE"), (ToneUse { 0, false }));
    EXPECT_EQ(mBook.ToneOf(Coloured::Application, "Writer"), (ToneUse { 0, false }));
}

TEST_F(ColourBookTest, ToneOf_ThirteenthProject_IsStriped)
{
    for (std::size_t place = 0; place < 25; ++place) {
        EXPECT_EQ(mBook.ToneOf(Coloured::Project, "P" + std::to_string(place)),
            (ToneUse { place % ToneCount, place >= ToneCount }));
    }
}

TEST_F(ColourBookTest, ToneOf_NoProject_HasNone)
{
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "no project"), std::nullopt);
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, ""), std::nullopt);
    EXPECT_EQ(mBook.ToneOf(Coloured::Application, ""), std::nullopt);
    mBook.Choose(Coloured::Project, "No Project", 3);
    EXPECT_FALSE(mBook.HasChanged());
}

TEST_F(ColourBookTest, Choose_Tone_IsLeftToThatProject)
{
    mBook.ToneOf(Coloured::Project, "A");
    mBook.Choose(Coloured::Project, "a", 1);
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "A"), (ToneUse { 1, false }));
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "B"), (ToneUse { 0, false }));
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "C"), (ToneUse { 2, false }));
    mBook.Choose(Coloured::Project, "New", 2);
    EXPECT_EQ(mBook.ToneOf(Coloured::Project, "New"), (ToneUse { 2, false }));
}

TEST_F(ColourBookTest, Keep_Everything_IsReadAgain)
{
    const std::string odd = "quo\"te\\ \n\t\x01 ü€𝄞";
    for (int place = 0; place < 13; ++place) {
        mBook.ToneOf(Coloured::Project, "P" + std::to_string(place));
    }
    mBook.ToneOf(Coloured::Application, odd);
    mBook.Choose(Coloured::Application, odd, 7);
    EXPECT_TRUE(mBook.HasChanged());
    WriteSettingsFile(mBook.Keep());
    EXPECT_FALSE(mBook.HasChanged());

    ColourBook again(ReadSettingsFile(mFolder.Path("none.toml")));
    EXPECT_EQ(again.ToneOf(Coloured::Project, "p12"), (ToneUse { 0, true }));
    EXPECT_EQ(again.ToneOf(Coloured::Application, odd), (ToneUse { 7, false }));
    EXPECT_FALSE(again.HasChanged());
    again.ToneOf(Coloured::Project, "P13");
    EXPECT_TRUE(again.HasChanged());
}

TEST_F(ColourBookTest, ColourBook_FileByHand_IsTaken)
{
    auto book = Read("[[tone]]\nproject = \"A\"\ntone = \"plum\"\n[[tone]]\napplication = \"A\"\ntone = \"leaf\"\n");
    EXPECT_EQ(book.ToneOf(Coloured::Project, "A"), (ToneUse { 11, false }));
    EXPECT_EQ(book.ToneOf(Coloured::Application, "A"), (ToneUse { 8, false }));
}

TEST_F(ColourBookTest, ColourBook_WrongFile_NamesTheLine)
{
    EXPECT_THAT(Refusal("[[tone]]\nproject = \"A\"\n"), HasSubstr("line 1: a [[tone]] needs"));
    EXPECT_THAT(Refusal("[[tone]]\ntone = \"blue\"\n"), HasSubstr("line 1: a [[tone]] needs"));
    EXPECT_THAT(Refusal("[[tone]]\nproject = \"A\"\ntone = \"pink\"\n"),
        HasSubstr("line 3: tone can't be \"pink\", but one of \"blue\", \"brown\""));
    EXPECT_THAT(Refusal("[[tone]]\nproject = \"A\"\ntone = \"blue\"\nstriped = 1\n"), HasSubstr("true or false"));
    EXPECT_THAT(Refusal("[[tone]]\nproject = \"A\"\napplication = \"B\"\ntone = \"blue\"\n"),
        HasSubstr("\"project\" isn't known"));
    EXPECT_THAT(Refusal("[[colour]]\n"), HasSubstr("only [[tone]]"));
}

}
