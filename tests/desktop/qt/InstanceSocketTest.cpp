#include "desktop/qt/InstanceSocket.h"

#include "DesktopFixture.h"

#include <QTest>
#include <thread>

namespace tempodial {

class InstanceSocketTest : public DesktopFixture
{
protected:
    InstanceSocketTest() { qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(mFolder.Path())); }
    ~InstanceSocketTest() override
    {
        for (const auto* name : { "XDG_RUNTIME_DIR", "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID" }) {
            qunsetenv(name);
        }
    }

    const std::string& Profile() { return mDesk->Profile().Path(); }
};

TEST_F(InstanceSocketTest, SecondStart_RaisesTheFirst)
{
    auto& window = Open();
    window.hide();
    InstanceSocket socket(Profile());
    bool isRaised = false;
    StartWish wish = StartWish::None;
    socket.mRaise = [&](StartWish told) {
        mWindows->Raise();
        isRaised = true;
        wish = told;
    };
    bool isReached = false;
    std::thread second([&] { isReached = InstanceSocket::RaiseOther(Profile(), StartWish::Report); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isRaised; }, 10000));
    second.join();
    EXPECT_TRUE(isReached);
    EXPECT_EQ(wish, StartWish::Report);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(InstanceSocketTest, FirstStart_ReachesNobody)
{
    EXPECT_FALSE(InstanceSocket::RaiseOther(Profile()));
}

TEST_F(InstanceSocketTest, Raise_WithAToken_HandsItOnToTheToolkit)
{
    const InstanceSocket socket(Profile());
    EXPECT_EQ(socket.Answer(R"({"command": "raise", "token": "abc"})"), R"({"ok":true})");
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "abc");
}

TEST_F(InstanceSocketTest, OtherCommandsAndNoJson_AreRefused)
{
    const InstanceSocket socket(Profile());
    for (const auto* line :
        { R"({"command": "raise", "then": "stop"})", R"({"command": "stop"})", "raise", "", "[]" }) {
        EXPECT_NE(socket.Answer(line).find(R"("ok":false)"), std::string::npos) << line;
    }
}

}
