#include "desktop/qt/RefusalBox.h"

#include "desktop/qt/OffscreenApplication.h"
#include "session/ProfileError.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tempodial {

class RefusalBoxTest : public testing::Test
{
protected:
    /// Whether a person who does something wants it tried again.
    static bool IsTriedAgainAfter(const std::function<void(RefusalBox& box)>& work)
    {
        OffscreenApplication();
        RefusalBox box(StartRefusal(ProfileError("the mailbox <b>/a</b> isn't a mailbox"), {}));
        QTimer::singleShot(0, &box, [&] { work(box); });
        return box.IsTriedAgain();
    }
    static void Click(const RefusalBox& box, int place) { QTest::mouseClick(box.buttons().at(place), Qt::LeftButton); }
};

TEST_F(RefusalBoxTest, Shown_SaysWhyAndWhatToDo)
{
    IsTriedAgainAfter([](RefusalBox& box) {
        EXPECT_EQ(box.text(), "The mailbox <b>/a</b> isn't a mailbox.");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_TRUE(box.informativeText().contains("tempodial doctor"));
        EXPECT_TRUE(box.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        box.close();
    });
}

TEST_F(RefusalBoxTest, TryAgain_IsTriedAgain)
{
    EXPECT_TRUE(IsTriedAgainAfter([](RefusalBox& box) { Click(box, 0); }));
}

TEST_F(RefusalBoxTest, QuitEnterAndEscape_End)
{
    EXPECT_FALSE(IsTriedAgainAfter([](RefusalBox& box) { Click(box, 1); }));
    EXPECT_FALSE(IsTriedAgainAfter([](RefusalBox& box) { QTest::keyClick(&box, Qt::Key_Return); }));
    EXPECT_FALSE(IsTriedAgainAfter([](RefusalBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    EXPECT_FALSE(IsTriedAgainAfter([](RefusalBox& box) { box.close(); }));
}

}
