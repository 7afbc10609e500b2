#include "review/ActivityCalendar.h"

#include "cli/ReadBack.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::Not;

ActivityRecord PlainActivity()
{
    return { .entryId = "00AB",
        .start = Date::FromParts({ 2006, 10, 10, 10, 0, 0 }),
        .end = Date::FromParts({ 2006, 10, 10, 10, 20, 30 }),
        .duration = 20,
        .project = "Plan",
        .application = "Microsoft Word",
        .description = "\"plan.doc\"",
        .people = "a@b.example",
        .subject = "[Plan] Microsoft Word, \"plan.doc\"",
        .body = "",
        .saved = Date::FromParts({ 2006, 10, 11, 6, 0, 1 }) };
}

class ActivityCalendarTest : public testing::Test
{
protected:
    /// What another program reads of the activities.
    nlohmann::json Read(const std::vector<ActivityRecord>& activities)
    {
        const auto path = mFolder.Write("a.ics", ActivityCalendar(activities));
        auto read = nlohmann::json::parse(ReadBack("cli/read_calendar.py", path));
        EXPECT_EQ(read.at("errors"), nlohmann::json::array());
        EXPECT_EQ(read.at("findings"), nlohmann::json::array());
        return read;
    }
    nlohmann::json ReadOne(const ActivityRecord& activity) { return Read({ activity }).at("events").at(0); }

    TempFolder mFolder;
};

}

TEST_F(ActivityCalendarTest, ActivityCalendar_Activity_HasItsProperties)
{
    const auto read = Read({ PlainActivity() });
    EXPECT_EQ(read.at("version"), "2.0");
    EXPECT_EQ(read.at("prodid"), "-//Tempodial//Tempodial 1.2.0//EN");
    EXPECT_EQ(read.at("name"), "Tempodial");
    EXPECT_EQ(read.at("events"), nlohmann::json::parse(R"([{
        "UID": "00AB@tempodial", "SUMMARY": "[Plan] Microsoft Word, \"plan.doc\"", "TRANSP": "TRANSPARENT",
        "X-TEMPODIAL-APPLICATION": "Microsoft Word", "X-TEMPODIAL-DESCRIPTION": "\"plan.doc\"",
        "X-TEMPODIAL-PEOPLE": "a@b.example", "CATEGORIES": ["Plan"],
        "DTSTART": "2006-10-10T10:00:00", "DTEND": "2006-10-10T10:20:30", "DTSTAMP": "2006-10-11T06:00:01+00:00",
        "LAST-MODIFIED": "2006-10-11T06:00:01+00:00" }])"));
}

TEST_F(ActivityCalendarTest, ActivityCalendar_SameActivities_GiveTheSameBytes)
{
    EXPECT_EQ(
        ActivityCalendar({ PlainActivity(), PlainActivity() }), ActivityCalendar({ PlainActivity(), PlainActivity() }));
}

TEST_F(ActivityCalendarTest, ActivityCalendar_NoProject_HasNoCategory)
{
    for (const auto* project : { "No Project", "" }) {
        auto activity = PlainActivity();
        activity.project = project;
        EXPECT_FALSE(ReadOne(activity).contains("CATEGORIES")) << project;
    }
}

TEST_F(ActivityCalendarTest, ActivityCalendar_ProjectWithMarks_IsOneCategory)
{
    auto activity = PlainActivity();
    activity.project = "Sales, EMEA; a\\b \"c\": d";
    EXPECT_THAT(ActivityCalendar({ activity }), HasSubstr("\r\nCATEGORIES:Sales\\, EMEA\\; a\\\\b \"c\": d\r\n"));
    ReadOne(activity);
}

TEST_F(ActivityCalendarTest, ActivityCalendar_Body_KeepsItsLines)
{
    auto activity = PlainActivity();
    activity.body = "Other activities:\r\n10:05, a; b\r\n\r\nend\tof\x01\x7f it";
    EXPECT_EQ(ReadOne(activity).at("DESCRIPTION"), "Other activities:\n10:05, a; b\n\nend of it");
}

TEST_F(ActivityCalendarTest, ActivityCalendar_Backslash_IsNoEscape)
{
    auto activity = PlainActivity();
    activity.body = activity.people = "C:\\new";
    const auto calendar = ActivityCalendar({ activity });
    EXPECT_THAT(calendar, HasSubstr("\r\nDESCRIPTION:C:\\\\new\r\n"));
    EXPECT_THAT(calendar, HasSubstr("\r\nX-TEMPODIAL-PEOPLE:C:\\\\new\r\n"));
}

TEST_F(ActivityCalendarTest, ActivityCalendar_LongText_IsFoldedBetweenCharacters)
{
    auto activity = PlainActivity();
    activity.subject.clear();
    for (int i = 0; i < 100; ++i) {
        activity.subject += "\u00e4\U0001F600b,";
    }
    EXPECT_EQ(ReadOne(activity).at("SUMMARY"), activity.subject);
}

TEST_F(ActivityCalendarTest, ActivityCalendar_TextWithLineEnd_AddsNoProperty)
{
    for (const auto* end : { "\r\n", "\n", "\r" }) {
        auto activity = PlainActivity();
        activity.subject = std::string("a") + end + "ATTENDEE:mailto:x@y.example";
        activity.project = activity.subject;
        activity.people = activity.subject + end + "END:VEVENT";
        EXPECT_EQ(ReadOne(activity).at("SUMMARY"), "a\nATTENDEE:mailto:x@y.example");
        EXPECT_THAT(ActivityCalendar({ activity }), Not(HasSubstr("\nATTENDEE")));
    }
}

TEST_F(ActivityCalendarTest, ActivityCalendar_NoLength_HasNoEnd)
{
    auto activity = PlainActivity();
    activity.end = activity.start;
    const auto event = ReadOne(activity);
    EXPECT_FALSE(event.contains("DTEND"));
    EXPECT_EQ(event.at("DTSTART"), "2006-10-10T10:00:00");
}

TEST_F(ActivityCalendarTest, ActivityCalendar_None_IsACalendarWithoutEvents)
{
    EXPECT_EQ(Read({}).at("events"), nlohmann::json::array());
}

}
