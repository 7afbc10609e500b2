#include "cli/ActivityList.h"

#include "cli/ProjectStyle.h"
#include "host/store/StoreItem.h"
#include "platform/objectmodel/Folders.h"
#include "session/ProductFacts.h"
#include "support/AddInFixture.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

const Period Tenth { Date::FromYearMonthDay(2006, 10, 10), Date::FromYearMonthDay(2006, 10, 10) };
const Period NinthToTenth { Date::FromYearMonthDay(2006, 10, 9), Date::FromYearMonthDay(2006, 10, 10) };

Date At(int day, int hour, int minute, int second = 0)
{
    return Date::FromParts({ 2006, 10, day, hour, minute, second });
}

class ActivityListTest : public testing::Test
{
protected:
    ActivityListTest()
        : mWorkLog(Calendar()->Folders()->Add("Tempodial", DefaultFolder::Calendar))
    {
    }

    Ref<MAPIFolder> Calendar() const { return mAddIn.mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar); }
    Ref<AppointmentItem> Add(const std::string& subject, Date start, Date end, const std::string& project = "",
        const std::string& messageClass = ActivityClass)
    {
        ItemData data;
        data.messageClass = messageClass;
        data.subject = subject;
        data.start = start;
        data.end = end;
        if (!project.empty()) {
            data.properties.push_back({ "Project", PropertyType::Text, Variant(project) });
        }
        const auto item = mAddIn.mailbox->NewItem(mWorkLog, data);
        item->Save();
        return item;
    }
    std::vector<Ref<AppointmentItem>> In(
        const Period& days, const std::optional<std::string>& project = std::nullopt) const
    {
        return ActivitiesIn(mWorkLog, mAddIn.platform->formats, days, project);
    }
    static std::vector<std::string> Subjects(const std::vector<Ref<AppointmentItem>>& items)
    {
        std::vector<std::string> subjects;
        for (const auto& item : items) {
            subjects.push_back(item->Subject());
        }
        return subjects;
    }
    std::string Table(const Period& days, bool hasTotals = false, const TextLayout& layout = {}) const
    {
        return ActivityTable(In(days), mAddIn.platform->formats, days, hasTotals).Text(layout);
    }

    TempFolder mFolder;
    TestAddIn mAddIn { mFolder.Path() };
    Ref<MAPIFolder> mWorkLog;
};

using Names = std::vector<std::string>;

}

TEST_F(ActivityListTest, ActivitiesIn_BoundsOfTheRange_AreIncluded)
{
    Add("before", At(8, 23, 59, 59), At(9, 0, 5));
    Add("first", At(9, 0, 0), At(9, 0, 5));
    Add("last", At(10, 23, 59, 59), At(11, 0, 5));
    Add("behind", At(11, 0, 0), At(11, 0, 5));
    EXPECT_EQ(Subjects(In(NinthToTenth)), (Names { "first", "last" }));
    EXPECT_EQ(Subjects(In(Tenth)), (Names { "last" }));
}

TEST_F(ActivityListTest, ActivitiesIn_EarliestAndLatestDays_AreTaken)
{
    Add("now", At(10, 9, 0), At(10, 9, 5));
    EXPECT_EQ(In({ Date::FromYearMonthDay(100, 1, 1), Date::FromYearMonthDay(9999, 12, 31) }).size(), 1U);
}

TEST_F(ActivityListTest, ActivitiesIn_SeveralItems_AreInOrderOfStart)
{
    Add("c", At(10, 12, 0), At(10, 12, 5));
    Add("a", At(9, 9, 0), At(9, 9, 5));
    Add("b", At(10, 9, 0), At(10, 9, 5));
    EXPECT_EQ(Subjects(In(NinthToTenth)), (Names { "a", "b", "c" }));
}

TEST_F(ActivityListTest, ActivitiesIn_OtherItems_AreLeftOut)
{
    Add("appointment", At(10, 9, 0), At(10, 9, 5), "", "IPM.Appointment");
    Add("derived", At(10, 9, 0), At(10, 9, 5), "", "IPM.Appointment.TDActivity1.More");
    Add("ours", At(10, 9, 0), At(10, 9, 5));
    EXPECT_EQ(Subjects(In(Tenth)), (Names { "ours" }));
}

TEST_F(ActivityListTest, ActivitiesIn_Project_IsComparedWithoutCase)
{
    Add("plan", At(10, 9, 0), At(10, 9, 5), "Plan");
    Add("small", At(10, 9, 5), At(10, 9, 10), "plan");
    Add("none", At(10, 9, 10), At(10, 9, 15), "No Project");
    Add("absent", At(10, 9, 15), At(10, 9, 20));
    EXPECT_EQ(Subjects(In(Tenth, "PLAN")), (Names { "plan", "small" }));
    EXPECT_EQ(Subjects(In(Tenth, "no project")), (Names { "none" }));
    EXPECT_TRUE(In(Tenth, "Plans").empty());
}

TEST_F(ActivityListTest, ActivityTable_OneDay_HasNoHeading)
{
    Add("[Plan] Microsoft Word, \"plan.doc\"", At(10, 9, 0), At(10, 9, 5));
    Add("long\x1b\xe2\x80\xae work\r\n", At(10, 22, 0), At(11, 0, 10));
    EXPECT_EQ(Table(Tenth),
        "09:00–09:05       5 min  [Plan] Microsoft Word, \"plan.doc\"\n"
        "22:00–00:10  2 h 10 min  \u2068long␛ work \u2069\n");
}

TEST_F(ActivityListTest, ActivityTable_SeveralDays_HaveHeadings)
{
    Add("a", At(9, 9, 0), At(9, 9, 5));
    Add("b", At(10, 9, 0), At(10, 10, 0));
    EXPECT_EQ(Table(NinthToTenth),
        "Monday, October 9, 2006\n"
        "09:00–09:05  5 min  a\n"
        "\n"
        "Tuesday, October 10, 2006\n"
        "09:00–10:00  1 h 00 min  b\n");
}

TEST_F(ActivityListTest, ActivityTable_Totals_StandBesideTheDays)
{
    Add("a", At(9, 9, 0), At(9, 9, 5));
    Add("b", At(9, 9, 5), At(9, 10, 10));
    Add("c", At(10, 9, 0), At(10, 10, 0));
    EXPECT_EQ(Table(NinthToTenth, true),
        "Monday, October 9, 2006  1 h 10 min\n"
        "09:00–09:05       5 min  a\n"
        "09:05–10:10  1 h 05 min  b\n"
        "\n"
        "Tuesday, October 10, 2006  1 h 00 min\n"
        "09:00–10:00  1 h 00 min  c\n");
    EXPECT_EQ(Table(Tenth, true), "09:00–10:00  1 h 00 min  c\n");
}

TEST_F(ActivityListTest, ActivityTable_Colors_AreThoseOfTheProjects)
{
    Add("a", At(9, 9, 0), At(9, 9, 5), "Plan");
    Add("b", At(10, 9, 0), At(10, 9, 5));
    EXPECT_EQ(Table(NinthToTenth, false, { .hasColors = true }),
        "\x1b[1mMonday, October 9, 2006\x1b[0m\n"
        "09:00–09:05  5 min  "
            + ProjectStyle("Plan").Drawn("a")
            + "\n"
              "\n"
              "\x1b[1mTuesday, October 10, 2006\x1b[0m\n"
              "09:00–09:05  5 min  \x1b[2mb\x1b[0m\n");
}

TEST_F(ActivityListTest, ActivityTotal_CountsThemAndTheirTime)
{
    EXPECT_EQ(ActivityTotal(In(Tenth)), "No activities.\n");
    Add("a", At(10, 9, 0), At(10, 9, 5));
    EXPECT_EQ(ActivityTotal(In(Tenth)), "\n1 activity, 5 min\n");
    Add("b", At(10, 9, 5), At(10, 10, 5));
    EXPECT_EQ(ActivityTotal(In(Tenth)), "\n2 activities, 1 h 05 min\n");
}

}
