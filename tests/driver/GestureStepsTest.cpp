#include "session/Steps.h"
#include "support/DriverFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a person does with activities in windows and views is a step that goes back.
class GestureStepsTest : public DriverFixture
{
protected:
    GestureStepsTest() { Do({ { "do", "start" } }); }

    int Open(const std::string& entryId)
    {
        return Do({ { "do", "inspector.open" }, { "entryId", entryId } }).at("inspector");
    }
    void Set(int inspector, const std::string& control, const Json& value)
    {
        Do({ { "do", "inspector.set" }, { "inspector", inspector }, { "control", control }, { "value", value } });
    }
    void Click(const std::string& window, int number, const Json& path)
    {
        Do({ { "do", "command" }, { window, number }, { "bar", window == "explorer" ? "Menu Bar" : "Tempodial" },
            { "path", path } });
    }
    Json Items() { return Do({ { "do", "items" } }).at("items"); }
    /// The steps so far, the oldest first.
    std::vector<std::string> StepsSoFar() const
    {
        std::vector<std::string> told;
        for (const auto& step : Steps(mDriver->Host().Profile()).Newest(100)) {
            told.insert(told.begin(), step.command + " " + std::to_string(step.items));
        }
        return told;
    }
    void Undo() const { Steps(mDriver->Host().Profile()).Undo(std::nullopt, "undo"); }
};

}

TEST_F(GestureStepsTest, ViewGestures_AreStepsThatGoBack)
{
    const auto id = Activity();
    const auto created = Items();
    Do({ { "do", "item.change" }, { "entryId", id }, { "start", "2006-10-10T10:00:00" } });
    EXPECT_EQ(Items()[0].at("end"), "2006-10-10T10:05:00");
    Do({ { "do", "item.change" }, { "entryId", id }, { "end", "2006-10-10T11:00:00" } });
    const auto resized = Items();
    Do({ { "do", "item.delete" }, { "entryId", id } });
    EXPECT_THAT(StepsSoFar(), ElementsAre("New 1", "Move 1", "Resize 1", "Delete 1"));
    Undo();
    EXPECT_EQ(Items(), resized);
    Undo();
    Undo();
    EXPECT_EQ(Items(), created);
    Undo();
    EXPECT_THAT(Items(), IsEmpty());
}

TEST_F(GestureStepsTest, InspectorSave_FieldsAndRules_GoBackTogether)
{
    const auto inspector = Open(Activity());
    const auto before = Items();
    Set(inspector, "SubjectBox", "b");
    Set(inspector, "ProjectComboBox", "Brand New");
    EXPECT_EQ(Do({ { "do", "inspector.save" }, { "inspector", inspector } }).at("cancelled"), false);
    EXPECT_NE(Items(), before);
    EXPECT_THAT(StepsSoFar(), ElementsAre("New 1", "Save 1"));
    EXPECT_EQ(Do({ { "do", "inspector.save" }, { "inspector", inspector } }).at("cancelled"), false);
    EXPECT_THAT(StepsSoFar(), ElementsAre("New 1", "Save 1")) << "nothing has changed";
    Undo();
    EXPECT_EQ(Items(), before);
}

TEST_F(GestureStepsTest, CommandsOfWindows_AreStepsByTheirCaptions)
{
    const auto saved = Activity();
    const auto deleted = Activity();
    auto inspector = Open(saved);
    Set(inspector, "SubjectBox", "b");
    Click("inspector", inspector, { "&Save and Close" });
    inspector = Open(deleted);
    Click("inspector", inspector, { "&Delete" });
    Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", "Calendar/Tempodial" } });
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { saved } } });
    Click("explorer", 1, { "&Edit", "&Delete" });
    EXPECT_THAT(Items(), IsEmpty());
    EXPECT_THAT(StepsSoFar(), ElementsAre("New 1", "New 1", "Save and Close 1", "Delete 1", "Delete 1"));
    Undo();
    Undo();
    EXPECT_EQ(Items().size(), 2U);
}

TEST_F(GestureStepsTest, ItemsElsewhere_AreNoSteps)
{
    const auto id = Activity("Calendar");
    Do({ { "do", "item.change" }, { "entryId", id }, { "end", "2006-10-10T11:00:00" } });
    const auto inspector = Open(id);
    Do({ { "do", "inspector.save" }, { "inspector", inspector } });
    Do({ { "do", "item.delete" }, { "entryId", id } });
    EXPECT_THAT(StepsSoFar(), IsEmpty());
}

TEST_F(GestureStepsTest, GestureInTheMidstOfAnImport_IsDoneAndIsNone)
{
    const auto id = Activity();
    std::vector<std::string> slots;
    for (int minute = 0; minute < 55; minute += 5) {
        slots.push_back(Slot(10, minute, "document " + std::to_string(minute)));
    }
    WriteTracker("20061010", slots);
    Do({ { "do", "onPump" }, { "at", 2 }, { "then", { { "do", "item.delete" }, { "entryId", id } } } });
    Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Standard" }, { "path", { "Refre&sh Tempodial" } } });
    EXPECT_EQ(Items().size(), slots.size());
    EXPECT_THAT(StepsSoFar(), ElementsAre("New 1"));
}

TEST_F(GestureStepsTest, RefusedGesture_ChangesNothing)
{
    const auto id = Activity();
    const auto before = Items();
    Refused({ { "do", "item.change" }, { "entryId", id }, { "end", "2006-10-10T08:00:00" } });
    EXPECT_EQ(Items(), before);
    EXPECT_THAT(StepsSoFar(), ElementsAre("New 1"));
}

}
