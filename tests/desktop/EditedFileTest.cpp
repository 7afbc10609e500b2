#include "desktop/EditedFile.h"

#include "base/Failure.h"
#include "desktop/DesktopSettings.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class EditedFileTest : public testing::Test
{
protected:
    DesktopSettings Taken() { return mFile.TakenBy(DesktopSettings::Read); }

    TempFolder mFolder { TempFolder::InMemory() };
    EditedFile mFile { mFolder.Path("a/desktop.toml") };
    const std::string mBroken = "[[desktop]]\nappearance = \"pink\"\n";
};

}

TEST_F(EditedFileTest, Usable_IsTakenAndKept)
{
    EXPECT_EQ(Taken(), DesktopSettings());
    DesktopSettings changed;
    changed.zoom = 100;
    mFile.Keep(changed.Keep(mFile.Path()));
    EXPECT_EQ(Taken(), changed);
    EXPECT_THAT(mFile.Refusal(), IsEmpty());
    mFile.PutAside();
    EXPECT_TRUE(mFolder.Has("a/desktop.toml")) << "what can be used stays";
}

TEST_F(EditedFileTest, Broken_IsAsUsualAndStaysAsItIs)
{
    mFile.Keep(DesktopSettings().Keep(mFile.Path()));
    mFolder.Write("a/desktop.toml", mBroken);
    EXPECT_EQ(Taken(), DesktopSettings());
    EXPECT_THAT(mFile.Refusal(), HasSubstr("desktop.toml, line 2: appearance can't be \"pink\""));
    mFile.Keep(DesktopSettings().Keep(mFile.Path()));
    EXPECT_EQ(mFolder.Read("a/desktop.toml"), mBroken);
}

TEST_F(EditedFileTest, PutAside_Broken_StaysBesideUnderAFreeName)
{
    mFile.Keep(DesktopSettings().Keep(mFile.Path()));
    for (const auto* name : { "a/desktop.toml.broken", "a/desktop.toml.broken2" }) {
        mFolder.Write("a/desktop.toml", mBroken + name);
        Taken();
        EXPECT_EQ(mFile.PathAside(), mFolder.Path(name));
        mFile.PutAside();
        mFile.Keep(DesktopSettings().Keep(mFile.Path()));
        EXPECT_EQ(mFolder.Read(name), mBroken + name);
        EXPECT_THAT(mFolder.Read("a/desktop.toml"), HasSubstr("appearance = \"system\""));
    }
    EXPECT_EQ(mFolder.Read("a/desktop.toml.broken"), mBroken + "a/desktop.toml.broken") << "nothing is written over";
}

TEST_F(EditedFileTest, PutAside_MovedAwayMeanwhile_IsKeptAnew)
{
    mFile.Keep(DesktopSettings().Keep(mFile.Path()));
    mFolder.Write("a/desktop.toml", mBroken);
    Taken();
    EXPECT_EQ(std::remove(mFile.Path().c_str()), 0);
    mFile.PutAside();
    mFile.Keep(DesktopSettings().Keep(mFile.Path()));
    EXPECT_THAT(mFolder.Read("a/desktop.toml"), Not(IsEmpty()));
}

}
