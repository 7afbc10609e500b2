#include "driver/DriverSurroundings.h"

#include "support/DriverFixture.h"

namespace tempodial {

namespace {

using testing::_;
using testing::ElementsAre;
using testing::Return;

class NotedHand : public Hand
{
public:
    using Folders = std::vector<Ref<MAPIFolder>>;
    using Items = std::vector<Ref<OutlookItem>>;
    using Explorer = const Ref<HostExplorer>&;
    using Inspector = const Ref<HostInspector>&;

    MOCK_METHOD(Ref<HostExplorer>, OpenExplorer, (const Ref<MAPIFolder>&, bool), (override));
    MOCK_METHOD(void, Activate, (Explorer), (override));
    MOCK_METHOD(void, Close, (Explorer), (override));
    MOCK_METHOD(void, GoTo, (Explorer, const Ref<MAPIFolder>&), (override));
    MOCK_METHOD(void, ShowBeside, (Explorer, const Folders&), (override));
    MOCK_METHOD(void, Select, (Explorer, const Items&), (override));
    MOCK_METHOD(void, PickView, (Explorer, const std::string&), (override));
    MOCK_METHOD(void, ClickCommand, (Explorer, const CommandPath&), (override));
    MOCK_METHOD(Ref<HostInspector>, Open, (const Ref<StoreItem>&), (override));
    MOCK_METHOD(Ref<HostInspector>, Open, (const Ref<HostMail>&), (override));
    MOCK_METHOD(void, Edit, (Inspector, const std::string&, const Variant&), (override));
    MOCK_METHOD(bool, Save, (Inspector), (override));
    MOCK_METHOD(bool, Close, (Inspector), (override));
    MOCK_METHOD(void, ClickCommand, (Inspector, const CommandPath&), (override));
    MOCK_METHOD(bool, Reschedule, (const Ref<StoreItem>&, Date, Date), (override));
    MOCK_METHOD(void, Delete, (const Ref<StoreItem>&), (override));
};

class NotedPump : public EventPump
{
public:
    MOCK_METHOD(void, ProcessPending, (), (override));
};

class DriverSurroundingsTest : public DriverFixture
{
protected:
    DriverSurroundingsTest()
    {
        mDriver.reset();
        mSession.emplace(mOptions);
        DriverSurroundings surroundings;
        surroundings.eventPump = mPump;
        surroundings.person = [this](DriverHost&) { return mHand; };
        surroundings.showMessage
            = [this](const std::string& text, const std::vector<Answer>&, MessageIcon, Answer answer) {
                  mShown.push_back(text);
                  return answer;
              };
        surroundings.differences = [this] { return mDifferences; };
        mDriver = std::make_unique<Driver>(*mSession, std::move(surroundings));
    }
    ~DriverSurroundingsTest() override
    {
        mDriver->Exit();
        mSession->End();
        // It works on that session, which goes before the fixture does.
        mDriver.reset();
    }
    /// A window with an item in it, which a person's hand had no part in.
    std::int32_t Opened(const std::string& entryId)
    {
        return mDriver->Host().Windows().OpenInspector(mDriver->Host().Item(entryId))->Number();
    }

    const Ref<NotedHand> mHand = MakeRef<NotedHand>();
    const Ref<NotedPump> mPump = MakeRef<NotedPump>();
    std::vector<std::string> mShown;
    std::vector<std::string> mDifferences;
    std::optional<Session> mSession;
};

}

TEST_F(DriverSurroundingsTest, Hand_DoesWhatIsDoneToExplorers)
{
    Do({ { "do", "start" } });
    const auto explorer = mDriver->Host().Windows().OpenExplorers().front();
    const auto item = mDriver->Host().Item(Activity());
    EXPECT_CALL(*mHand, OpenExplorer(_, false)).WillOnce(Return(explorer));
    EXPECT_EQ(Do({ { "do", "explorer.open" }, { "commandBars", false } }).at("explorer"), 1);
    EXPECT_CALL(*mHand, Activate(explorer));
    Do({ { "do", "explorer.activate" }, { "explorer", 1 } });
    EXPECT_CALL(*mHand, GoTo(explorer, _));
    Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", "Calendar" } });
    EXPECT_CALL(*mHand, ShowBeside(explorer, testing::SizeIs(2)));
    Do({ { "do", "explorer.beside" }, { "explorer", 1 }, { "folders", { "Calendar", "Calendar/Tempodial" } } });
    EXPECT_CALL(*mHand, Select(explorer, NotedHand::Items { item }));
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { item->EntryID() } } });
    EXPECT_CALL(*mHand, PickView(explorer, "List"));
    Do({ { "do", "explorer.view" }, { "explorer", 1 }, { "name", "List" } });
    EXPECT_CALL(*mHand, ClickCommand(explorer, testing::FieldsAre("Menu Bar", ElementsAre("&Help", "no such"))));
    Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" }, { "path", { "&Help", "no such" } } });
    EXPECT_CALL(*mHand, Close(explorer));
    Do({ { "do", "explorer.close" }, { "explorer", 1 } });
    EXPECT_FALSE(explorer->IsGone());
}

TEST_F(DriverSurroundingsTest, Hand_DoesWhatIsDoneToItemsAndTheirWindows)
{
    Do({ { "do", "start" } });
    const auto id = Activity();
    const auto item = mDriver->Host().Item(id);
    EXPECT_CALL(*mHand, Open(item)).WillOnce(Return(nullptr));
    EXPECT_EQ(Do({ { "do", "inspector.open" }, { "entryId", id } }).at("cancelled"), true);
    const auto number = Opened(id);
    const auto inspector = mDriver->Host().Windows().OpenInspectors().front();
    EXPECT_CALL(*mHand, Edit(inspector, "SubjectBox", Variant("b")));
    Do({ { "do", "inspector.set" }, { "inspector", number }, { "control", "SubjectBox" }, { "value", "b" } });
    EXPECT_CALL(*mHand, Save(inspector)).WillOnce(Return(false));
    EXPECT_EQ(Do({ { "do", "inspector.save" }, { "inspector", number } }).at("cancelled"), true);
    EXPECT_CALL(*mHand, Close(inspector)).WillOnce(Return(true));
    EXPECT_EQ(Do({ { "do", "inspector.close" }, { "inspector", number } }).at("cancelled"), false);
    EXPECT_CALL(*mHand, Reschedule(item, item->Start().AddMinutes(60), item->End().AddMinutes(60)))
        .WillOnce(Return(false));
    EXPECT_EQ(Refused({ { "do", "item.change" }, { "entryId", id }, { "start", "2006-10-10T10:00:00" } }),
        "the change was refused");
    EXPECT_CALL(*mHand, Delete(item));
    Do({ { "do", "item.delete" }, { "entryId", id } });
    EXPECT_FALSE(item->IsDeleted());
}

TEST_F(DriverSurroundingsTest, Differences_AreToldAndRefuseTheCommand)
{
    mDifferences = { "the list shows one less" };
    const auto answer = mDriver->Do({ { "do", "shell" } });
    EXPECT_EQ(answer.at("ok"), false);
    EXPECT_EQ(answer.at("differences"), Json::array({ "the list shows one less" }));
    EXPECT_EQ(answer.at("opened"), Json::array());
    mDifferences.clear();
    EXPECT_FALSE(Do({ { "do", "shell" } }).contains("differences"));
}

TEST_F(DriverSurroundingsTest, Messages_AreShownAndNoted)
{
    mDriver->Host().MessageBox().Prepare({ "no" });
    EXPECT_EQ(
        mDriver->Host().MessageBox().Show("Why?", { Answer::Yes, Answer::No }, MessageIcon::Question), Answer::No);
    EXPECT_THAT(mShown, ElementsAre("Why?"));
    EXPECT_EQ(Do({ { "do", "shell" } }).at("messages").at(0).at("answer"), "no");
}

TEST_F(DriverSurroundingsTest, EventPump_IsTheOneThatIsGiven)
{
    EXPECT_CALL(*mPump, ProcessPending());
    mDriver->Host().EventPump().ProcessPending();
}

}
