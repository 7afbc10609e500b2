#include "desktop/WindowTitle.h"

#include "desktop/LogFixture.h"
#include "platform/objectmodel/Folders.h"
#include "session/WorkLogFolder.h"

namespace tempodial {

class WindowTitleTest : public LogFixture
{
protected:
    Ref<HostExplorer> mExplorer = mSession.Windows().OpenExplorers().front();
};

TEST_F(WindowTitleTest, WorkLog_IsTheProgramsName)
{
    mExplorer->GoTo(WorkLogOf(mSession.Profile()));
    EXPECT_EQ(WindowTitle(mSession.Profile(), *mExplorer), "Tempodial");
}

TEST_F(WindowTitleTest, OtherFolder_IsNamed)
{
    mExplorer->GoTo(mSession.Mailbox()->FolderByPath("Calendar"));
    EXPECT_EQ(WindowTitle(mSession.Profile(), *mExplorer), "Calendar - Mailbox");
}

TEST_F(WindowTitleTest, FolderOrWindowIsGone_HasNone)
{
    const auto folder = mSession.Mailbox()->FolderByPath("Calendar")->Folders()->Add("Short", DefaultFolder::Calendar);
    mExplorer->GoTo(folder);
    EXPECT_EQ(WindowTitle(mSession.Profile(), *mExplorer), "Short - Mailbox");
    mSession.Mailbox()->DeleteFolder(folder);
    EXPECT_EQ(WindowTitle(mSession.Profile(), *mExplorer), std::nullopt);
}

}
