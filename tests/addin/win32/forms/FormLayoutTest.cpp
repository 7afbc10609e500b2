#include "addin/win32/forms/FormLayout.h"

#include "forms/FormModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

namespace tempodial {
namespace {

constexpr int LetterWidth = 6;
constexpr int LineHeight = 16;

/// A font all of whose letters are alike.
class EvenMeasure final : public TextMeasure
{
public:
    PixelSize Of(const std::string& text, int widest) const override
    {
        const auto width = static_cast<int>(text.size()) * LetterWidth;
        const auto lines = widest == 0 ? 1 : std::max(1, (width + widest - 1) / widest);
        return { .width = lines == 1 ? width : widest, .height = lines * LineHeight };
    }
    int CharacterWidth() const override { return LetterWidth; }
};

FormDefinition LaidOutForm()
{
    using enum ControlKind;
    return { .className = "SampleForm",
        .title = "Sample",
        .rows = { { { "Heading", Label, std::string(150, 'x') } },
            { { "From", Label, "From:" }, { "Year", ComboBox, "" }, { "Month", ComboBox, "" } },
            { { "SubjectLabel", Label, "The subject:" }, { "Subject", TextBox, "" } },
            { { "Apply", Label, "Apply" }, { "Days", TextBox, "" }, { "Unit", Label, "days" } },
            { { .name = "Lines", .kind = TextBox, .text = "", .severalLines = true } },
            { { .name = "Outside", .kind = Button, .text = "x", .onForm = false } }, { { "Bar", ProgressBar, "" } },
            { { "OK", Button, "OK" }, { "Cancel", Button, "A long word for it" } } } };
}

class FormLayoutTest : public testing::Test
{
protected:
    /// Lays the form out, and takes the places by their names.
    void LayOut(const FormDefinition& form, unsigned dpi = 96)
    {
        const auto model = MakeRef<FormModel>(form, 1);
        const auto seen = SnapshotOf(*model);
        const EvenMeasure measure;
        const FormLayout layout(form, seen, measure, dpi);
        mSize = layout.Size();
        for (std::size_t position = 0; position < seen.controls.size(); ++position) {
            mPlaces[seen.controls[position].name] = layout.Places().at(position);
        }
    }
    int Right(const char* name) { return mPlaces[name].x + mPlaces[name].width; }
    int Bottom(const char* name) { return mPlaces[name].y + mPlaces[name].height; }

    std::map<std::string, FormPlace> mPlaces;
    PixelSize mSize {};
};

TEST_F(FormLayoutTest, Rows_StandBelowEachOtherInsideOfTheForm)
{
    LayOut(LaidOutForm());
    EXPECT_EQ(mPlaces["Heading"].x, 11);
    EXPECT_EQ(mPlaces["Heading"].y, 11);
    EXPECT_EQ(mPlaces["Year"].y, Bottom("Heading") + 7);
    EXPECT_EQ(mPlaces["Subject"].y, Bottom("Year") + 7);
    EXPECT_EQ(mPlaces["Bar"].y, Bottom("Lines") + 7);
    EXPECT_EQ(mSize.height, Bottom("OK") + 11);
    for (const auto& [name, place] : mPlaces) {
        EXPECT_LE(place.x + place.width, mSize.width - 11) << name;
        EXPECT_LE(place.y + place.height, mSize.height - 11) << name;
    }
}

TEST_F(FormLayoutTest, LongText_IsBrokenAtSixtyCharacters)
{
    LayOut(LaidOutForm());
    EXPECT_EQ(mPlaces["Heading"].height, 3 * LineHeight);
    EXPECT_EQ(mSize.width, 60 * LetterWidth + 22);
}

TEST_F(FormLayoutTest, LabelsInFrontOfBoxes_AreAColumn)
{
    LayOut(LaidOutForm());
    const auto column = 11 + 12 * LetterWidth + 7;
    EXPECT_EQ(mPlaces["Year"].x, column);
    EXPECT_EQ(mPlaces["Subject"].x, column);
    EXPECT_EQ(mPlaces["Days"].x, column);
    EXPECT_EQ(mPlaces["From"].width, 5 * LetterWidth);
}

TEST_F(FormLayoutTest, Boxes_TakeWhatIsLeftUnlessThereAreSeveralOrAUnitFollows)
{
    LayOut(LaidOutForm());
    EXPECT_EQ(Right("Subject"), mSize.width - 11);
    EXPECT_EQ(Right("Lines"), mSize.width - 11);
    EXPECT_EQ(Right("Bar"), mSize.width - 11);
    EXPECT_EQ(mPlaces["Year"].width, 13 * LetterWidth);
    EXPECT_EQ(mPlaces["Month"].x, Right("Year") + 7);
    EXPECT_EQ(mPlaces["Days"].width, 8 * LetterWidth);
    EXPECT_EQ(mPlaces["Unit"].x, Right("Days") + 7);
    EXPECT_EQ(mPlaces["Lines"].height, 4 * LineHeight + 8);
}

TEST_F(FormLayoutTest, Buttons_StandAtTheRight)
{
    LayOut(LaidOutForm());
    EXPECT_EQ(mPlaces["OK"].width, 75);
    EXPECT_EQ(mPlaces["Cancel"].width, 18 * LetterWidth + 24);
    EXPECT_EQ(Right("Cancel"), mSize.width - 11);
    EXPECT_EQ(Right("OK"), mPlaces["Cancel"].x - 7);
}

TEST_F(FormLayoutTest, ControlOffTheForm_HasNoPlaceAndNoRow)
{
    LayOut(LaidOutForm());
    EXPECT_EQ(mPlaces["Outside"], FormPlace {});
}

TEST_F(FormLayoutTest, LabelBesideHigherBox_IsInTheMiddle)
{
    LayOut(LaidOutForm());
    EXPECT_EQ(mPlaces["Subject"].height, LineHeight + 8);
    EXPECT_EQ(mPlaces["SubjectLabel"].y, mPlaces["Subject"].y + 4);
}

TEST_F(FormLayoutTest, FinerScreen_ScalesWhatIsNoText)
{
    LayOut({ .className = "SampleForm", .title = "", .rows = { { { "OK", ControlKind::Button, "OK" } } } }, 144);
    EXPECT_EQ(mPlaces["OK"].width, 113);
    EXPECT_EQ(mPlaces["OK"].y, 17);
    EXPECT_EQ(mSize.height, 2 * 17 + LineHeight + 2 * 6);
}

}
}
