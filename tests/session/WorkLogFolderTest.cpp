#include "session/WorkLogFolder.h"

#include "platform/objectmodel/Folders.h"
#include "support/TestMailbox.h"

#include <gtest/gtest.h>

namespace tempodial {

class WorkLogFolderTest : public testing::Test
{
protected:
    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<MAPIFolder> mWorkLog = mMailbox->FolderByPath("Calendar")->Folders()->Add("Tempodial", DefaultFolder::Calendar);
};

TEST_F(WorkLogFolderTest, FindWorkLog_ById_FindsItWhereverItIs)
{
    const auto moved = mMailbox->FolderByPath("Inbox")->Folders()->Add("Elsewhere", DefaultFolder::Calendar);
    EXPECT_EQ(FindWorkLog(mMailbox->NameSpace(), moved->EntryID())->EntryID(), moved->EntryID());
}

TEST_F(WorkLogFolderTest, FindWorkLog_NoIdOrAnUnknownOne_FallsBackToTheCalendarsFolder)
{
    for (const auto* id : { "", "0123" }) {
        EXPECT_EQ(FindWorkLog(mMailbox->NameSpace(), id)->EntryID(), mWorkLog->EntryID());
    }
}

TEST_F(WorkLogFolderTest, FindWorkLog_NoneThere_GivesNothing)
{
    mMailbox->DeleteFolder(mWorkLog);
    EXPECT_FALSE(FindWorkLog(mMailbox->NameSpace(), ""));
}

}
