#include "host/store/FoldersBelow.h"

#include "support/TestMailbox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

TEST(FoldersBelowTest, FoldersOfAnyDepth_ComeEachBeforeItsOwn)
{
    const auto mailbox = OpenTestMailbox();
    const auto top = mailbox->FolderByPath("Calendar");
    const auto first = top->Folders()->Add("First", DefaultFolder::Calendar);
    first->Folders()->Add("Inner", DefaultFolder::Calendar)->Folders()->Add("Innermost", DefaultFolder::Calendar);
    top->Folders()->Add("Second", DefaultFolder::Calendar);
    std::vector<std::string> paths;
    for (const auto& folder : FoldersBelow(top)) {
        paths.push_back(mailbox->PathOf(folder));
    }
    EXPECT_THAT(paths,
        testing::ElementsAre(
            "Calendar/First", "Calendar/First/Inner", "Calendar/First/Inner/Innermost", "Calendar/Second"));
    EXPECT_TRUE(FoldersBelow(mailbox->FolderByPath("Calendar/Second")).empty());
}

}
