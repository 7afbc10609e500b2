#include "engine/dialogs/ProjectSettingsFixture.h"

namespace tempodial {

ProjectSettingsFixture::ProjectSettingsFixture()
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

ProjectSettingsFixture::~ProjectSettingsFixture() = default;

const Ref<TempodialMain>& ProjectSettingsFixture::Main() const
{
    return mAddIn.main;
}

void ProjectSettingsFixture::AddProject(
    const std::string& name, const std::string& rule, const std::string& notRule, const std::string& precedence) const
{
    EXPECT_EQ(Main()->UpdateorAddProject(name, rule, notRule, "", precedence, false), "");
}

std::vector<std::string> ProjectSettingsFixture::Projects() const
{
    std::vector<std::string> names;
    Main()->GetProjects(names, false, false, false);
    return names;
}

std::string ProjectSettingsFixture::Project(const std::string& name) const
{
    return Main()->GetProjectPrecedence(name) + "|" + Main()->GetProjectSubRule(name) + "|"
        + Main()->GetProjectNotSubRule(name);
}

Ref<TempodialInspector> ProjectSettingsFixture::Owner()
{
    auto owner = MakeRef<TempodialInspector>(mAddIn.platform);
    owner->Initialize(Main()->mTempodialDebugLog, Main(), nullptr, 1);
    mAddIn.Trace();
    return owner;
}

std::ptrdiff_t ProjectSettingsFixture::CountTraced(const std::string& line)
{
    const auto lines = mAddIn.TraceTexts();
    return std::ranges::count(lines, line);
}

void ProjectSettingsFixture::ShowFor(const std::string& project)
{
    mForm->ShowMe(project, mOwner);
    mAddIn.Trace();
}

Ref<AppointmentItem> ProjectSettingsFixture::Activity(const std::string& description, std::int32_t daysAgo) const
{
    const auto start = mAddIn.clock->Now().AddDays(-daysAgo);
    auto item = Main()->CreateCalendarItem(
        "No Project", description, "Notepad", "", 5, start.AddMinutes(-10), start.AddMinutes(-5), "", false);
    EXPECT_EQ(ProjectOf(item), "No Project");
    return item;
}

std::string ProjectSettingsFixture::ProjectOf(const Ref<AppointmentItem>& item) const
{
    return mAddIn.Property(item, "Project").ToText();
}

void ProjectSettingsFixture::ExpectClean(const std::string& project) const
{
    EXPECT_EQ(mUser.Text("ProjectComboBox"), project);
    EXPECT_FALSE(mUser.CanWork("SaveButton"));
    EXPECT_FALSE(mUser.CanWork("DaysText"));
    EXPECT_FALSE(mUser.IsOn("ApplyPastCheck"));
    EXPECT_EQ(mUser.Text("DaysText"), "7");
}

}
