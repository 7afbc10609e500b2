#include "host/store/ActivityRows.h"

#include "host/store/Query.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr auto TestClass = "IPM.Appointment.Test";

Date On(int day, int hour, int minute, int second = 0)
{
    return Date::FromParts({ 2006, 10, day, hour, minute, second });
}

class ActivityRowsTest : public testing::Test
{
protected:
    Ref<StoreItem> Add(
        const std::string& subject, Date start, Date end, const std::string& messageClass = TestClass) const
    {
        ItemData data;
        data.messageClass = messageClass;
        data.subject = subject;
        data.start = start;
        data.end = end;
        auto item = mMailbox->NewItem(mFolder, data);
        item->Save();
        return item;
    }
    ActivityRows Rows() const { return { mMailbox, mFolder, TestClass }; }
    std::vector<std::string> Subjects(const std::vector<ActivityRow>& rows) const
    {
        std::vector<std::string> subjects;
        for (const auto& row : rows) {
            subjects.push_back(mMailbox->Store()->Item(row.number)->Subject());
        }
        return subjects;
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<MAPIFolder> mFolder = mMailbox->FolderByPath("Calendar");
};

}

TEST_F(ActivityRowsTest, StartingIn_Bounds_LeaveTheEndOut)
{
    Add("before", On(9, 23, 59, 59), On(10, 12, 0));
    Add("last", On(10, 23, 59, 59), On(11, 1, 0));
    Add("first", On(10, 0, 0), On(10, 0, 0));
    Add("behind", On(11, 0, 0), On(11, 1, 0));
    Add("other", On(10, 9, 0), On(10, 10, 0), "IPM.Appointment");
    EXPECT_THAT(Subjects(Rows().StartingIn(On(10, 0, 0), On(11, 0, 0))), ElementsAre("first", "last"));
    EXPECT_THAT(Rows().StartingIn(On(12, 0, 0), On(13, 0, 0)), IsEmpty());
}

TEST_F(ActivityRowsTest, StartingIn_EqualStarts_AreInOrderOfArrivalWhateverTheirLength)
{
    Add("c", On(10, 9, 5), On(10, 9, 10));
    Add("a", On(10, 9, 0), On(10, 18, 0));
    Add("b", On(10, 9, 0), On(10, 9, 5));
    EXPECT_THAT(Subjects(Rows().StartingIn(On(10, 0, 0), On(11, 0, 0))), ElementsAre("a", "b", "c"));
}

TEST_F(ActivityRowsTest, StartingIn_ManyLengths_AreInOrderOfStart)
{
    std::vector<std::string> expected;
    for (int i = 0; i < 60; ++i) {
        // Each length class has some, in turn.
        Add(std::to_string(i), On(10, 9, i), On(10, 9, i).AddSeconds(std::int64_t { 600 } << (2 * (i * 7 % 6))));
        expected.push_back(std::to_string(i));
    }
    EXPECT_EQ(Subjects(Rows().StartingIn(On(10, 0, 0), On(11, 0, 0))), expected);
}

TEST_F(ActivityRowsTest, Overlapping_LengthsOfAllKinds_AreFound)
{
    Add("touches before", On(10, 9, 0), On(10, 10, 0));
    Add("a second of it", On(10, 9, 0), On(10, 10, 0, 1));
    Add("years", Date::FromYearMonthDay(1950, 1, 1), Date::FromYearMonthDay(2050, 1, 1));
    Add("days", On(8, 0, 0), On(12, 0, 0));
    Add("within", On(10, 10, 15), On(10, 10, 20));
    Add("none", On(10, 10, 10), On(10, 10, 10));
    Add("touches behind", On(10, 11, 0), On(10, 12, 0));
    EXPECT_THAT(Subjects(Rows().Overlapping(On(10, 10, 0), On(10, 11, 0))),
        ElementsAre("years", "days", "a second of it", "none", "within"));
}

TEST_F(ActivityRowsTest, Overlapping_EveryLengthAroundTheClasses_IsFoundToTheLastSecond)
{
    for (std::int64_t reach = 900; reach < 400'000'000; reach *= 4) {
        for (const auto length : { reach - 1, reach, reach + 1 }) {
            const auto item = Add(std::to_string(length), On(10, 10, 0).AddSeconds(1 - length), On(10, 10, 0, 1));
            EXPECT_EQ(Rows().Overlapping(On(10, 10, 0), On(10, 10, 1)).size(), 1U) << length;
            EXPECT_THAT(Rows().Overlapping(On(10, 10, 0, 1), On(10, 10, 1)), IsEmpty()) << length;
            item->Delete();
        }
    }
}

TEST_F(ActivityRowsTest, Row_HasWhatTheItemHas)
{
    ItemData data;
    data.messageClass = TestClass;
    data.start = On(10, 9, 0, 30);
    data.end = On(10, 9, 20, 10);
    data.body = "a\r\nb";
    data.isProjectByHand = true;
    data.properties = { { "Type", PropertyType::Text, Variant("Word") },
        { "Project", PropertyType::Text, Variant("Plan") }, { "Description", PropertyType::Text, Variant("a.doc") },
        { "People", PropertyType::Text, Variant("x@y") } };
    const auto item = mMailbox->NewItem(mFolder, data);
    item->Save();
    const auto row = Rows().Numbered(item->Number()).value();
    EXPECT_EQ(row.number, 1);
    EXPECT_EQ(row.start, data.start);
    EXPECT_EQ(row.end, data.end);
    EXPECT_EQ(row.duration, 20);
    EXPECT_EQ(row.project, "Plan");
    EXPECT_EQ(row.type, "Word");
    EXPECT_EQ(row.description, "a.doc");
    EXPECT_EQ(row.people, "x@y");
    EXPECT_TRUE(row.isProjectByHand);
    EXPECT_EQ(Rows().BodyOf(row.number), "a\r\nb");
}

TEST_F(ActivityRowsTest, Row_ItemWithoutProperties_HasEmptyOnes)
{
    Add("a", On(10, 9, 0), On(10, 9, 5));
    const auto row = Rows().StartingIn(On(10, 0, 0), On(11, 0, 0)).at(0);
    EXPECT_EQ(row.project + row.type + row.description + row.people, "");
    EXPECT_FALSE(row.isProjectByHand);
}

TEST_F(ActivityRowsTest, Numbered_NoActivityOfTheFolder_IsNothing)
{
    const auto other = Add("a", On(10, 9, 0), On(10, 9, 5), "IPM.Appointment");
    const auto moved = Add("b", On(10, 9, 0), On(10, 9, 5));
    moved->Move(mMailbox->FolderByPath("Inbox"));
    for (const auto number : { other->Number(), moved->Number(), std::int64_t { 0 }, std::int64_t { 99 } }) {
        EXPECT_FALSE(Rows().Numbered(number)) << number;
        EXPECT_EQ(Rows().BodyOf(number), "");
    }
}

TEST_F(ActivityRowsTest, LastStartBefore_AnyLength_IsTheLatestOfTheClass)
{
    EXPECT_EQ(Rows().LastStartBefore(On(31, 0, 0)), std::nullopt);
    Add("long", On(1, 9, 0), On(20, 9, 0));
    Add("short", On(2, 9, 0), On(2, 9, 1));
    Add("other", On(3, 9, 0), On(3, 9, 1), "IPM.Appointment");
    EXPECT_EQ(Rows().LastStartBefore(On(31, 0, 0)), On(2, 9, 0));
    EXPECT_EQ(Rows().LastStartBefore(On(2, 9, 0)), On(1, 9, 0));
    EXPECT_EQ(Rows().LastStartBefore(On(1, 9, 0)), std::nullopt);
}

TEST_F(ActivityRowsTest, ListSql_SearchesTheIndexOfLengthsAlone)
{
    Query query(TestDatabase(mMailbox), "EXPLAIN QUERY PLAN " + ActivityRows::ListSql());
    std::string plan;
    while (query.Step()) {
        plan += query.Text(3) + "\n";
    }
    EXPECT_THAT(plan, HasSubstr("SEARCH item USING INDEX item_span (folder=? AND span=? AND starts>? AND starts<?)"));
    EXPECT_THAT(plan, Not(HasSubstr("SCAN item")));
    EXPECT_THAT(plan, Not(HasSubstr("TEMP B-TREE")));
}

}
