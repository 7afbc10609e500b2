#include "engine/core/Connect.h"

#include "engine/core/CoreFixture.h"

namespace tempodial {

class ConnectTest : public CoreFixture
{
};

TEST_F(ConnectTest, OnConnection_NoWindowAndNoInspector_StaysDormant)
{
    mApplication->host->CloseExplorer(mExplorer);
    ConnectAddIn();
    EXPECT_FALSE(mConnect.Main());
    mApplication->LogOn();
    mConnect.OnDisconnection();
    EXPECT_FALSE(HasTraceFile());
    EXPECT_FALSE(mFolder.Has("Tempodial"));
}

TEST_F(ConnectTest, OnConnection_InspectorAlone_MakesTheAddIn)
{
    mApplication->host->CloseExplorer(mExplorer);
    mApplication->host->CreateItem()->Display();
    ConnectAddIn();
    EXPECT_TRUE(mConnect.Main());
    EXPECT_TRUE(HasTraceFile());
}

TEST_F(ConnectTest, OnConnection_NoApplication_IsHarmless)
{
    mConnect.OnConnection(nullptr, "x");
    EXPECT_FALSE(mConnect.Main());
}

TEST_F(ConnectTest, OnDisconnection_EndsTheAddInAndLetsItGo)
{
    ConnectAddIn();
    mApplication->LogOn();
    const std::weak_ptr<TempodialMain> main = mConnect.Main().Shared();
    mConnect.OnDisconnection();
    EXPECT_FALSE(mConnect.Main());
    EXPECT_TRUE(main.expired());
    const auto lines = Traced();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), "TRACE SESSION STOP");
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Main terminate"), 1);
}

TEST_F(ConnectTest, OnDisconnection_AfterTerminate_AddsNothing)
{
    ConnectAddIn();
    Main().Terminate();
    const auto whole = mFolder.Read("Tempodial/WorkLogTrace1.out");
    Main().Terminate();
    mConnect.OnDisconnection();
    mConnect.OnDisconnection();
    EXPECT_EQ(mFolder.Read("Tempodial/WorkLogTrace1.out"), whole);
    EXPECT_TRUE(whole.ends_with("TRACE SESSION STOP\r\n\r\n"));
}

}
