#include "desktop/UserGuide.h"

#include "base/Failure.h"
#include "desktop/LogFixture.h"
#include "session/ProductFacts.h"

#include <gmock/gmock.h>

namespace tempodial {

using UserGuideTest = LogFixture;

TEST_F(UserGuideTest, Installed_IsFound)
{
    EXPECT_THAT(UserGuidePath(mSession.Profile()), testing::EndsWith("/userguide/userguide.html"));
}

TEST_F(UserGuideTest, NotInstalled_SaysWhatToDo)
{
    mSession.Profile().Registry()->Write(Hive::LocalMachine, ProductKey, InstallFolderValue, "/nowhere");
    EXPECT_THAT([this] { UserGuidePath(mSession.Profile()); },
        testing::ThrowsMessage<Failure>("The user guide isn't at /nowhere/userguide/userguide.html: install the "
                                        "program as a whole."));
}

}
