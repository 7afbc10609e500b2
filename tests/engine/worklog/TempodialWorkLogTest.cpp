#include "support/WorkLogFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace tempodial {

namespace {

using TempodialWorkLogTest = WorkLogFixture;

TEST_F(TempodialWorkLogTest, IsOurItem_MessageClass_IsComparedExactly)
{
    const auto withClass = [&](const std::string& messageClass) {
        ItemData data;
        data.messageClass = messageClass;
        return mMailbox->NewItem(mLogFolder, data);
    };
    EXPECT_TRUE(mWorkLog->IsOurItem(withClass("IPM.Appointment.TDActivity1")));
    EXPECT_FALSE(mWorkLog->IsOurItem(withClass("IPM.Appointment")));
    EXPECT_FALSE(mWorkLog->IsOurItem(withClass("IPM.Appointment.TDActivity1.New")));
    EXPECT_FALSE(mWorkLog->IsOurItem(withClass("ipm.appointment.tdactivity1")));
}

TEST_F(TempodialWorkLogTest, IsOurItem_FieldsFail_IsFalseWithNumberAndText)
{
    const auto item = Activity("A");
    mWorkLog->GetBody(item);
    ForgetTrace();
    EXPECT_FALSE(mWorkLog->IsOurItem(nullptr));
    EXPECT_FALSE(mWorkLog->IsOurItem(ObservedItem(item, FailingAt("AppointmentItem.Subject", Error::NotSupported))));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog Check Item 2 error get body 91 Object variable or With block variable not set",
            "TDWorklog Check Item 2 error get body 438 Object doesn't support this property or method"));
}

TEST_F(TempodialWorkLogTest, GetAttribute_Property_IsAnswered)
{
    const auto item = Activity("A");
    EXPECT_EQ(mWorkLog->GetAttribute("Project", item), Variant("A"));
    EXPECT_EQ(mWorkLog->GetAttribute("project", item), Variant("A"));
    EXPECT_EQ(mWorkLog->GetAttribute("Duration", item), Variant(5));
    EXPECT_THAT(Traced(), IsEmpty());
}

TEST_F(TempodialWorkLogTest, GetAttribute_Failure_LeavesTheRoutineAtItsStep)
{
    const auto item = Activity("A");
    EXPECT_TRUE(mWorkLog->GetAttribute("Project", nullptr).IsEmpty());
    EXPECT_TRUE(
        mWorkLog->GetAttribute("Project", ObservedItem(item, FailingAt("UserProperties.Item Project"))).IsEmpty());
    EXPECT_TRUE(mWorkLog->GetAttribute("Absent", item).IsEmpty());
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog getattribute error UserProps 91 Object variable or With block variable not set",
            "TDWorklog getattribute error attrib 440 Automation error",
            "TDWorklog getattribute error value 91 Object variable or With block variable not set"));
}

struct SubjectCase
{
    const char* project;
    const char* application;
    const char* description;
    const char* subject;
};

TEST_F(TempodialWorkLogTest, CreateSubject_Parts_StandInItOnlyWhenThereAreAny)
{
    for (const auto& [project, application, description, subject] :
        { SubjectCase { "No Project", "Notepad", "None", "Notepad" },
            SubjectCase { "A", "Notepad", "x", "[A] Notepad, x" }, SubjectCase { "A", "", "x", "[A] x" },
            SubjectCase { "A", "", "", "[A] " }, SubjectCase { "A", "Notepad", "None", "[A] Notepad" },
            SubjectCase { "", "Word", "none", "Word, none" },
            SubjectCase { "no project", "N", "x", "[no project] N, x" }, SubjectCase { "", "", "", "" } }) {
        EXPECT_EQ(mWorkLog->CreateSubject(project, application, description), subject);
        EXPECT_THAT(Traced(), ElementsAre(std::string("TDWorklog createsubject: ") + subject));
    }
}

TEST_F(TempodialWorkLogTest, CreateDurationString_Minutes_AreRoundedWithGaps)
{
    for (const auto& [minutes, text] :
        std::vector<std::pair<int, const char*>> { { 0, "(0.5 min)" }, { 15, "(0.5 min)" }, { 16, "(0.5 min)" },
            { 44, "(0.5 min)" }, { 45, "(0.5 min)" }, { 46, "(1 min)" }, { 59, "(1 min)" }, { 60, "(1 min)" },
            { 75, "(1 min)" }, { 105, "(1 min)" }, { 76, "(1.5 min)" }, { 90, "(1.5 min)" }, { 104, "(1.5 min)" },
            { 106, "(2 min)" }, { 120, "(2 min)" }, { 165, "(2 min)" }, { 136, "(2.5 min)" } }) {
        EXPECT_EQ(mWorkLog->CreateDurationString(minutes), text) << minutes;
    }
}

}

}
