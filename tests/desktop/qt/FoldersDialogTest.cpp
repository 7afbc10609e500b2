#include "desktop/qt/FoldersDialog.h"

#include "DesktopFixture.h"
#include "platform/objectmodel/Folders.h"

#include <gmock/gmock.h>

#include <QListWidget>
#include <QTest>

namespace tempodial {

using testing::Contains;

/// The dialog over a mailbox with two more calendars.
class FoldersDialogTest : public DesktopFixture
{
protected:
    FoldersDialogTest()
    {
        const auto calendar = mDesk->Session().Mailbox()->FolderByPath("Calendar");
        calendar->Folders()->Add("Garden", DefaultFolder::Calendar);
        calendar->Folders()->Add("House", DefaultFolder::Calendar);
        auto& window = Open();
        mExplorer = window.Explorer();
        mDialog = new FoldersDialog(*mDesk, mExplorer, &window);
        mList = mDialog->findChild<QListWidget*>();
    }

    QListWidgetItem* Row(const QString& path) const
    {
        const auto found = mList->findItems(path, Qt::MatchExactly);
        return found.isEmpty() ? nullptr : found.front();
    }
    std::string Shown() const { return mDesk->Session().Mailbox()->PathOf(mExplorer->CurrentFolder()); }
    Ref<MAPIFolder> Folder(const std::string& path) const { return mDesk->Session().Mailbox()->FolderByPath(path); }

    Ref<HostExplorer> mExplorer;
    FoldersDialog* mDialog = nullptr;
    QListWidget* mList = nullptr;
};

TEST_F(FoldersDialogTest, List_HasAllFoldersWithTheirPaths)
{
    EXPECT_NE(Row("Inbox"), nullptr);
    EXPECT_NE(Row("Calendar"), nullptr);
    EXPECT_NE(Row("Calendar/Garden"), nullptr);
    EXPECT_NE(Row("Calendar/Tempodial"), nullptr);
    EXPECT_EQ(Shown(), "Calendar/Tempodial");
}

TEST_F(FoldersDialogTest, One_IsGoneTo)
{
    mList->setCurrentItem(Row("Calendar/House"));
    mDialog->accept();
    EXPECT_EQ(Shown(), "Calendar/House");
    EXPECT_FALSE(mExplorer->IsFolderSelected(Folder("Calendar/Garden")));
}

TEST_F(FoldersDialogTest, DoubleClick_GoesThere)
{
    mDialog->show();
    const auto place = mList->visualItemRect(Row("Calendar")).center();
    QTest::mouseClick(mList->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(mList->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(Shown(), "Calendar");
}

TEST_F(FoldersDialogTest, Several_StandBesideTheFirstThatWasChosen)
{
    Row("Calendar/House")->setSelected(true);
    Row("Calendar/Garden")->setSelected(true);
    Row("Calendar")->setSelected(true);
    Row("Calendar")->setSelected(false);
    mDialog->accept();
    EXPECT_EQ(Shown(), "Calendar/House") << "though the other one comes first in the list";
    EXPECT_TRUE(mExplorer->IsFolderSelected(Folder("Calendar/Garden")));
    EXPECT_FALSE(mExplorer->IsFolderSelected(Folder("Calendar")));
}

TEST_F(FoldersDialogTest, NoneOrCancelled_StaysWhereItIs)
{
    mDialog->accept();
    EXPECT_EQ(Shown(), "Calendar/Tempodial");
    auto* other = new FoldersDialog(*mDesk, mExplorer, nullptr);
    other->findChild<QListWidget*>()->setCurrentRow(0);
    other->reject();
    EXPECT_EQ(Shown(), "Calendar/Tempodial");
    delete other;
}

}
