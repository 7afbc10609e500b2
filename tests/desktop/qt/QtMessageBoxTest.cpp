#include "desktop/qt/QtMessageBox.h"

#include "DesktopFixture.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tempodial {

class QtMessageBoxTest : public DesktopFixture
{
protected:
    /// Shows a message, at which something is done.
    Answer Show(const std::vector<Answer>& buttons, const std::function<void(QMessageBox& box)>& work)
    {
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            work(*box);
        });
        return QtMessageBox(mDesk->Session().Mailbox(), [this] {
            ++mFollowed;
        }).Show("Save <b>it</b>?", buttons, MessageIcon::Question);
    }

    const std::vector<Answer> mAll { Answer::Yes, Answer::No, Answer::Cancel };
    int mFollowed = 0;
};

TEST_F(QtMessageBoxTest, Button_Clicked_IsTheAnswer)
{
    EXPECT_EQ(Show(mAll,
                  [](QMessageBox& box) {
                      EXPECT_EQ(box.text(), "Save <b>it</b>?");
                      EXPECT_EQ(box.textFormat(), Qt::PlainText);
                      EXPECT_EQ(box.buttons().size(), 3);
                      QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
                  }),
        Answer::No);
    EXPECT_EQ(mFollowed, 1);
}

TEST_F(QtMessageBoxTest, Enter_FirstButton_IsTheAnswer)
{
    EXPECT_EQ(Show(mAll, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); }), Answer::Yes);
}

TEST_F(QtMessageBoxTest, EscapeAndFrame_LastButton_IsTheAnswer)
{
    EXPECT_EQ(Show(mAll, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Answer::Cancel);
    EXPECT_EQ(
        Show({ Answer::Yes, Answer::No }, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }), Answer::No);
    EXPECT_EQ(Show({ Answer::Yes, Answer::No }, [](QMessageBox& box) { box.close(); }), Answer::No);
    EXPECT_EQ(Show({ Answer::Ok }, [](QMessageBox& box) { box.close(); }), Answer::Ok);
}

TEST_F(QtMessageBoxTest, WindowInFront_Waits_AndTimersRunOn)
{
    auto& window = Open();
    window.activateWindow();
    Settle();
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(1);
    EXPECT_EQ(Show({ Answer::Ok },
                  [&](QMessageBox& box) {
                      EXPECT_EQ(box.parent(), &window);
                      EXPECT_EQ(box.windowModality(), Qt::WindowModal);
                      QTRY_VERIFY(ticks > 1);
                      box.close();
                  }),
        Answer::Ok);
}

TEST_F(QtMessageBoxTest, WindowInFront_GoesMeanwhile_TheBoxIsAnsweredAsByItsFrame)
{
    auto* window = new QWidget;
    window->show();
    window->activateWindow();
    Settle();
    EXPECT_EQ(Show({ Answer::Yes, Answer::No }, [&](QMessageBox&) { delete window; }), Answer::No);
}

}
