#include "host/windows/BuiltInCommand.h"
#include "host/windows/HostInspector.h"
#include "host/windows/InspectorFixture.h"

namespace tempodial {

using testing::ElementsAre;

/// What whoever draws a window on an item, and owns the host, hears of it.
class HostInspectorDrawingTest : public InspectorFixture
{
};

TEST_F(HostInspectorDrawingTest, Changes_OfItemOrMail_AreToldToWhoeverDrawsIt)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    std::string caption;
    bool isUnsaved = false;
    const auto watching = inspector->SubscribeToChanges({ .Changed = [&] {
        caption = inspector->Caption();
        isUnsaved = item->HasChanges();
    } });
    item->SetSubject("other");
    EXPECT_EQ(caption, "other - Activity");
    EXPECT_TRUE(isUnsaved);
    inspector->Save();
    EXPECT_FALSE(isUnsaved);
    item->SetProjectByHand(true);
    EXPECT_TRUE(isUnsaved);

    const auto mail = mApplication->CreateItem().As<HostMail>();
    const auto shown = mApplication->OpenMail(mail);
    int told = 0;
    const auto watchingMail = shown->SubscribeToChanges({ .Changed = [&] { ++told; } });
    mail->SetSubject("report");
    mail->SetBody("text");
    mail->SetHTMLBody("<p>text</p>");
    mail->Recipients()->Add("ann@example.org");
    EXPECT_EQ(told, 4);
}

TEST_F(HostInspectorDrawingTest, Ended_IsToldWhenTheWindowIsGone)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    int ended = 0;
    const auto watching = inspector->SubscribeToChanges({ .Ended = [&] {
        ++ended;
        EXPECT_TRUE(inspector->IsGone());
    } });
    item->Delete();
    EXPECT_EQ(ended, 1);
}

TEST_F(HostInspectorDrawingTest, OwnersCommands_AreRunByTheOwner)
{
    const auto inspector = mApplication->OpenInspector(NewActivity());
    Click(inspector, BuiltInCommand::Print);
    mApplication->SetOwnerCommands({ .InInspector = [&](const Ref<HostInspector>& window, std::int32_t command) {
        mHeard.push_back(std::to_string(window->Number()) + " runs " + std::to_string(command));
    } });
    Click(inspector, BuiltInCommand::Print);
    Click(inspector, BuiltInCommand::Help);
    Click(inspector, BuiltInCommand::NextItem);
    EXPECT_THAT(mHeard, ElementsAre("1 runs 2521", "1 runs 984"));
    EXPECT_FALSE(inspector->IsGone());
}

TEST_F(HostInspectorDrawingTest, NextItem_ShowsTheNearestInThePlaceOfThisOne)
{
    const auto nearest = NewActivity("nearest");
    const auto farther = NewActivity("farther");
    const auto inspector = mApplication->OpenInspector(NewActivity());
    std::vector<Ref<StoreItem>> beside;
    std::int32_t asked = 0;
    mApplication->SetOwnerCommands({ .ItemsBeside = [&](const auto&, std::int32_t command) {
        asked = command;
        return beside;
    } });
    Click(inspector, BuiltInCommand::PreviousItem);
    EXPECT_EQ(asked, BuiltInCommand::PreviousItem);
    EXPECT_FALSE(inspector->IsGone());

    beside = { nearest, farther };
    EXPECT_THAT(inspector->ItemsBeside(BuiltInCommand::NextItem), ElementsAre(nearest, farther));
    Click(inspector, BuiltInCommand::NextItem);
    EXPECT_TRUE(inspector->IsGone());
    ASSERT_EQ(mApplication->OpenInspectors().size(), 1);
    EXPECT_EQ(mApplication->OpenInspectors().front()->ShownItem(), nearest);
}

TEST_F(HostInspectorDrawingTest, GoTo_HandlerKeepsTheWindow_StaysThere)
{
    const auto item = NewActivity();
    const auto inspector = mApplication->OpenInspector(item);
    const auto refusing = Note(item, [](const auto&, bool& cancel) { cancel = true; });
    EXPECT_FALSE(inspector->GoTo(NewActivity("other")));
    EXPECT_THAT(mApplication->OpenInspectors(), ElementsAre(inspector));
}

}
