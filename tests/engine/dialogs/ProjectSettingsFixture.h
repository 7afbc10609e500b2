#pragma once

#include "engine/dialogs/ProjectSettingsForm.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/TempodialInspector.h"
#include "support/AddInFixture.h"
#include "support/CannedMessageBox.h"
#include "support/FormUser.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tempodial {

/// The project settings over the projects Alpha (high), Beta and Gamma (medium) and Delta (low), with rules of their
/// own, and a person at them.
class ProjectSettingsFixture : public AddInFixture
{
protected:
    static constexpr const char* NewProject = "<New project..>";
    static constexpr const char* NotSet = "Object variable or With block variable not set";

    ProjectSettingsFixture()
    {
        for (const auto* name : { "Critical", "Other", "Personal", "Supportive", "Wish" }) {
            Main()->DeleteProject(name);
        }
        AddProject("Alpha", "alphaword", "notalpha", "1");
        AddProject("Beta", "betaword", "notbeta", "2");
        AddProject("Gamma", "gammaword", "", "2");
        AddProject("Delta", "deltaword", "", "3");
        mForm->Initialise(Main(), Main()->mTempodialDebugLog);
        mAddIn.Trace();
    }

    const Ref<TempodialMain>& Main() const { return mAddIn.main; }
    void AddProject(const std::string& name, const std::string& rule, const std::string& notRule,
        const std::string& precedence) const
    {
        EXPECT_EQ(Main()->UpdateorAddProject(name, rule, notRule, "", precedence, false), "");
    }
    std::vector<std::string> Projects() const
    {
        std::vector<std::string> names;
        Main()->GetProjects(names, false, false, false);
        return names;
    }
    /// Precedence, rule and not-rule of a project, "2||" for an unknown one.
    std::string Project(const std::string& name) const
    {
        return Main()->GetProjectPrecedence(name) + "|" + Main()->GetProjectSubRule(name) + "|"
            + Main()->GetProjectNotSubRule(name);
    }
    /// The companion of an activity window, which traces each refresh of its list.
    Ref<TempodialInspector> Owner()
    {
        auto owner = MakeRef<TempodialInspector>(mAddIn.platform);
        owner->Initialize(Main()->mTempodialDebugLog, Main(), nullptr, 1);
        mAddIn.Trace();
        return owner;
    }
    /// How often a line was traced since the last look at the trace.
    std::ptrdiff_t CountTraced(const std::string& line)
    {
        const auto lines = mAddIn.TraceTexts();
        return std::ranges::count(lines, line);
    }
    /// Shows the settings for a project, as an activity window does.
    void ShowFor(const std::string& project)
    {
        mForm->ShowMe(project, mOwner);
        mAddIn.Trace();
    }
    /// An activity that is that many days old, without a project.
    Ref<AppointmentItem> Activity(const std::string& description, std::int32_t daysAgo) const
    {
        const auto start = mAddIn.clock->Now().AddDays(-daysAgo);
        auto item = Main()->CreateCalendarItem(
            "No Project", description, "Notepad", "", 5, start.AddMinutes(-10), start.AddMinutes(-5), "", false);
        EXPECT_EQ(ProjectOf(item), "No Project");
        return item;
    }
    std::string ProjectOf(const Ref<AppointmentItem>& item) const { return mAddIn.Property(item, "Project").ToText(); }
    void ExpectClean(const std::string& project) const
    {
        EXPECT_EQ(mUser.Text("ProjectComboBox"), project);
        EXPECT_FALSE(mUser.CanWork("SaveButton"));
        EXPECT_FALSE(mUser.CanWork("DaysText"));
        EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
        EXPECT_EQ(mUser.Text("DaysText"), "7");
    }

    Ref<CannedMessageBox> mMessages = mAddIn.messageBox;
    Ref<ProjectSettingsForm> mForm = MakeRef<ProjectSettingsForm>(mAddIn.platform);
    Ref<TempodialInspector> mOwner = Owner();
    FormUser mUser { mAddIn.forms, "ProjectSettingsForm" };
};

}
