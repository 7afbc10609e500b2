#include "desktop/qt/FormWindow.h"

#include "DesktopFixture.h"
#include "desktop/qt/EffectPane.h"
#include "desktop/qt/FormView.h"
#include "engine/core/TempodialMain.h"
#include "forms/ComboBoxModel.h"
#include "forms/FormModelFactory.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/TextBox.h"
#include "review/ActivityReader.h"
#include "support/TestDatabase.h"

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTreeView>
#include <algorithm>

namespace tempodial {

class FormWindowTest : public DesktopFixture
{
protected:
    FormWindowTest()
        : mMain(Open())
    {
    }

    Ref<FormModel> Shown(const char* className) { return mDesk->Session().Forms()->NewestVisible(className); }
    FormWindow& WindowOf(const char* className) { return *mWindows->WindowOf(Shown(className)); }
    FormWindow& ShowSettings(const std::string& project = "")
    {
        mDesk->Do([&] { LogDoings(mDesk->Session()).ShowRules(project); });
        return WindowOf("ProjectSettingsForm");
    }
    FormWindow& Make(const FormDefinition& definition)
    {
        mMade = mDesk->Session().Forms()->Create(definition).As<FormModel>();
        mDesk->Do([this] { mMade->Show(); });
        auto& window = *mWindows->WindowOf(mMade);
        window.activateWindow();
        Settle();
        return window;
    }
    template <class Widget> static Widget& Find(FormWindow& window, const char* name)
    {
        auto* widget = qobject_cast<Widget*>(window.View().WidgetOf(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    /// Clicks an entry of the window's menus.
    void Choose(const QString& text)
    {
        for (const auto* menu : mMain.menuBar()->findChildren<QMenu*>()) {
            for (auto* action : menu->actions()) {
                if (action->text() == text) {
                    action->trigger();
                    return;
                }
            }
        }
        ADD_FAILURE() << text.toStdString();
    }
    std::vector<std::string> Projects() { return LogDoings(mDesk->Session()).Projects(); }
    bool HasProject(const std::string& name)
    {
        const auto projects = Projects();
        return std::find(projects.begin(), projects.end(), name) != projects.end();
    }

    MainWindow& mMain;
    Ref<FormModel> mMade;
};

TEST_F(FormWindowTest, Form_Shown_HasAWindowWithItsTitleAndControls)
{
    auto& window = ShowSettings();
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isModal());
    EXPECT_EQ(window.windowTitle(), "Project Settings");
    EXPECT_TRUE(Find<QPushButton>(window, "SaveandCloseButton").isDefault());
    EXPECT_EQ(Find<QLabel>(window, "Label1").buddy(), window.View().WidgetOf("SubjectText"));
    EXPECT_EQ(Find<QLabel>(window, "Label1").text(), "Subject matches");
}

TEST_F(FormWindowTest, Form_ButtonsToCheck_AreNamedByTheirOwnWordsForAssistivePrograms)
{
    Choose("Create Activity &Report...");
    const auto& window = WindowOf("ReportForm");
    const auto buttons = window.findChildren<QRadioButton*>();
    ASSERT_FALSE(buttons.empty());
    for (auto* button : buttons) {
        const auto name = QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name);
        EXPECT_EQ(name, QString(button->text()).remove('&'));
    }
}

TEST_F(FormWindowTest, Form_WorkedByKeys_SavesAProjectWithItsRules)
{
    auto& window = ShowSettings();
    auto& project = Find<QComboBox>(window, "ProjectComboBox");
    project.lineEdit()->selectAll();
    QTest::keyClicks(project.lineEdit(), "Riverside");
    EXPECT_EQ(Shown("ProjectSettingsForm")->Control("ProjectComboBox").As<ComboBox>()->Text(), "Riverside");
    QTest::keyClicks(&Find<QLineEdit>(window, "SubjectText"), "river");
    QTest::mouseClick(&Find<QPushButton>(window, "SaveandCloseButton"), Qt::LeftButton);
    EXPECT_FALSE(Shown("ProjectSettingsForm"));
    EXPECT_TRUE(HasProject("Riverside"));
}

TEST_F(FormWindowTest, Escape_ButtonThatCancels_IsClicked)
{
    const auto before = Projects();
    auto& window = ShowSettings();
    auto& project = Find<QComboBox>(window, "ProjectComboBox");
    project.lineEdit()->selectAll();
    QTest::keyClicks(project.lineEdit(), "Beta");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(Shown("ProjectSettingsForm"));
    EXPECT_EQ(Projects(), before);
}

TEST_F(FormWindowTest, Enter_InAField_ClicksTheDefaultButton)
{
    auto& window = ShowSettings();
    auto& project = Find<QComboBox>(window, "ProjectComboBox");
    project.lineEdit()->selectAll();
    QTest::keyClicks(project.lineEdit(), "Beta");
    QTest::keyClick(project.lineEdit(), Qt::Key_Return);
    EXPECT_FALSE(Shown("ProjectSettingsForm"));
    EXPECT_TRUE(HasProject("Beta"));
}

TEST_F(FormWindowTest, Frame_Closed_TakesTheFormOffTheScreen)
{
    auto& window = ShowSettings();
    window.close();
    EXPECT_FALSE(Shown("ProjectSettingsForm"));
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FormWindowTest, Frame_ListenerRefuses_Stays)
{
    auto& window = Make({ "Kept", "Kept", { { { "OK", ControlKind::Button, "OK" } } } });
    const auto refusing = mMade->Subscribe({ .QueryClose = [](bool& cancel) { cancel = true; } });
    window.close();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(FormWindowTest, Form_Gone_TakesItsWindowAlong)
{
    const QPointer<FormWindow> window = &Make({ "Short", "Short", {} });
    mDesk->Do([this] { mMade = nullptr; });
    Settle();
    EXPECT_TRUE(window.isNull());
}

TEST_F(FormWindowTest, ComboBox_TextThatIsInTheList_IsAChangeAndNoChoice)
{
    auto& window = Make(
        { "Combo", "Combo", { { { "Box", ControlKind::ComboBox, "" } }, { { "Other", ControlKind::TextBox, "" } } } });
    const auto model = mMade->Control("Box").As<ComboBoxModel>();
    mDesk->Do([&] {
        model->AddItem("One");
        model->AddItem("Two");
    });
    std::string told;
    const auto events = model->Subscribe({ .Change = [&] { told += "c"; }, .Click = [&] { told += "k"; } });
    auto& box = Find<QComboBox>(window, "Box");
    QTest::keyClicks(box.lineEdit(), "Two");
    QTest::keyClick(box.lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(told, "ccc");
    EXPECT_EQ(model->ListIndex(), -1);
    box.lineEdit()->setFocus();
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(told, "ccck");
    EXPECT_EQ(model->ListIndex(), 0);
    EXPECT_EQ(box.currentText(), "One");
}

TEST_F(FormWindowTest, Model_Changed_ShowsInTheWidgets)
{
    auto& window = Make({ "All", "All",
        { { { "Text", ControlKind::TextBox, "a" } }, { { "Check", ControlKind::CheckBox, "&Check" } },
            { { "One", ControlKind::OptionButton, "One" } }, { { "Two", ControlKind::OptionButton, "Two" } },
            { { "Box", ControlKind::ComboBox, "x" } }, { { "Hidden", ControlKind::Button, "H", false } } } });
    EXPECT_EQ(window.View().WidgetOf("Hidden"), nullptr);
    EXPECT_EQ(Find<QLineEdit>(window, "Text").text(), "a");
    mDesk->Do([this] {
        mMade->SetCaption("Other");
        mMade->Control("Text").As<TextBox>()->SetText("b");
        mMade->Control("Check").As<CheckBox>()->SetValue(true);
        mMade->Control("Two").As<OptionButton>()->SetValue(true);
        mMade->Control("Box").As<ComboBox>()->AddItem("y");
        mMade->Control("Box").As<ComboBox>()->SetListIndex(0);
        mMade->Control("One")->SetEnabled(false);
    });
    EXPECT_EQ(window.windowTitle(), "Other");
    EXPECT_EQ(Find<QLineEdit>(window, "Text").text(), "b");
    EXPECT_TRUE(Find<QCheckBox>(window, "Check").isChecked());
    EXPECT_TRUE(Find<QRadioButton>(window, "Two").isChecked());
    EXPECT_EQ(Find<QComboBox>(window, "Box").currentText(), "y");
    EXPECT_EQ(Find<QComboBox>(window, "Box").currentIndex(), 0);
    EXPECT_FALSE(Find<QRadioButton>(window, "One").isEnabled());
    mDesk->Do([this] { mMade->Control("Two").As<OptionButton>()->SetValue(false); });
    EXPECT_FALSE(Find<QRadioButton>(window, "Two").isChecked());
}

TEST_F(FormWindowTest, Options_Clicked_OneIsChosenAtATime)
{
    auto& window = Make({ "Options", "Options",
        { { { "One", ControlKind::OptionButton, "One" } }, { { "Two", ControlKind::OptionButton, "Two" } },
            { { "Check", ControlKind::CheckBox, "Check" } } } });
    QTest::mouseClick(&Find<QRadioButton>(window, "One"), Qt::LeftButton);
    QTest::mouseClick(&Find<QRadioButton>(window, "Two"), Qt::LeftButton);
    QTest::mouseClick(&Find<QCheckBox>(window, "Check"), Qt::LeftButton);
    EXPECT_FALSE(mMade->Control("One").As<OptionButton>()->Value());
    EXPECT_TRUE(mMade->Control("Two").As<OptionButton>()->Value());
    EXPECT_TRUE(mMade->Control("Check").As<CheckBox>()->Value());
}

TEST_F(FormWindowTest, SeveralLines_Typed_BeginsAnotherLineByEnter)
{
    auto& window = Make({ "Lines", "Lines",
        { { { .name = "Text", .kind = ControlKind::TextBox, .text = "", .severalLines = true } } } });
    auto& text = Find<QPlainTextEdit>(window, "Text");
    QTest::keyClicks(&text, "one");
    QTest::keyClick(&text, Qt::Key_Return);
    QTest::keyClicks(&text, "two");
    EXPECT_EQ(mMade->Control("Text").As<TextBox>()->Text(), "one\ntwo");
}

TEST_F(FormWindowTest, ProjectSettings_RuleTyped_ListsWhatItWouldChangeAndThenChangesIt)
{
    AddWeek();
    Add("", "river plan", "Writer", On(13, 7), On(13, 7, 30));
    mDesk->Session().AddIn().UpdateorAddProject("Riverside", "", "", "", "2", false);
    auto& window = ShowSettings("Riverside");
    auto& pane = *window.Effect();
    EXPECT_TRUE(pane.Effect()->Changes().empty());
    QTest::keyClicks(&Find<QLineEdit>(window, "SubjectText"), "river plan");
    ASSERT_EQ(pane.Effect()->Changes().size(), 1U);
    const auto cell
        = [&pane](int row, int column) { return pane.List().model()->index(row, column).data().toString(); };
    EXPECT_EQ(pane.List().model()->rowCount(), 2);
    EXPECT_EQ(cell(0, 0), "1  No Project \u2192 Riverside");
    EXPECT_EQ(cell(0, 1), "30 min");
    EXPECT_EQ(cell(0, 2), "");
    EXPECT_EQ(cell(1, 0), "river plan");
    EXPECT_EQ(cell(1, 2), "No Project");
    const auto number = pane.Effect()->Changes().front().number;
    Picture(window, "effect-pane");
    Find<QCheckBox>(window, "ApplyPastCheck").click();
    EXPECT_EQ(pane.Effect()->Title(), "Saving changes, in the last 7 days: 1 activity · 30 min");
    QTest::mouseClick(&Find<QPushButton>(window, "SaveandCloseButton"), Qt::LeftButton);
    EXPECT_EQ(ActivityNumbered(mDesk->Profile(), number)->project, "Riverside");
}

TEST_F(FormWindowTest, ProjectSettings_LogCantBeRead_IsSaidOnce)
{
    Add("", "river plan", "Writer", On(17, 7), On(17, 7, 30));
    Add("", "river walk", "Writer", On(17, 7).AddDays(-30), On(17, 8).AddDays(-30));
    mDesk->Session().AddIn().UpdateorAddProject("Riverside", "river", "", "", "2", false);
    auto& window = ShowSettings("Riverside");
    Find<QCheckBox>(window, "ApplyPastCheck").click();
    auto& days = Find<QLineEdit>(window, "DaysText");
    days.selectAll();
    QTest::keyClicks(&days, "60");
    ASSERT_FALSE(window.Effect()->Effect()->IsDone());
    int failures = 0;
    const auto failed = mDesk->Subscribe({ .Failed = [&failures](const std::string&) { ++failures; } });
    auto& database = TestDatabase(mDesk->Session().Mailbox());
    database.Execute("ALTER TABLE item RENAME TO away");
    QTest::qWait(100);
    EXPECT_EQ(failures, 1);
    database.Execute("ALTER TABLE away RENAME TO item");
}

TEST_F(FormWindowTest, ProjectSettings_ActivityOpenedFromTheList_IsPassedOver)
{
    Add("", "river plan", "Writer", On(17, 7), On(17, 7, 30));
    mDesk->Session().AddIn().UpdateorAddProject("Riverside", "river", "", "", "2", false);
    auto& window = ShowSettings("Riverside");
    auto& pane = *window.Effect();
    ASSERT_EQ(pane.Effect()->Changes().size(), 1U);
    pane.List().activated(pane.List().model()->index(0, 0));
    EXPECT_TRUE(mDesk->Windows().OpenInspectors().empty()) << "it gathers several";
    pane.List().activated(pane.List().model()->index(1, 0));
    EXPECT_EQ(mDesk->Windows().OpenInspectors().size(), 1U);
    EXPECT_TRUE(pane.Effect()->Changes().empty());
}

TEST_F(FormWindowTest, ProjectSettings_DaysLookedAt_AreThePanesOwnUntilTheFormAppliesBack)
{
    Add("", "river plan", "Writer", On(17, 7), On(17, 7, 30));
    Add("Other", "river bank", "Writer", On(1, 7), On(1, 9));
    mDesk->Session().AddIn().UpdateorAddProject("Riverside", "river", "", "", "2", false);
    auto& window = ShowSettings("Riverside");
    auto& pane = *window.Effect();
    EXPECT_EQ(pane.Days().value(), 21);
    EXPECT_EQ(pane.Effect()->Title(),
        "Saving changes new activities only. Applied back to the last 21 days: 2 activities \u00b7 2 h 30");
    EXPECT_EQ(pane.List().model()->index(0, 0).data().toString(), "1  Other \u2192 Riverside");
    EXPECT_EQ(pane.List().model()->index(0, 2).data().toString(), "! overwritten");
    pane.Days().setValue(3);
    EXPECT_EQ(pane.Effect()->Changes().size(), 1U);
    EXPECT_EQ(pane.List().model()->rowCount(), 2);
    pane.Days().setValue(21);
    Find<QCheckBox>(window, "ApplyPastCheck").click();
    EXPECT_FALSE(pane.Days().isVisible());
    EXPECT_EQ(pane.Effect()->Title(), "Saving changes, in the last 7 days: 1 activity \u00b7 30 min");
}

TEST_F(FormWindowTest, ProjectSettings_SomethingSelected_OffersItsWordsForTheRule)
{
    Add("", "a, b", "Writer", On(17, 7), On(17, 7, 30));
    mDesk->Session().AddIn().UpdateorAddProject("Riverside", "river", "", "", "2", false);
    mDesk->Do([] {});
    mMain.SelectAll();
    auto& window = ShowSettings("Riverside");
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = true; });
    Settle();
    EXPECT_EQ(window.Effect()->findChildren<QPushButton*>().size(), 0) << "they are words of its title";
    mDesk->Change([](DesktopSettings& settings) { settings.hidesTitles = false; });
    const auto offers = window.Effect()->findChildren<QPushButton*>();
    ASSERT_EQ(offers.size(), 2);
    offers.front()->click();
    EXPECT_EQ(Find<QLineEdit>(window, "SubjectText").text(), "river, \"a, b\"");
    EXPECT_EQ(window.Effect()->Effect()->Changes().size(), 1U);
    Settle();
    EXPECT_EQ(window.Effect()->findChildren<QPushButton*>().size(), 1) << "what the rule has isn't offered";
}

TEST_F(FormWindowTest, Boxes_AreStyledAnew_KeepTheWidthThatTheyWereGiven)
{
    struct Resizes : QObject
    {
        bool eventFilter(QObject* /*object*/, QEvent* event) override
        {
            count += event->type() == QEvent::Resize ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    using Look = DesktopSettings::Appearance;
    Resizes resizes;
    for (auto* box : ShowSettings().View().findChildren<QComboBox*>()) {
        box->installEventFilter(&resizes);
    }
    mDesk->Change([](DesktopSettings& settings) { settings.appearance = Look::Dark; });
    // The toolkit would take its time over it.
    constexpr int While = 60;
    QTest::qWait(While);
    EXPECT_EQ(resizes.count, 0);
}

TEST_F(FormWindowTest, ProductsForms_InAllColours_AreDrawnWhole)
{
    AddWeek();
    for (const auto* entry :
        { "Pro&ject Settings...", "Set Project for &Activities...", "Create Activity &Report..." }) {
        Choose(entry);
    }
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, name] : { std::pair(Look::Light, "light"), std::pair(Look::Dark, "dark") }) {
        mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
        for (const auto* form : { "ProjectSettingsForm", "SetProjectForm", "ReportForm" }) {
            auto& window = WindowOf(form);
            Settle();
            Picture(window, std::string(form) + "-" + name);
            for (const auto* widget : window.View().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
                EXPECT_TRUE(window.View().rect().contains(widget->geometry()) || !widget->isVisible())
                    << form << widget->objectName().toStdString();
            }
        }
    }
}

}
