#include "addin/com/Adapted.h"

#include "addin/base/SystemText.h"
#include "addin/com/FakeObject.h"
#include "base/Failure.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Fails with an exception that tells more.
FakeObject::Member Failing(std::int32_t number)
{
    return [number](const DISPPARAMS&, VARIANT*, EXCEPINFO* told) {
        told->scode = static_cast<SCODE>(0x800A0000U | static_cast<std::uint32_t>(number));
        told->bstrDescription = NewBstr("told");
        return DISP_E_EXCEPTION;
    };
}

std::int32_t NumberOfFailure(const std::function<void()>& work)
{
    try {
        work();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

}

class AdaptedTest : public testing::Test
{
protected:
    ~AdaptedTest() override
    {
        mObject.Clear();
        mOther.Clear();
        EXPECT_EQ(FakeObject::Count(), 0);
    }

    template <class Interface> Ref<Interface> As() { return Adapted<Interface>(mObject->Automation()); }
    AutomationValue Other() { return AutomationValue(mOther->Automation()); }

    ComRef<FakeObject> mObject = FakeObject::Make();
    ComRef<FakeObject> mOther = FakeObject::Make();
};

TEST_F(AdaptedTest, Nothing_StaysNothing)
{
    EXPECT_FALSE(Adapted<MAPIFolder>({}));
    EXPECT_FALSE(Adapted<OutlookItem>({}));
    EXPECT_FALSE(Adapted<CommandBarControl>({}));
}

TEST_F(AdaptedTest, Property_ReadAndSet_IsCalledAsThat)
{
    mObject->Has("Subject", AutomationValue("Plan"));
    mObject->Has("Start", AutomationValue(Date::FromParts({ 2006, 10, 10, 9, 5, 0 })));
    const auto item = As<AppointmentItem>();
    EXPECT_EQ(item->Subject(), "Plan");
    item->SetSubject("Łódź");
    EXPECT_EQ(item->Start(), Date::FromParts({ 2006, 10, 10, 9, 5, 0 }));
    item->SetStart(Date());
    EXPECT_THAT(mObject->calls, ElementsAre("3 Subject()", "4 Subject(\"Łódź\")", "3 Start()", "4 Start(moment)"));
}

TEST_F(AdaptedTest, Method_ThatAnEventHasTheNameOf_IsCalledAsMethodAlone)
{
    mObject->Has("Close", AutomationValue());
    mObject->Has("Save", AutomationValue());
    As<AppointmentItem>()->Close(CloseMode::Discard);
    As<AppointmentItem>()->Save();
    EXPECT_THAT(mObject->calls, ElementsAre("1 Close(1)", "1 Save()"));
}

TEST_F(AdaptedTest, Arguments_LeftOut_AreMissingInTheMiddleAndCutAtTheEnd)
{
    mObject->Has("FindControl", AutomationValue(ComRef<IDispatch>()));
    const auto bar = As<CommandBar>();
    EXPECT_FALSE(bar->FindControl({ .id = std::nullopt, .tag = "a tag" }));
    EXPECT_FALSE(bar->FindControl({ .id = 984, .tag = std::nullopt }));
    EXPECT_FALSE(bar->FindControl({}));
    EXPECT_THAT(mObject->calls,
        ElementsAre("1 FindControl(missing, missing, \"a tag\")", "1 FindControl(missing, 984)", "1 FindControl()"));
}

TEST_F(AdaptedTest, Add_OfAControl_PassesWhatIsGiven)
{
    mOther->Has("Type", AutomationValue(std::int32_t { 1 }));
    mObject->Has("Add", Other());
    const auto controls = As<CommandBarControls>();
    EXPECT_TRUE(controls->Add({ .type = CommandBarControlType::Button, .temporary = true }).As<CommandBarButton>());
    controls->Add({ .id = 359, .parameter = "p", .before = 2 });
    EXPECT_THAT(
        mObject->calls, ElementsAre("1 Add(1, missing, missing, missing, true)", "1 Add(1, 359, \"p\", 2, false)"));
}

TEST_F(AdaptedTest, Names_OfOneClass_AreAskedForOnce)
{
    mObject->Has("Caption", AutomationValue("a window"));
    mOther->Has("Caption", AutomationValue("another"));
    const auto first = As<Inspector>();
    const auto second = Adapted<Inspector>(mOther->Automation());
    EXPECT_EQ(first->Caption(), "a window");
    EXPECT_EQ(second->Caption(), "another");
    EXPECT_EQ(first->Caption(), "a window");
    EXPECT_LE(mObject->names.size() + mOther->names.size(), 1U);
}

TEST_F(AdaptedTest, Names_ThatNobodyKnows_FailAndAreAskedForAgain)
{
    const auto folder = As<MAPIFolder>();
    EXPECT_EQ(NumberOfFailure([&] { folder->FullFolderPath(); }), 438);
    mObject->Has("FullFolderPath", AutomationValue("\\\\Store\\Calendar"));
    EXPECT_EQ(folder->FullFolderPath(), "\\\\Store\\Calendar");
}

TEST_F(AdaptedTest, Failures_OfCalls_HaveNumberAndText)
{
    mObject->Has("Body", Failing(287));
    try {
        As<AppointmentItem>()->Body();
        FAIL();
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.Is(Error::SecurityRefusal));
        EXPECT_EQ(failure.Description(), "told");
    }
}

TEST_F(AdaptedTest, CurrentFolder_IsSetByReferenceOrElseByValue)
{
    mOther->Has("Name", AutomationValue("Calendar"));
    const auto folder = Adapted<MAPIFolder>(mOther->Automation());
    mObject->Has("CurrentFolder", AutomationValue());
    As<Explorer>()->SetCurrentFolder(folder);
    EXPECT_THAT(mObject->calls, ElementsAre("8 CurrentFolder(object)"));

    const auto byValue = FakeObject::Make();
    byValue->Has("CurrentFolder", [calls = 0](const DISPPARAMS&, VARIANT*, EXCEPINFO*) mutable {
        return ++calls == 1 ? DISP_E_MEMBERNOTFOUND : S_OK;
    });
    Adapted<Explorer>(byValue->Automation())->SetCurrentFolder(folder);
    EXPECT_THAT(byValue->calls, ElementsAre("8 CurrentFolder(object)", "4 CurrentFolder(object)"));
}

TEST_F(AdaptedTest, CurrentView_ObjectOrText_IsTheName)
{
    mOther->Has("Name", AutomationValue("By Project"));
    mObject->Has("CurrentView", Other());
    EXPECT_EQ(As<Explorer>()->CurrentView(), "By Project");
    auto plain = FakeObject::Make();
    plain->Has("CurrentView", AutomationValue("Day"));
    EXPECT_EQ(Adapted<Explorer>(plain->Automation())->CurrentView(), "Day");
}

TEST_F(AdaptedTest, Items_ByTheirClass_AreOfTheirKind)
{
    const auto itemOfClass = [&](std::int32_t itsClass) {
        auto item = FakeObject::Make();
        item->Has("Class", AutomationValue(itsClass));
        return Adapted<OutlookItem>(item->Automation());
    };
    EXPECT_TRUE(itemOfClass(26).As<AppointmentItem>());
    EXPECT_TRUE(itemOfClass(43).As<MailItem>());
    EXPECT_FALSE(itemOfClass(40).As<AppointmentItem>());
    EXPECT_TRUE(itemOfClass(40));
    const auto unreadable = As<OutlookItem>();
    EXPECT_TRUE(unreadable);
    EXPECT_FALSE(unreadable.As<AppointmentItem>());
}

TEST_F(AdaptedTest, Kind_IsReadAsAPropertyAlone)
{
    mObject->Has("Class", AutomationValue(std::int32_t { 26 }));
    As<OutlookItem>()->Class();
    EXPECT_THAT(mObject->calls, ElementsAre("2 Class()", "3 Class()"));
}

TEST_F(AdaptedTest, Controls_ByTheirType_AreOfTheirKind)
{
    const auto controlOfType = [&](std::int32_t type) {
        auto control = FakeObject::Make();
        control->Has("Type", AutomationValue(type));
        return Adapted<CommandBarControl>(control->Automation());
    };
    EXPECT_TRUE(controlOfType(1).As<CommandBarButton>());
    EXPECT_TRUE(controlOfType(10).As<CommandBarPopup>());
    EXPECT_FALSE(controlOfType(13).As<CommandBarPopup>());
    EXPECT_TRUE(controlOfType(13));
}

TEST_F(AdaptedTest, UserProperty_NotTheUsers_IsLookedForAmongTheItemsOwn)
{
    mObject->Has("Find", [this](const DISPPARAMS& parameters, VARIANT* result, EXCEPINFO*) {
        *result = (parameters.cArgs == 2 ? Other() : AutomationValue(ComRef<IDispatch>())).Detach();
        return S_OK;
    });
    EXPECT_TRUE(As<UserProperties>()->Item("Start"));
    EXPECT_THAT(mObject->calls, ElementsAre("1 Find(\"Start\")", "1 Find(\"Start\", false)"));
}

TEST_F(AdaptedTest, PublishForm_WithoutAName_GetsThatOfItsClass)
{
    mObject->Has("Name", AutomationValue(""));
    mObject->Has("MessageClass", AutomationValue("IPM.Appointment.TDActivity1"));
    mObject->Has("PublishForm", AutomationValue());
    As<FormDescription>()->PublishForm(FormRegistry::Personal);
    EXPECT_THAT(
        mObject->calls, ElementsAre("2 Name()", "3 MessageClass()", "4 Name(\"TDActivity1\")", "1 PublishForm(2)"));
}

TEST_F(AdaptedTest, PublishForm_WithAName_KeepsIt)
{
    mObject->Has("Name", AutomationValue("TDActivity1"));
    mObject->Has("PublishForm", AutomationValue());
    As<FormDescription>()->PublishForm(FormRegistry::Personal);
    EXPECT_THAT(mObject->calls, ElementsAre("2 Name()", "1 PublishForm(2)"));
}

TEST_F(AdaptedTest, PageControl_TakesMomentsAsTextsAndListsAsArrays)
{
    mObject->Has("Value", AutomationValue());
    mObject->Has("List", AutomationValue());
    const auto control = As<PageControl>();
    control->SetValue(Date::FromParts({ 2006, 10, 10, 9, 5, 0 }));
    control->SetValue(true);
    control->SetList({ "a", "b" });
    EXPECT_THAT(mObject->calls,
        ElementsAre(testing::ContainsRegex("4 Value\\(\".*2006.*\"\\)"), "4 Value(true)", "4 List(list)"));
}

TEST_F(AdaptedTest, ObjectThatIsNone_CantBeHandedIn)
{
    class Stranger final : public Picture
    {
    };
    mObject->Has("Picture", AutomationValue());
    EXPECT_EQ(NumberOfFailure([&] { As<CommandBarButton>()->SetPicture(MakeRef<Stranger>()); }), 13);
    EXPECT_THAT(mObject->calls, IsEmpty());
}

}
