#include "engine/dialogs/AboutBoxForm.h"

#include "forms/FormModelFactory.h"
#include "support/FormUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

using testing::ElementsAre;

class AboutBoxFormTest : public testing::Test
{
protected:
    AboutBoxFormTest() { mPlatform->forms = mForms; }

    Ref<FormModelFactory> mForms = MakeRef<FormModelFactory>();
    Ref<Platform> mPlatform = MakeRef<Platform>();
    FormUser mUser { mForms, "AboutBoxForm" };
};

TEST_F(AboutBoxFormTest, Form_IsLaidOutInItsOrder)
{
    const AboutBoxForm about(mPlatform);
    EXPECT_EQ(mUser.Form()->Caption(), "About");
    EXPECT_THAT(mUser.Controls(),
        ElementsAre("About|label|Tempodial v1|", "Copyright|label|Copyright \u00a9 2026 the Tempodial developers|",
            "Label1|label|Warning: this program is protected by copyright law. It may be copied and passed on only as "
            "its licence allows.|",
            "OK|default button|OK|"));
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(AboutBoxFormTest, ShowMe_ShowsNameAndVersion_AfterEachEnd)
{
    AboutBoxForm about(mPlatform);
    about.ShowMe("1.2.0", "Tempodial");
    EXPECT_TRUE(mUser.Sees());
    EXPECT_EQ(mUser.Text("About"), "Tempodial 1.2.0");
    mUser.Clicks("OK");
    EXPECT_FALSE(mUser.Sees());
    EXPECT_EQ(mUser.Text("About"), "Tempodial 1.2.0") << "hidden, not unloaded";

    about.ShowMe("1.3.0", "Tempodial");
    EXPECT_EQ(mUser.Text("About"), "Tempodial 1.3.0");
    EXPECT_TRUE(mUser.Closes());
    about.ShowMe("1.4.0", "Tempodial");
    EXPECT_TRUE(mUser.Sees());
    EXPECT_EQ(mUser.Text("About"), "Tempodial 1.4.0");
    mUser.Clicks("OK");
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(AboutBoxFormTest, Unload_ShownForm_TakesItOffTheScreen)
{
    AboutBoxForm about(mPlatform);
    about.ShowMe("1.2.0", "Tempodial");
    about.Unload();
    EXPECT_FALSE(mUser.Sees());
}

TEST_F(AboutBoxFormTest, Forms_NoneAtAll_IsComeThrough)
{
    mPlatform->forms = nullptr;
    AboutBoxForm about(mPlatform);
    about.ShowMe("1.2.0", "Tempodial");
    about.Unload();
    EXPECT_FALSE(mUser.Sees());
}

}
