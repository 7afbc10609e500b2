#include "desktop/FieldValues.h"

#include "base/Failure.h"
#include "host/system/IcuLocaleFormats.h"
#include "review/Activities.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

class FieldValuesTest : public testing::Test
{
protected:
    FieldValues Values(Titles titles)
    {
        return { MakeRef<IcuLocaleFormats>("en_GB"),
            [this](const Activity&, const std::string& name) {
                ++mReads;
                return name == "Day"      ? Variant(Date::FromYearMonthDay(2006, 10, 9))
                    : name == "ApplyPast" ? Variant(true)
                                          : Variant();
            },
            titles };
    }
    std::string Text(const std::string& field, Titles titles = Titles::Shown)
    {
        return Values(titles).TextOf(mActivity, field);
    }

    Activity mActivity = ActivityOn(9, 545, 620, "");
    int mReads = 0;
};

}

TEST_F(FieldValuesTest, TextOf_FieldsOfTheRow_NeedNoItem)
{
    mActivity.people = "Ann;";
    EXPECT_EQ(Text("Project"), "No Project");
    EXPECT_EQ(Text("Type"), "Word");
    EXPECT_EQ(Text("Description"), "a.doc");
    EXPECT_EQ(Text("People"), "Ann;");
    EXPECT_EQ(Text("Duration"), "1 h 15");
    EXPECT_EQ(Text("Start"), "09/10/2006 09:05:00");
    EXPECT_EQ(Text("End"), "09/10/2006 10:20:00");
    EXPECT_EQ(mReads, 0);
}

TEST_F(FieldValuesTest, TextOf_OtherFields_AreReadFromTheItem)
{
    EXPECT_EQ(Text("Day"), "09/10/2006");
    EXPECT_EQ(Text("ApplyPast"), "Yes");
    EXPECT_EQ(Text("Unknown"), "");
    EXPECT_EQ(mReads, 3);
}

TEST_F(FieldValuesTest, TextOf_HiddenTitles_AreNeitherShownNorRead)
{
    for (const auto* field : { "Description", "People", "Subject", "Keyword" }) {
        EXPECT_EQ(Text(field, Titles::Hidden), "") << field;
    }
    EXPECT_EQ(mReads, 0);
    EXPECT_EQ(Text("Type", Titles::Hidden), "Word");
}

TEST_F(FieldValuesTest, Compare_ValuesOfAType_AreInTheirOrder)
{
    const auto order = [](const Variant& one, const Variant& other) {
        const auto forth = FieldValues::Compare(one, other);
        EXPECT_EQ(forth > 0, FieldValues::Compare(other, one) < 0);
        return forth;
    };
    EXPECT_LT(order("alpha", "Beta"), 0);
    EXPECT_EQ(order("ALPHA", "alpha"), 0);
    EXPECT_LT(order(9, 10), 0);
    EXPECT_LT(order(Date::FromSeconds(1), Date::FromSeconds(2)), 0);
    EXPECT_LT(order(false, true), 0);
    EXPECT_LT(order(Variant(), ""), 0);
    EXPECT_EQ(order(Variant(), Variant()), 0);
}

}
