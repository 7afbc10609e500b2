#include "desktop/qt/AccessFactory.h"

#include "WorkedWeekFixture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace tempodial {

/// What our windows and their parts are for assistive programs.
class AccessFactoryTest : public WorkedWeekFixture
{
protected:
    static QAccessibleInterface& Of(QWidget& widget) { return *QAccessible::queryAccessibleInterface(&widget); }
    InspectorWindow& OpenActivity()
    {
        mWindow->Agenda().mWishes.open(mWindow->Agenda().ActivityOf(0).number);
        Settle();
        return dynamic_cast<InspectorWindow&>(*mWindows->WindowOf(mDesk->Windows().OpenInspectors().front()));
    }
};

TEST_F(AccessFactoryTest, ItemWindow_IsAWindowWithItsTitle)
{
    auto& window = OpenActivity();
    EXPECT_EQ(Of(window).role(), QAccessible::Window);
    EXPECT_FALSE(window.windowTitle().isEmpty());
    EXPECT_EQ(Of(window).text(QAccessible::Name), window.windowTitle());
    EXPECT_EQ(Of(*mWindow).role(), QAccessible::Window);
}

TEST_F(AccessFactoryTest, NamedPart_IsAGroup)
{
    auto& foot = mWindow->Foot();
    EXPECT_EQ(Of(foot).role(), QAccessible::Grouping);
    EXPECT_EQ(Of(foot).text(QAccessible::Name), "Selection");
    EXPECT_EQ(Of(mWindow->Side()).role(), QAccessible::Grouping);
    EXPECT_NE(Of(*mWindow->centralWidget()).role(), QAccessible::Grouping);
}

TEST_F(AccessFactoryTest, FieldOfAComboBox_HasItsName)
{
    auto& window = OpenActivity();
    const auto boxes = window.findChildren<QComboBox*>();
    ASSERT_FALSE(boxes.isEmpty());
    for (const auto* box : boxes) {
        EXPECT_FALSE(box->accessibleName().isEmpty());
        EXPECT_EQ(Of(*box->lineEdit()).text(QAccessible::Name), box->accessibleName());
    }
}

TEST_F(AccessFactoryTest, SelectionsText_IsReadWithoutMarkup)
{
    mWindow->SelectAll();
    int read = 0;
    for (auto* label : mWindow->Foot().findChildren<QLabel*>()) {
        if (!label->toolTip().isEmpty() && label->isVisible()) {
            EXPECT_EQ(Of(*label).text(QAccessible::Name), "4 activities · 4 h");
            EXPECT_EQ(Of(*label).text(QAccessible::Description), "4 activities · 4 h");
            ++read;
        }
    }
    EXPECT_EQ(read, 1);
}

}
