#include "driver/remote/FaceObjects.h"

#include "driver/remote/FaceCall.h"
#include "faults/FaultPlan.h"
#include "faults/Wrapped.h"
#include "host/windows/HostApplication.h"
#include "support/FailureNumber.h"
#include "support/TestMailbox.h"
#include "wire/WireFailure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint8_t Method = 1;
constexpr std::uint8_t OwnRead = 2;
constexpr std::uint8_t Get = 3;
constexpr std::uint8_t Put = 4;
constexpr std::uint8_t PutByReference = 8;

}

class FaceObjectsTest : public testing::Test
{
protected:
    FaceObjectsTest() { mApplication->OpenExplorer(mMailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox)); }

    WireValue Call(const WireValue& object, std::uint8_t flags, const std::string& member,
        const std::vector<WireValue>& arguments = {})
    {
        return mObjects.Call(object.number, flags, member, arguments);
    }
    /// The number that a member that can't be called so fails with.
    std::int64_t Refusal(const WireValue& object, std::uint8_t flags, const std::string& member)
    {
        try {
            Call(object, flags, member, { WireValue::Text("a") });
        } catch (const WireFailure& failure) {
            return failure.Number();
        }
        return 0;
    }
    WireValue Calendar() { return Call(Session(), Method, "GetDefaultFolder", { WireValue::Number(9) }); }
    WireValue Session() { return Call(mOutlook, Method, "GetNamespace", { WireValue::Text("MAPI") }); }
    WireValue NewItem()
    {
        return Call(Call(Calendar(), Get, "Items"), Method, "Add", { WireValue::Text("IPM.Appointment") });
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<HostApplication> mApplication = MakeRef<HostApplication>(mMailbox);
    Ref<FaultPlan> mPlan = MakeRef<FaultPlan>();
    std::vector<std::string> mRaised;
    bool mRefuses = false;
    FaceObjects mObjects { [this](std::int64_t object, std::int32_t event, const std::vector<WireValue>& arguments) {
        mRaised.push_back(
            std::to_string(object) + ":" + std::to_string(event) + ":" + std::to_string(arguments.size()));
        return mRefuses;
    } };
    WireValue mOutlook = mObjects.Give(Wrapped(Ref<Application>(mApplication), mPlan));
};

TEST_F(FaceObjectsTest, Objects_HaveTheirClassAndOneNumberEach)
{
    EXPECT_EQ(mOutlook, WireValue::Object(1, "Application"));
    const auto first = Calendar();
    EXPECT_EQ(first.text, "MAPIFolder");
    const auto explorers = Call(mOutlook, Get, "Explorers");
    EXPECT_EQ(Call(explorers, Get, "Item", { WireValue::Number(1) }), Call(mOutlook, Method, "ActiveExplorer"));
    EXPECT_EQ(Call(mOutlook, Method, "ActiveInspector"), WireValue::Object(0, ""));
}

TEST_F(FaceObjectsTest, Free_LetsAnObjectGo_AndItsNumberIsNeverGivenAgain)
{
    const auto explorer = Call(mOutlook, Method, "ActiveExplorer");
    const auto count = mObjects.Count();
    mObjects.Free(explorer.number);
    EXPECT_EQ(mObjects.Count(), count - 1);
    EXPECT_EQ(FailureNumber([&] { Call(explorer, Get, "Caption"); }), 424);
    EXPECT_GT(Call(mOutlook, Method, "ActiveExplorer").number, explorer.number);
}

TEST_F(FaceObjectsTest, Property_ReadAndPut_ReachesTheHost)
{
    const auto item = NewItem();
    EXPECT_EQ(item.text, "AppointmentItem");
    Call(item, Put, "Subject", { WireValue::Text("Plan") });
    EXPECT_EQ(Call(item, Get, "Subject"), WireValue::Text("Plan"));
    const auto moment = WireValue::Moment(Date::FromParts({ 2006, 10, 10, 9, 0, 0 }).Seconds());
    Call(item, Put, "Start", { moment });
    EXPECT_EQ(Call(item, Get, "Start"), moment);
    EXPECT_EQ(FailureNumber([&] { Call(item, Put, "Start", { WireValue::Text("soon") }); }), 13);
    EXPECT_EQ(FailureNumber([&] { Call(item, Put, "Start"); }), 13);
}

TEST_F(FaceObjectsTest, Members_UsedInAWayTheyHaveNot_AreRefused)
{
    const auto item = NewItem();
    EXPECT_EQ(Refusal(item, Get, "Nothing"), WireFailure::NoMember);
    EXPECT_EQ(Refusal(item, PutByReference, "Subject"), WireFailure::NoMember);
    EXPECT_EQ(Refusal(item, Put, "EntryID"), WireFailure::NoMember);
    EXPECT_EQ(Refusal(item, OwnRead, "Save"), WireFailure::NoMember);
    const auto explorer = Call(mOutlook, Method, "ActiveExplorer");
    EXPECT_EQ(Refusal(explorer, Put, "CurrentFolder"), WireFailure::NoMember);
    Call(explorer, PutByReference, "CurrentFolder", { Calendar() });
    EXPECT_EQ(Call(Call(explorer, Get, "CurrentFolder"), Get, "Name"), WireValue::Text("Calendar"));
}

TEST_F(FaceObjectsTest, Kind_ReadForTheBindingsOwnNeeds_PassesTheFaults)
{
    const auto item = NewItem();
    mPlan->Add({ .call = "AppointmentItem.Class", .times = 1 });
    const auto before = mPlan->CallCount();
    EXPECT_EQ(Call(item, OwnRead, "Class"), WireValue::Number(26));
    EXPECT_EQ(mPlan->CallCount(), before);
    EXPECT_EQ(FailureNumber([&] { Call(item, Get, "Class"); }), 440);
    EXPECT_EQ(Call(item, Get, "Class"), WireValue::Number(26));
}

TEST_F(FaceObjectsTest, Item_OfTextOrNumber_IsLookedForByThat)
{
    const auto folders = Call(Call(Session(), Get, "Folders"), Get, "Item", { WireValue::Number(1) });
    const auto below = Call(folders, Get, "Folders");
    const auto byName = Call(below, Get, "Item", { WireValue::Text("calendar") });
    EXPECT_EQ(Call(byName, Get, "EntryID"), Call(Calendar(), Get, "EntryID"));
    EXPECT_EQ(FailureNumber([&] { Call(below, Get, "Item", { WireValue::Number(99) }); }), 9);
}

TEST_F(FaceObjectsTest, Properties_OfTheUser_AreFoundOnceAndNotAgainAmongTheItemsOwn)
{
    const auto properties = Call(NewItem(), Get, "UserProperties");
    EXPECT_NE(Call(properties, Method, "Find", { WireValue::Text("Start") }).number, 0);
    EXPECT_EQ(Call(properties, Method, "Find", { WireValue::Text("Other") }).number, 0);
    EXPECT_EQ(Call(properties, Method, "Find", { WireValue::Text("Start"), WireValue::Flag(false) }).number, 0);
}

TEST_F(FaceObjectsTest, Events_AreRaisedWhileTheyAreWanted)
{
    mApplication->RaiseMapiLogonComplete();
    EXPECT_THAT(mRaised, IsEmpty());
    mObjects.Listen(mOutlook.number, true);
    mApplication->RaiseMapiLogonComplete();
    mApplication->RaiseQuit();
    EXPECT_THAT(mRaised, ElementsAre("1:64144:0", "1:61447:0"));
    mObjects.Listen(mOutlook.number, false);
    mApplication->RaiseQuit();
    EXPECT_EQ(mRaised.size(), 2U);
    EXPECT_EQ(FailureNumber([&] { mObjects.Listen(Session().number, true); }), 438);
}

TEST_F(FaceObjectsTest, Event_ThatIsRefusedThere_IsRefusedHere)
{
    const auto item = NewItem();
    mObjects.Listen(item.number, true);
    mRefuses = true;
    EXPECT_NE(FailureNumber([&] { Call(item, Method, "Save"); }), 0);
    EXPECT_EQ(Call(item, Get, "EntryID"), WireValue::Text(""));
    mRefuses = false;
    Call(item, Method, "Save");
    EXPECT_NE(Call(item, Get, "EntryID"), WireValue::Text(""));
    EXPECT_THAT(
        mRaised, ElementsAre(std::to_string(item.number) + ":61442:1", std::to_string(item.number) + ":61442:1"));
}

TEST_F(FaceObjectsTest, Object_OfAnotherClass_CantBeHandedIn)
{
    const auto item = NewItem();
    EXPECT_EQ(FailureNumber([&] { Call(item, Method, "Move", { item }); }), 13);
    EXPECT_EQ(FailureNumber([&] { Call(item, Method, "Move", { WireValue::Number(1) }); }), 13);
    EXPECT_EQ(FailureNumber([&] { Call(item, Method, "Move", { WireValue::Object(999, "") }); }), 424);
}

TEST_F(FaceObjectsTest, Controls_AreFoundByWhatIsGiven)
{
    const auto bars = Call(Call(mOutlook, Method, "ActiveExplorer"), Get, "CommandBars");
    const auto bar = Call(bars, Get, "Item", { WireValue::Text("Standard") });
    const auto print = Call(bar, Method, "FindControl", { WireValue::Missing(), WireValue::Number(2521) });
    EXPECT_EQ(print.text, "CommandBarButton");
    EXPECT_EQ(FailureNumber([&] { Call(bar, Method, "FindControl", { WireValue::Number(1) }); }), 5);
    const auto controls = Call(bar, Get, "Controls");
    const auto added = Call(controls, Method, "Add",
        { WireValue::Number(1), WireValue::Missing(), WireValue::Text("p"), WireValue::Missing(),
            WireValue::Flag(true) });
    Call(added, Put, "Caption", { WireValue::Text("Go") });
    EXPECT_EQ(Call(controls, Get, "Item", { WireValue::Text("Go") }), added);
    Call(added, Put, "Picture", { WireValue::Text("bytes") });
}

}
