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

    ProjectSettingsFixture();
    ~ProjectSettingsFixture() override;

    const Ref<TempodialMain>& Main() const;
    void AddProject(const std::string& name, const std::string& rule, const std::string& notRule,
        const std::string& precedence) const;
    std::vector<std::string> Projects() const;
    /// Precedence, rule and not-rule of a project, "2||" for an unknown one.
    std::string Project(const std::string& name) const;
    /// The companion of an activity window, which traces each refresh of its list.
    Ref<TempodialInspector> Owner();
    /// How often a line was traced since the last look at the trace.
    std::ptrdiff_t CountTraced(const std::string& line);
    /// Shows the settings for a project, as an activity window does.
    void ShowFor(const std::string& project);
    /// An activity that is that many days old, without a project.
    Ref<AppointmentItem> Activity(const std::string& description, std::int32_t daysAgo) const;
    std::string ProjectOf(const Ref<AppointmentItem>& item) const;
    void ExpectClean(const std::string& project) const;

    Ref<CannedMessageBox> mMessages = mAddIn.messageBox;
    Ref<ProjectSettingsForm> mForm = MakeRef<ProjectSettingsForm>(mAddIn.platform);
    Ref<TempodialInspector> mOwner = Owner();
    FormUser mUser { mAddIn.forms, "ProjectSettingsForm" };
};

}
