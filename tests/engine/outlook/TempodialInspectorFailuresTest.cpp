#include "engine/outlook/InspectorFixture.h"

#include <algorithm>
#include <set>

namespace tempodial {

namespace {

using testing::Contains;
using testing::HasSubstr;

/// What a person does with the window of an activity.
struct Scenario
{
    const char* name;
    /// The line that the companion ends with.
    const char* lastLine;
    std::function<void(const Ref<HostInspector>& inspector)> act;
};

class TempodialInspectorFailuresTest : public InspectorFixture
{
protected:
    TempodialInspectorFailuresTest() { AddProject("Alpha"); }

    /// A window on an activity on which everything was changed, when that is wanted.
    Ref<HostInspector> Prepare(bool changed)
    {
        mFails = {};
        auto inspector = OpenObserved(Activity("Plan - Anna;", "Anna;"), [&](const std::string& member) {
            if (mFails && mFails(member)) {
                throw Failure(Error::Automation);
            }
        });
        if (changed) {
            Set(inspector, "ProjectComboBox", "Alpha");
            Set(inspector, "DescCombo", "word");
            Set(inspector, "SubjectBox", "Letter");
            Set(inspector, "PeopleBox", "Ben;");
            Set(inspector, "StartBox", Date::FromParts({ 2006, 10, 11, 9, 0, 0 }));
            Set(inspector, "ApplyCheckBox", true);
        }
        EmptyTrace();
        return inspector;
    }
    /// Lets the calls of some members fail.
    void Fail(const std::set<std::string>& members)
    {
        mFails = [members](const std::string& use) {
            return std::any_of(members.begin(), members.end(), [&](const auto& member) { return IsUse(use, member); });
        };
    }
    void Close(const Ref<HostInspector>& inspector, Answer answer)
    {
        mMessageBox->NextAnswer(answer);
        inspector->Close();
    }

    /// Whether the call of a member is to fail.
    std::function<bool(const std::string& member)> mFails;
};

TEST_F(TempodialInspectorFailuresTest, AnyRoutine_AnyOneCallFails_RunsToItsEnd)
{
    const std::vector<Scenario> scenarios {
        { "save", "Item write - exit", [](const auto& inspector) { inspector->Save(); } },
        { "yes", "Item close - exit closed? True 90", [&](const auto& inspector) { Close(inspector, Answer::Yes); } },
        { "no", "Item close - exit closed? True 90", [&](const auto& inspector) { Close(inspector, Answer::No); } },
        { "save and close", "Item close - exit closed? True 90",
            [](const auto& inspector) { Click(inspector, "&Save and Close"); } },
    };
    for (const auto& scenario : scenarios) {
        int calls = 1;
        for (int failing = 1; calls >= failing; ++failing) {
            const auto inspector = Prepare(true);
            calls = 0;
            std::string failed;
            mFails = [&](const std::string& member) {
                if (++calls != failing) {
                    return false;
                }
                failed = member;
                return true;
            };
            EXPECT_NO_THROW(scenario.act(inspector));
            mFails = {};
            SCOPED_TRACE(std::string(scenario.name) + ": " + std::to_string(failing) + " " + failed);

            const auto lines = Traced();
            EXPECT_THAT(lines, Contains(std::string("TDInspector ") + scenario.lastLine));
            if (!failed.empty() && failed != "AppointmentItem.Close") {
                EXPECT_THAT(lines, Contains(HasSubstr("Automation error")));
            }
        }
        EXPECT_GT(calls, 30) << scenario.name;
    }
}

TEST_F(TempodialInspectorFailuresTest, Open_AnyOneCallFails_RunsToItsEnd)
{
    int calls = 1;
    for (int failing = 1; calls >= failing; ++failing) {
        const auto item = Activity("Plan - Anna;", "Anna;");
        EmptyTrace();
        calls = 0;
        std::string failed;
        Ref<HostInspector> inspector;
        EXPECT_NO_THROW(inspector = OpenObserved(item, [&](const std::string& member) {
            if (++calls == failing) {
                failed = member;
                throw Failure(Error::Automation);
            }
        }));
        SCOPED_TRACE(std::to_string(failing) + " " + failed);

        const auto lines = Traced();
        if (failed == "Inspector.CurrentItem" || failed == "AppointmentItem.MessageClass"
            || failed == "AppointmentItem.Subject" || failed == "AppointmentItem.Subscribe") {
            continue; // not known for an activity, or not heard
        }
        EXPECT_TRUE(inspector);
        EXPECT_THAT(lines, Contains("TDInspector Item open - exit 90"));
        if (!failed.empty()) {
            EXPECT_THAT(lines, Contains(HasSubstr("Automation error")));
        }
    }
    EXPECT_GT(calls, 50);
}

TEST_F(TempodialInspectorFailuresTest, Close_AnyOneCallFails_EndsWithTheStandardBar)
{
    int calls = 1;
    for (int failing = 1; calls >= failing; ++failing) {
        const auto inspector = Prepare(false);
        calls = 0;
        mFails = [&](const std::string&) { return ++calls == failing; };
        SCOPED_TRACE(failing);
        bool seen = false;
        const auto bars = inspector->Bars();
        const auto closing = inspector->Subscribe({ .Close = [&] {
            seen = true;
            EXPECT_EQ(bars->Count(), 1);
            EXPECT_TRUE(bars->ItemNamed("Standard")->Visible());
        } });
        inspector->Close();
        mFails = {};
        EXPECT_TRUE(seen);
    }
    EXPECT_GT(calls, 20);
}

TEST_F(TempodialInspectorFailuresTest, Open_CallsFail_TraceTheRoutinesWords)
{
    const std::vector<std::pair<std::string, std::string>> cases {
        { "Inspector.Caption", "Initialize error Automation error & " },
        { "Inspector.Caption", "Initialize error Automation error & set currentitem " },
        { "Inspector.CurrentItem", "Initialize error Automation error & set currentitem " },
        { "Pages.Item Activity", "Open error Automation error set up editpagecontrols" },
        { "PageControls.Item ProjectComboBox", "Open error Automation error use editpagecontrols" },
        { "PageControls.Item StartBox", "Open error Automation error set controls up" },
        { "PageControl.SetText ApplicationBox", "InitUnbound error Automation error" },
        { "UserProperty.Value Type", "InitUnbound error Automation error" },
        { "PageControl.SetList ProjectComboBox", "UpdateProjectDropdown error Automation error Set list" },
        { "PageControl.AddItem DescCombo", "UpdateFormDropdowns error Automation error Set list" },
        { "PageControl.Text PeopleBox", "UpdateFormDropdowns error Automation error Set list" },
        { "PageControl.Value ProjectComboBox", "Resetbound error Automation error" },
        { "PageControl.Value EndBox", "Resetbound error Automation error" },
        { "PageControl.Value DescCombo", "ResetKeys error Automation error" },
        { "CommandBar.FindControl", "toolbars error Automation error" },
        { "CommandBarButton.SetStyle", "toolbars error Automation error" },
    };
    for (const auto& [failing, line] : cases) {
        SCOPED_TRACE(failing);
        OpenObserved(Activity("Plan", "Anna;"), FailingAt(failing));
        EXPECT_THAT(Companions(), Contains(line));
    }
}

TEST_F(TempodialInspectorFailuresTest, SaveAndClose_CallsFail_TraceTheRoutinesWords)
{
    const auto save = [](const auto& inspector) { inspector->Save(); };
    const auto yes = [&](const auto& inspector) { Close(inspector, Answer::Yes); };
    const auto no = [&](const auto& inspector) { Close(inspector, Answer::No); };
    const auto saveClose = [](const auto& inspector) { Click(inspector, "&Save and Close"); };
    const auto settings = [](const auto& inspector) { Click(inspector, "Pro&ject Settings..."); };
    const std::vector<std::tuple<std::string, std::string, std::function<void(const Ref<HostInspector>&)>>> cases {
        { "PageControl.Value ProjectComboBox", "IsBound error Automation error", save },
        { "PageControl.Value ProjectComboBox", "WriteAll error Automation error validate project", save },
        { "PageControl.Value ProjectComboBox", "writebound error Automation error", save },
        { "PageControl.Value ProjectComboBox", "Save rules error Automation error start", save },
        { "PageControl.Value ApplyCheckBox", "WriteAll error Automation error exit save rules", save },
        { "UserProperty.SetValue Day", "writebound error Automation error", save },
        { "PageControl.Text SubjectBox", "Resetbound error Automation error", save },
        { "PageControl.Value DescCombo", "ResetKeys error Automation error", save },
        { "AppointmentItem.Save", "Close error Automation error", yes },
        { "UserProperty.SetValue Keyword", "InitUnbound error Automation error", yes },
        { "UserProperty.SetValue ApplyPast", "InitUnbound error Automation error", yes },
        { "PageControl.SetText SubjectBox", "Reversebound error Automation error", no },
        { "PageControl.SetValue EndBox", "Reversebound error Automation error", no },
        { "AppointmentItem.Save", "Save/close error Automation error call save", saveClose },
        { "AppointmentItem.EntryID", "Save/close error Automation error Set list", saveClose },
        { "Inspector.Caption", "view projects error Automation error", settings },
        { "PageControl.Value ProjectComboBox", "view projects error Automation error", settings },
    };
    for (const auto& [failing, line, act] : cases) {
        SCOPED_TRACE(testing::Message() << failing << ": " << line);
        const auto inspector = Prepare(true);
        Fail({ failing });
        EXPECT_NO_THROW(act(inspector));
        mFails = {};
        EXPECT_THAT(Companions(), Contains(line));
    }
}

TEST_F(TempodialInspectorFailuresTest, Open_ParentUnreadable_ForeignItemIsLeftAlone)
{
    const auto inspector
        = OpenObserved(Appointment("Lunch", "Calendar/Tempodial"), FailingAt("AppointmentItem.Parent"));

    EXPECT_TRUE(inspector);
    EXPECT_EQ(mAlone->Inspectors()->Count(), 1);
    EXPECT_THAT(Companions(), testing::Not(Contains("display duplicate entry")));
}

TEST_F(TempodialInspectorFailuresTest, Initialize_NoMainObject_ItemIsNotOurs)
{
    const auto inspector = OpenAlone(Activity());
    const auto companion = MakeRef<TempodialInspector>(mPlatform);
    ForgetTrace();
    companion->Initialize(mLog, nullptr, inspector, 91);

    EXPECT_THAT(Companions(), Contains("Isouritem error Object variable or With block variable not set"));
}

TEST_F(TempodialInspectorFailuresTest, Help_NoWindowInFront_TracesThatAndCancels)
{
    const auto inspector = OpenAlone(Activity());
    inspector->Close();
    ForgetTrace();
    bool cancelDefault = false;
    mCompanion->mHelpCommandBarButton_Click(nullptr, cancelDefault);

    EXPECT_TRUE(cancelDefault);
    EXPECT_THAT(Companions(), Contains("help error Object variable or With block variable not set"));
}

TEST_F(TempodialInspectorFailuresTest, Close_QuestionCantBeAsked_LeavesTheItemAlone)
{
    const auto inspector = Prepare(true);
    mMessageBox->onShow = [] { throw Failure(Error::Automation); };
    const auto item = mCompanion->GetItem();
    bool cancel = false;
    mCompanion->mCurrentItem_Close(cancel);

    EXPECT_FALSE(cancel);
    EXPECT_EQ(item->Mileage(), "No Project");
    EXPECT_THAT(Companions(), Contains("Close error Automation error"));
}

TEST_F(TempodialInspectorFailuresTest, Writebound_StartUnreadable_LeavesTheDay)
{
    const auto inspector = Prepare(true);
    const auto item = inspector->ShownItem();
    Fail({ "PageControl.Value StartBox" });
    inspector->Save();

    EXPECT_EQ(Property(item, "Day"), Variant(Date::FromParts({ 2006, 10, 10, 0, 0, 0 })));
}

}

}
