#include "engine/projects/TempodialProjectManager.h"

#include "base/Concatenated.h"
#include "base/Number.h"
#include "base/Text.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"

#include <array>

namespace tempodial {

namespace {

constexpr std::string_view High = "1";
constexpr std::string_view Medium = "2";
constexpr std::string_view Low = "3";
constexpr std::string_view RecordEnd = "|";

/// The project of that name in a list, case ignored; nothing when there is none. Most projects aren't in the list that
/// is asked first, so this doesn't fail.
Ref<TempodialProject> ProjectIn(const OrderedCollection<Ref<TempodialProject>>& list, const std::string& name)
{
    for (std::int32_t index = 1; index <= list.Count(); ++index) {
        const auto& project = list.Item(index);
        if (EqualIgnoringCase(project->GetName(), name)) {
            return project;
        }
    }
    return nullptr;
}

}

TempodialProjectManager::TempodialProjectManager(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialProjectManager::Initialize(const Ref<TempodialMain>& main, const Ref<Application>& /*application*/,
    const Ref<NameSpace>& nameSpace, const Ref<TempodialDebugLog>& log)
{
    mFileSystem = mPlatform->fileSystem;
    mNamespace = nameSpace;
    mLog = log;
    mMain = main;
    mFlushing = false;
    mTraceInfo = "TDProjectMan";
    Trace("revision 1 TempodialProjectManager");
}

void TempodialProjectManager::Terminate()
{
    mNamespace = nullptr;
    mLog = nullptr;
    mMain = nullptr;
    mFileSystem = nullptr;
    mStage.clear();
}

void TempodialProjectManager::InitProjects()
{
    const auto attempt = Failing("init projects error ", LineShape::TextColonStep);
    std::string text;

    mStage = "ReadLine";
    attempt([&] {
        text = mMain->mUtils
                   ->GetRegistryValue(
                       mMain->mStrings->mRegistryValueProjectXML, "", Hive::CurrentUser, RegistryAccess::All)
                   .ToText();
    });
    attempt.Say(
        [&] { return "Init Projects " + text + " new version? " + std::string(BooleanText(mMain->mNewVersion)); });
    if (text.empty() && mMain->mNewVersion) {
        attempt([&] { text = mMain->mStrings->mRegistryValueDefaultProjects; });
    }
    std::optional<std::string> lastName;
    bool done = false;
    while (!done) {
        const auto position = InStr(text, RecordEnd);
        Trace("offset " + std::to_string(position) + " in line " + text);
        if (position == 0) {
            break;
        }
        const auto record = Left(text, position - 1);
        text = Mid(text, position + 1);
        done = ParseProject(record, lastName);
    }
    FlushProjects();
}

bool TempodialProjectManager::ParseProject(const std::string& line, std::optional<std::string>& lastName)
{
    const auto attempt = Failing("ParseProject error ", LineShape::TextBlankStep);
    const auto value = [&](const Ref<XmlDocument>& document, const char* path) {
        return attempt.Get([&] { return mMain->mUtils->GetTextValue(document, path); });
    };

    const auto document = attempt.Get([&] { return mPlatform->xml->NewDocument(); });
    attempt([&] { document->LoadXML(line); });
    Trace("line: " + line);
    const auto name = value(document, "project/name");
    Trace("project: " + name);
    // kept: a record without a name is called by the word for absent things, and passes
    if (line.empty() || name == "Unknown" || name == lastName) {
        Trace("drop out");
        return true;
    }
    lastName = name;
    auto precedence = value(document, "project/precedence");
    if (precedence != High && precedence != Medium && precedence != Low) {
        precedence = Medium;
    }
    const auto subjectRule = value(document, "project/subjrules");
    const auto notSubjectRule = value(document, "project/notsubjrules");
    const auto peopleRule = value(document, "project/peoplerules");
    AddProject(name, subjectRule, notSubjectRule, peopleRule, precedence);
    return false;
}

void TempodialProjectManager::AddProject(const std::string& name, const std::string& subjectRule,
    const std::string& notSubjectRule, const std::string& peopleRule, const std::string& precedence)
{
    const auto attempt = Failing("AddProject error ", LineShape::TextBlankStep);
    Trace("AddProject called");
    const auto project = MakeRef<TempodialProject>(mPlatform);
    attempt([&] { project->Initialize(mLog, name, subjectRule, peopleRule, notSubjectRule, precedence); });
    AlphaAdd(GetList(precedence), project, name);
}

void TempodialProjectManager::AlphaAdd(ProjectList& list, const Ref<TempodialProject>& project, const std::string& name)
{
    const auto attempt = Failing("PM AlphaAdd error ", LineShape::TextColonStep);
    Trace("PM AlphaAdd: " + name);
    for (std::int32_t index = 1; index <= list.Count(); ++index) {
        const auto& present = list.Item(index)->GetName();
        Trace("PM AlphaAdd " + std::to_string(index) + " - " + present);
        if (CompareIgnoringCase(present, name) > 0) {
            Trace("PM Addit: ");
            attempt([&] { list.AddKeyedBefore(project, name, index); });
            return;
        }
    }
    attempt([&] { list.AddKeyed(project, name); });
}

TempodialProjectManager::ProjectList& TempodialProjectManager::GetList(const std::string& precedence)
{
    if (precedence == High) {
        return mHighProjects;
    }
    return precedence == Low ? mLowProjects : mMediumProjects;
}

Ref<TempodialProject> TempodialProjectManager::FindProject(const std::string& name)
{
    mStage = "high";
    auto project = ProjectIn(mHighProjects, name);
    if (!project) {
        mStage = "medium";
        project = ProjectIn(mMediumProjects, name);
    }
    if (!project) {
        mStage = "low";
        project = ProjectIn(mLowProjects, name);
    }
    return project;
}

Variant TempodialProjectManager::xmlize(std::string& toXML)
{
    const auto attempt = Failing("xmlize error ", LineShape::TextColonStep);
    constexpr std::array<std::array<std::string_view, 2>, 5> escapes { { { "&", "&amp;" }, { ">", "&gt;" },
        { "<", "&lt;" }, { "'", "&apos;" }, { "\"", "&quot;" } } };
    for (const auto& [sign, entity] : escapes) {
        attempt([&, &sign = sign, &entity = entity] { toXML = Replace(toXML, sign, entity); });
    }
    Trace("after: " + toXML);
    return toXML;
}

std::string TempodialProjectManager::GetXML(std::string name, std::string subjectRule, std::string peopleRule,
    std::string notSubjectRule, std::string precedence)
{
    xmlize(name);
    xmlize(subjectRule);
    xmlize(peopleRule);
    xmlize(notSubjectRule);
    xmlize(precedence);
    auto record = "<project><name>" + name + "</name><subjrules>" + subjectRule + "</subjrules><peoplerules>"
        + peopleRule + "</peoplerules><notsubjrules>" + notSubjectRule + "</notsubjrules><precedence>" + precedence
        + "</precedence></project>";
    Trace("XML: " + record);
    return record;
}

void TempodialProjectManager::FlushProjects()
{
    const auto attempt = Failing("flush projects error ", LineShape::TextColonStep);
    Trace("Flush Projects");
    if (mFlushing) {
        return;
    }
    mFlushing = true;

    mStage = "write lines";
    std::string records;
    std::string names;
    for (const auto* list : { &mHighProjects, &mMediumProjects, &mLowProjects }) {
        for (std::int32_t index = 1; index <= list->Count(); ++index) {
            attempt([&] {
                const auto& project = list->Item(index);
                const auto& name = project->GetName();
                records += GetXML(name, project->GetSubjectRule(), project->GetPeopleRule(),
                    project->GetNotSubjectRule(), project->GetPrecedence());
                records += RecordEnd;
                if (!names.empty()) {
                    names += RecordEnd;
                }
                names += name;
            });
        }
    }
    attempt([&] {
        mMain->mUtils->SetRegistryValue(mMain->mStrings->mRegistryValueProjectList, names, "", Hive::CurrentUser);
    });
    attempt([&] {
        mMain->mUtils->SetRegistryValue(mMain->mStrings->mRegistryValueProjectXML, records, "", Hive::CurrentUser);
    });
    mFlushing = false;
}

std::string TempodialProjectManager::UpdateorAddProject(const std::string& project, const std::string& subRule,
    const std::string& notSubRule, const std::string& peopleRule, const std::string& precedence, bool addOnly)
{
    const auto attempt = Failing("PM update proj error ", LineShape::TextColonStep);
    Trace("PM Update Proj: " + project + " " + subRule + " " + notSubRule + " " + peopleRule + " " + precedence + " "
        + std::string(BooleanText(addOnly)));

    mStage = "look for project";
    Ref<TempodialProject> found;
    attempt([&] { found = FindProject(project); }, [&](const Failure&) { Trace("PM no item"); });
    if (!found) {
        auto message = ValidateProject(project);
        if (message.empty()) {
            mStage = "add project";
            Trace("PM add");
            AddProject(project, subRule, notSubRule, peopleRule, precedence);
            FlushProjects();
        }
        return message;
    }
    if (addOnly) {
        return {};
    }
    mStage = "update project";
    Trace("PM update");
    auto& oldList = GetList(found->GetPrecedence());
    found->SetSubjectRule(subRule);
    found->SetNotSubjectRule(notSubRule);
    found->SetPeopleRule(peopleRule);
    found->SetPrecedence(precedence);
    auto& newList = GetList(found->GetPrecedence());
    if (&newList != &oldList) {
        AlphaAdd(newList, found, found->GetName());
        attempt([&] { oldList.RemoveKeyed(found->GetName()); });
    }
    FlushProjects();
    return {};
}

void TempodialProjectManager::UpdateorAddProjectRule(
    const std::string& project, const std::string& newSubRule, const std::string& newPeopleRule)
{
    const auto attempt = Failing("PM update proj rule error ", LineShape::TextColonStep);
    Trace("PM Update Proj Rule: " + project + " " + newSubRule + " " + newPeopleRule);

    mStage = "look for project";
    Ref<TempodialProject> found;
    attempt([&] { found = FindProject(project); }, [&](const Failure&) { Trace("no item"); });
    if (!found) {
        mStage = "add project";
        Trace("add new project");
        AddProject(project, newSubRule, "", newPeopleRule, std::string(Medium));
    } else {
        mStage = "update project";
        Trace("update existing project");
        found->AppendSubjectRule(newSubRule);
        found->AppendPeopleRule(newPeopleRule);
    }
    FlushProjects();
}

void TempodialProjectManager::DeleteProject(const std::string& project)
{
    const auto attempt = Failing("PM del proj error ", LineShape::Silent);
    Trace("PM Del Proj: " + project);
    mStage = "remove project";
    for (auto* list : { &mHighProjects, &mMediumProjects, &mLowProjects }) {
        attempt([&] { list->RemoveKeyed(project); });
    }
    FlushProjects();
}

std::string TempodialProjectManager::ValidateProject(const std::string& project)
{
    const auto attempt = Failing("PM validate proj error ", LineShape::TextColonStep);
    std::string message;
    Trace("PM Validate Proj");
    attempt([&] {
        const auto& strings = *mMain->mStrings;
        if (project.find(RecordEnd) != std::string::npos) {
            message = strings.mErrorInvalidProjectChar;
        } else if (project == strings.mAddNewProject || project == strings.mNoProject) {
            Trace("PM Validate Proj - invalid");
            message = strings.mErrorBadProjectName;
        }
    });
    return message;
}

Variant TempodialProjectManager::GetProjects(
    std::vector<std::string>& projArray, bool withAddProject, bool withNoProject, bool withAllProjects)
{
    const auto attempt = Failing("GetProjects error ", LineShape::TextBlankStep);
    std::vector<std::string> names;
    for (const auto* list : { &mHighProjects, &mMediumProjects, &mLowProjects }) {
        for (std::int32_t index = 1; index <= list->Count(); ++index) {
            names.push_back(list->Item(index)->GetName());
        }
    }
    attempt([&] {
        const auto& strings = *mMain->mStrings;
        if (withAddProject) {
            names.push_back(strings.mAddNewProject);
        }
        if (withNoProject) {
            names.push_back(strings.mNoProject);
        }
        if (withAllProjects) {
            names.push_back(strings.mAllProjects);
        }
        if (names.empty()) {
            throw Failure(Error::SubscriptOutOfRange);
        }
        projArray = names;
    });
    return static_cast<std::int32_t>(names.size()) - 1;
}

std::string TempodialProjectManager::WhatProject(const std::string& subject, const std::string& people)
{
    const auto attempt = Failing("PM What proj error ", LineShape::TextColonStep);
    mStage = "loop through lists";
    const auto noProject = attempt.Get([&] { return mMain->mStrings->mNoProject; });
    auto result = noProject;
    const FoldedText foldedSubject(subject);
    const FoldedText foldedPeople(people);
    for (const auto* list : { &mHighProjects, &mMediumProjects, &mLowProjects }) {
        if (result == noProject) {
            attempt([&] { result = TestProjectList(*list, foldedSubject, foldedPeople); });
        }
    }
    Trace(Concatenated({ "PM What Proj: ", subject, " ", people, " = ", result }));
    return result;
}

std::string TempodialProjectManager::TestProjectList(
    const ProjectList& list, const FoldedText& subject, const FoldedText& people)
{
    const auto attempt = Failing("PM TestProjectList error ", LineShape::TextColonStep);
    mStage = "loop through list";
    for (std::int32_t index = 1; index <= list.Count(); ++index) {
        auto& project = *list.Item(index);
        // kept: people are asked although the subject holds an excluded word
        if (attempt.Get([&] { return project.isFoldedSubjectMatch(subject); })
            || (!people.IsEmpty() && attempt.Get([&] { return project.isFoldedPeopleMatch(people); }))) {
            return project.GetName();
        }
    }
    return mMain->mStrings->mNoProject;
}

bool TempodialProjectManager::IsProject(
    const std::string& project, const std::string& subject, const std::string& people)
{
    const auto attempt = Failing("PM Is proj error ", LineShape::TextColonStep);
    mStage = "look for project";
    Trace("PM isProject: " + project + " desc: " + subject);
    const auto found = FindProject(project);
    return attempt.Get([&] {
        const bool subjectMatches = found->isSubjectMatch(subject);
        const bool peopleMatch = found->isPeopleMatch(people);
        return subjectMatches || peopleMatch;
    });
}

std::string TempodialProjectManager::GetProjectSubRule(const std::string& project)
{
    const auto attempt = Failing("PM get projectsubrule error ", LineShape::TextColonStep);
    return attempt.Get([&] { return FindProject(project)->GetSubjectRule(); });
}

std::string TempodialProjectManager::GetProjectNotSubRule(const std::string& project)
{
    const auto attempt = Failing("PM get projectnosubrule error ", LineShape::TextColonStep);
    return attempt.Get([&] { return FindProject(project)->GetNotSubjectRule(); });
}

std::string TempodialProjectManager::GetProjectPeopleRule(const std::string& project)
{
    const auto attempt = Failing("PM get projectpeoplerule error ", LineShape::TextColonStep);
    return attempt.Get([&] { return FindProject(project)->GetPeopleRule(); });
}

std::string TempodialProjectManager::GetProjectPrecedence(const std::string& project)
{
    // kept: the words of the people rule
    const auto attempt = Failing("PM get projectpeoplerule error ", LineShape::TextColonStep);
    std::string precedence(Medium);
    attempt([&] { precedence = FindProject(project)->GetPrecedence(); });
    return precedence;
}

}
