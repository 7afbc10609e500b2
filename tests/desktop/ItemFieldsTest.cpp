#include "desktop/ItemFields.h"

#include "desktop/FieldValues.h"
#include "desktop/StartedSession.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

class ItemFieldsTest : public testing::Test
{
protected:
    Activity Added(const std::string& description, int hour)
    {
        return mSession.Added(description, Date::FromParts({ 2006, 10, 10, hour, 5, 0 }));
    }

    StartedSession mSession;
    ItemFields mFields { mSession.Profile() };
};

}

TEST_F(ItemFieldsTest, FieldsThatTheRowLacks_AreThoseOfTheItem)
{
    const auto first = Added("a.doc", 9);
    const auto second = Added("b.doc", 11);
    EXPECT_EQ(mFields(first, "Day"), Variant(Date::FromYearMonthDay(2006, 10, 10)));
    EXPECT_EQ(mFields(first, "StartTime").ToText(), "09:05");
    EXPECT_EQ(mFields(second, "StartTime").ToText(), "11:05");
    EXPECT_EQ(mFields(second, "Subject").ToText(), "[Garden] Word, b.doc");
    EXPECT_TRUE(mFields(second, "Unknown").IsEmpty());
    const FieldValues values(mSession.Profile().Surroundings().formats, mFields, Titles::Shown);
    EXPECT_EQ(values.TextOf(first, "Day"), "10/10/2006");
}

TEST_F(ItemFieldsTest, ItemThatIsBeingEdited_IsReadAsItWasSaved)
{
    const auto activity = Added("a.doc", 9);
    const auto item = ItemNumbered(mSession.Profile(), activity.number);
    item->SetSubject("edited");
    EXPECT_EQ(mFields(activity, "Subject").ToText(), "[Garden] Word, a.doc");
    item->Save();
    EXPECT_EQ(mFields(activity, "Subject").ToText(), "edited");
}

TEST_F(ItemFieldsTest, ItemThatIsGone_HasNoFields)
{
    const auto kept = Added("a.doc", 9);
    const auto gone = Added("b.doc", 11);
    EXPECT_FALSE(mFields(gone, "Subject").IsEmpty());
    ItemNumbered(mSession.Profile(), gone.number)->Delete();
    EXPECT_TRUE(mFields(gone, "Subject").IsEmpty());
    EXPECT_FALSE(mFields(kept, "Subject").IsEmpty());
}

}
