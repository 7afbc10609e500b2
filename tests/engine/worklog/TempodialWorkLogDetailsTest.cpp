#include "support/WorkLogFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

namespace tempodial {

namespace {

class TempodialWorkLogDetailsTest : public WorkLogFixture
{
protected:
    void Detail(const Ref<AppointmentItem>& item, const std::string& description, const std::string& body,
        const std::string& project = "", const std::string& contacts = "")
    {
        mWorkLog->ExtraCalendarItemInfo(item, description, "Notepad", project, contacts, At(1, 0), At(2, 0), body);
    }
};

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_FirstDetail_ReplacesDescriptionPeopleAndProject)
{
    AddProject("Beta", "x");
    const auto item = Activity("", "Plan", "Notepad", "a;");
    Detail(item, "x", "\r\nx\r\n", "", "b");
    EXPECT_EQ(item->Body(), "Your activities include: \r\n\r\nx\r\n");
    EXPECT_EQ(Property(item, "Description"), "including: x");
    EXPECT_EQ(Property(item, "People"), "b;a;");
    EXPECT_EQ(Property(item, "Project"), "Beta");
    EXPECT_EQ(item->Mileage(), "Beta");
    EXPECT_EQ(item->BillingInformation(), "including: x");
    EXPECT_EQ(item->Subject(), "[Beta] Notepad, including: x");
    EXPECT_EQ(item->Start(), At(9, 0));
    EXPECT_EQ(item->End(), At(9, 5));
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
}

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_FirstDetail_TracesTheWholeRoad)
{
    const auto item = Activity("", "Plan");
    Detail(item, "x", "\r\nx\r\n");
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog add xtra info to: Notepad, Planstart 10/10/2006 9:00:00 AM end 10/10/2006 9:05:00 AM",
            "TDWorklog replace desc a: Plan", "TDWorklog createsubject: Notepad, x",
            "TDProjectMan PM What Proj: Notepad, x  = No Project", "TDWorklog RefreshCalendarItem : including: x",
            "TDWorklog old: No Project new: No Project", "TDWorklog RefreshCalendarItem oldDesc : Plan",
            "TDWorklog createsubject: Notepad, including: x", "TDWorklog save and close"));
}

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_ProjectOfTheSlot_GoesBeforeTheRules)
{
    AddProject("Beta", "x");
    const auto item = Activity("A");
    Detail(item, "x", "b", "C");
    EXPECT_EQ(Property(item, "Project"), "C");
    EXPECT_EQ(item->Mileage(), "C");
}

struct DescriptionCase
{
    const char* description;
    const char* detail;
    const char* after;
};

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_Description_IsReplacedOnceAndNeverWhenItHoldsAUrl)
{
    for (const auto& [description, detail, after] :
        { DescriptionCase { "Plan", "x", "including: x" }, DescriptionCase { "my including: z", "y", "including: y" },
            DescriptionCase { "including: x", "y", "including: x" },
            DescriptionCase { "see HTTP://q", "y", "including: y" },
            DescriptionCase { "(http://q)", "y", "(http://q)" }, DescriptionCase { "", "y", "including: y" } }) {
        const auto item = Activity("A", description, "Notepad", "a;");
        const auto subject = item->Subject();
        Detail(item, detail, "body", "B", "b");
        EXPECT_EQ(Property(item, "Description"), after);
        EXPECT_EQ(item->Body(), "Your activities include: \r\nbody");
        const bool kept = std::string(after) == description;
        EXPECT_EQ(Property(item, "People"), kept ? "a;" : "b;a;") << description;
        EXPECT_EQ(Property(item, "Project"), kept ? "A" : "B") << description;
        EXPECT_EQ(item->Subject() == subject, kept) << description;
        EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
    }
}

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_NoContacts_LeavesThePeople)
{
    const auto item = Activity("A", "Plan", "Notepad", "a;");
    Detail(item, "x", "body");
    EXPECT_EQ(Property(item, "People"), "a;");
}

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_BodyReadBack_CarriesTheHeadingTwice)
{
    const auto item = Activity("A");
    Detail(item, "x", "\r\nx\r\n");
    Detail(item, "y", mWorkLog->GetBody(item) + "y\r\n");
    EXPECT_EQ(item->Body(), "Your activities include: \r\nYour activities include: \r\n\r\nx\r\ny\r\n");
}

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_ItemIsOpen_StopsSilently)
{
    const auto item = Activity("A");
    Open(item);
    Detail(item, "x", "body");
    EXPECT_EQ(item->Body(), "");
    EXPECT_EQ(Property(item, "Description"), "Plan");
    EXPECT_THAT(Traced(), ElementsAre(HasSubstr("TDWorklog add xtra info to: "), "TDMain IsInspector - open"));
}

TEST_F(TempodialWorkLogDetailsTest, ExtraCalendarItemInfo_AnyMemberFails_StillSavesAndCloses)
{
    std::vector<std::string> members;
    const auto count = [&](const std::string& member) { members.push_back(member); };
    const auto item = Activity("", "Plan", "Notepad", "a;");
    Detail(ObservedItem(item, count), "x", "body", "", "b");
    const auto calls = members;
    ASSERT_GT(calls.size(), 20U);
    for (std::size_t failing = 0; failing < calls.size(); ++failing) {
        const auto fresh = Activity("", "Plan", "Notepad", "a;");
        members.clear();
        Detail(ObservedItem(fresh,
                   [&](const std::string& member) {
                       members.push_back(member);
                       if (members.size() == failing + 1) {
                           throw Failure(Error::Automation);
                       }
                   }),
            "x", "body", "", "b");
        EXPECT_THAT(Traced(), Contains(HasSubstr("Automation error"))) << calls[failing];
        EXPECT_EQ(members.back(), "AppointmentItem.Close") << calls[failing];
    }
}

TEST_F(TempodialWorkLogDetailsTest, RefreshCalendarItem_OtherProject_IsWrittenAndMadeKnown)
{
    const auto item = Activity("A");
    mWorkLog->RefreshCalendarItem(item, "New", "Plan", false);
    EXPECT_EQ(item->Mileage(), "New");
    EXPECT_EQ(item->Subject(), "[New] Notepad, Plan");
    EXPECT_EQ(Property(item, "Project"), "A");
    EXPECT_TRUE(item.As<StoreItem>()->HasChanges());
    EXPECT_EQ(Registered("Project List"), "New");
    const auto traced = Traced();
    EXPECT_THAT(std::vector<std::string>(traced.begin(), traced.begin() + 4),
        ElementsAre("TDWorklog RefreshCalendarItem : Plan", "TDWorklog old: A new: New",
            "TDWorklog Project has changed", "TDProjectMan PM Update Proj: New    2 True"));
}

TEST_F(TempodialWorkLogDetailsTest, RefreshCalendarItem_KnownProject_KeepsItsRules)
{
    AddProject("New", "rule");
    mWorkLog->RefreshCalendarItem(Activity("A"), "New", "Plan", false);
    EXPECT_EQ(mMain->GetProjectSubRule("New"), "rule");
}

TEST_F(TempodialWorkLogDetailsTest, RefreshCalendarItem_SubjectOnly_TakesTheProjectIntoTheSubjectAlone)
{
    const auto item = Activity("A");
    mWorkLog->RefreshCalendarItem(item, "New", "Plan", true);
    EXPECT_EQ(item->Mileage(), "A");
    EXPECT_EQ(item->Subject(), "[A] Notepad, Plan");
    mWorkLog->RefreshCalendarItem(item, "New", "Other", true);
    EXPECT_EQ(item->Mileage(), "A");
    EXPECT_EQ(item->Subject(), "[New] Notepad, Other");
    EXPECT_EQ(item->BillingInformation(), "Other");
    EXPECT_EQ(Registered("Project List"), "");
}

TEST_F(TempodialWorkLogDetailsTest, RefreshCalendarItem_NothingChanged_WritesNothing)
{
    const auto item = Activity("A");
    mWorkLog->RefreshCalendarItem(item, "A", "Plan", false);
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
}

TEST_F(TempodialWorkLogDetailsTest, RefreshCalendarItem_TypeAbsent_TracesOneFailure)
{
    const auto item = Appointment("plain");
    mWorkLog->RefreshCalendarItem(item, "A", "Plan", true);
    EXPECT_EQ(item->Subject(), "[A] Plan");
    EXPECT_THAT(Traced(),
        Contains(HasSubstr("TDWorklog RefreshCalendarItem error Object variable or With block variable not set "))
            .Times(1));
}

TEST_F(TempodialWorkLogDetailsTest, GetBody_Item_IsRead)
{
    const auto item = Activity("A");
    item->SetBody("text");
    EXPECT_EQ(mWorkLog->GetBody(item), "text");
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog GetBody"));
}

TEST_F(TempodialWorkLogDetailsTest, GetBody_SecurityPopups_LeavesTheItemAlone)
{
    mMain->mSecurityPopups = true;
    const auto item
        = ObservedItem(Appointment("plain", "text"), [](const std::string& member) { ADD_FAILURE() << member; });
    EXPECT_EQ(mWorkLog->GetBody(item), "");
    EXPECT_THAT(Traced(), ElementsAre("TDWorklog GetBody"));
}

TEST_F(TempodialWorkLogDetailsTest, GetBody_Refused_IsRememberedForTheWholeSystem)
{
    const auto item
        = ObservedItem(Appointment("plain", "text"), FailingAt("AppointmentItem.Body", Error::SecurityRefusal));
    EXPECT_EQ(mWorkLog->GetBody(item), "");
    EXPECT_TRUE(mMain->mSecurityPopups);
    EXPECT_EQ(mRegistry->Read(Hive::LocalMachine, ProductKey, "Outlook Security Popups", RegistryAccess::Query),
        Variant("true"));
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetBody",
            "TDWorklog security exception on getbodyApplication-defined or object-defined error",
            "TDWorklog security popup seen! drop all email guarded function from now on",
            "TempodialCommonUtils MarkEmailObjectGuardInPlace"));
}

TEST_F(TempodialWorkLogDetailsTest, GetBody_NoItem_IsNoRefusal)
{
    EXPECT_EQ(mWorkLog->GetBody(nullptr), "");
    EXPECT_FALSE(mMain->mSecurityPopups);
    EXPECT_THAT(Traced(),
        ElementsAre("TDWorklog GetBody",
            "TDWorklog security exception on getbodyObject variable or With block variable not set"));
}

TEST_F(TempodialWorkLogDetailsTest, ApplyProjectToItem_RulesMatch_WritesTheProjectWithoutSaving)
{
    AddProject("Beta", "plan");
    const auto item = Activity("A");
    EXPECT_TRUE(mWorkLog->ApplyProjectToItem("Beta", item));
    EXPECT_EQ(Property(item, "Project"), "Beta");
    EXPECT_EQ(item->Mileage(), "Beta");
    EXPECT_EQ(item->Subject(), "[Beta] Notepad, Plan");
    EXPECT_TRUE(item.As<StoreItem>()->HasChanges());
    const auto traced = Traced();
    EXPECT_THAT(std::vector<std::string>(traced.begin(), traced.begin() + 6),
        ElementsAre("TDWorklog check if project matches", "TDWorklog createsubject: Notepad, Plan",
            "TDProjectMan PM isProject: Beta desc: Notepad, Plan", "TDProject unquoted match",
            "TDWorklog project matches", "TDWorklog refresh project"));
}

TEST_F(TempodialWorkLogDetailsTest, ApplyProjectToItem_PeopleMatch_AreTheItems)
{
    AddProject("Beta", "", "Ann");
    EXPECT_TRUE(mWorkLog->ApplyProjectToItem("Beta", Activity("A", "Plan", "Notepad", "Ann;")));
    EXPECT_FALSE(mWorkLog->ApplyProjectToItem("Beta", Activity("A", "Plan", "Notepad", "Bob;")));
}

TEST_F(TempodialWorkLogDetailsTest, ApplyProjectToItem_ProjectInSubject_IsNoMatch)
{
    AddProject("Beta", "alpha");
    const auto item = Activity("Alpha");
    EXPECT_FALSE(mWorkLog->ApplyProjectToItem("Beta", item));
    EXPECT_FALSE(item.As<StoreItem>()->HasChanges());
}

TEST_F(TempodialWorkLogDetailsTest, ApplyProjectToItem_ProjectCantBeWritten_IsFalse)
{
    AddProject("Beta", "plan");
    const auto item = ObservedItem(Activity("A"), FailingAt("UserProperty.SetValue Project"));
    EXPECT_FALSE(mWorkLog->ApplyProjectToItem("Beta", item));
    EXPECT_THAT(Traced(), Contains("TDWorklog applyproject error Automation error set properties"));
}

TEST_F(TempodialWorkLogDetailsTest, ApplyProjectToItem_PropertyCantBeRead_IsFalseAndTheItemUntouched)
{
    AddProject("Beta", "plan;notepad;none");
    for (const auto* name : { "People", "Type", "Description" }) {
        const auto item = Activity("A");
        const auto observed = ObservedItem(item, FailingAt(std::string("UserProperty.Value ") + name));
        EXPECT_FALSE(mWorkLog->ApplyProjectToItem("Beta", observed)) << name;
        EXPECT_FALSE(item.As<StoreItem>()->HasChanges()) << name;
        EXPECT_THAT(Traced(), Contains("TDWorklog applyproject error Automation error set properties").Times(1));
    }
}

TEST_F(TempodialWorkLogDetailsTest, ApplyProjectToItem_NoItemOrUnknownProject_IsFalse)
{
    AddProject("Beta", "plan");
    EXPECT_FALSE(mWorkLog->ApplyProjectToItem("Beta", nullptr));
    EXPECT_FALSE(mWorkLog->ApplyProjectToItem("Unknown", Activity("A")));
}

}

}
