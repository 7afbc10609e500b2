#include "host/windows/HostInspectors.h"

#include "host/windows/InspectorFixture.h"

namespace tempodial {

class HostInspectorsTest : public InspectorFixture
{
};

TEST_F(HostInspectorsTest, Open_RefusedAfterItCameToTheFront_LeavesTheOneBefore)
{
    const auto before = mApplication->OpenInspector(NewAppointment("before"));
    const auto item = NewActivity();
    const auto noting = Note(item, [&](const auto&, bool& cancel) {
        item->Display();
        cancel = true;
    });
    EXPECT_FALSE(mApplication->OpenInspector(item));
    ASSERT_EQ(mApplication->ActiveInspector(), Ref<Inspector>(before));
    EXPECT_EQ(mApplication->ActiveInspector()->Caption(), "before - Appointment");
}

TEST_F(HostInspectorsTest, Opened_IsToldWhenTheWindowIsOnTheScreen)
{
    const auto item = NewActivity();
    std::vector<Ref<HostInspector>> opened;
    Subscription drawing;
    const auto watching = mApplication->SubscribeToInspectors({ [&](const Ref<HostInspector>& inspector) {
        mHeard.emplace_back("opened");
        opened.push_back(inspector);
        drawing = inspector->SubscribeToChanges({ .BroughtToFront = [&] { mHeard.emplace_back("front"); } });
    } });
    const auto hearing = OnNew([&](const auto&) { mHeard.emplace_back("new"); });
    const auto noting = Note(item);
    const auto inspector = mApplication->OpenInspector(item);
    EXPECT_THAT(opened, testing::ElementsAre(inspector));
    EXPECT_THAT(mHeard, testing::ElementsAre("new", "open", "opened", "front"));
    mApplication->OpenMail(mApplication->CreateItem().As<HostMail>());
    EXPECT_EQ(opened.size(), 2);
}

TEST_F(HostInspectorsTest, Opened_WindowThatIsRefusedOrGone_IsNotToldOf)
{
    int opened = 0;
    const auto watching = mApplication->SubscribeToInspectors({ [&](const auto&) { ++opened; } });
    const auto refused = NewActivity();
    const auto refusing = Note(refused, [](const auto&, bool& cancel) { cancel = true; });
    EXPECT_FALSE(mApplication->OpenInspector(refused));
    const auto closing = OnNew([](const auto& inspector) { inspector->Close(); });
    EXPECT_FALSE(mApplication->OpenInspector(NewAppointment()));
    EXPECT_FALSE(mApplication->OpenMail(mApplication->CreateItem().As<HostMail>()));
    EXPECT_EQ(opened, 0);
}

TEST_F(HostInspectorsTest, BroughtToFront_IsToldOfTheWindowThatIsShownAgain)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    mApplication->OpenInspector(NewAppointment());
    int fronted = 0;
    const auto watching = inspector->SubscribeToChanges({ .BroughtToFront = [&] { ++fronted; } });
    item->Display();
    EXPECT_EQ(fronted, 1);
    mApplication->ActivateInspector(inspector);
    EXPECT_EQ(fronted, 2);
    inspector->Close();
    mApplication->ActivateInspector(inspector);
    EXPECT_EQ(fronted, 2);
}

}
