#pragma once

#include "base/OrderedCollection.h"
#include "base/Variant.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TracedObject.h"
#include "engine/projects/TempodialProject.h"
#include "platform/objectmodel/Application.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// All projects, in three lists by precedence, each in the order of names; it tells to which one an activity belongs
/// and keeps the lists in the registry.
class TempodialProjectManager final : public TracedObject
{
public:
    explicit TempodialProjectManager(Ref<const Platform> platform);

    /// Takes what it works with and reads nothing yet.
    void Initialize(const Ref<TempodialMain>& main, const Ref<Application>& application,
        const Ref<NameSpace>& nameSpace, const Ref<TempodialDebugLog>& log);
    void Terminate();
    /// Reads the lists from the registry, or the default list for the first run of a new version, and writes them back.
    void InitProjects();

    /// Escapes a text for XML in place; the result is the same text.
    Variant xmlize(std::string& toXML);
    /// Adds terms to a project's rules; an unknown project is made, whatever its name.
    void UpdateorAddProjectRule(
        const std::string& project, const std::string& newSubRule, const std::string& newPeopleRule);
    /// Adds a project, or changes one unless only adding is wanted; the result is a message for the user, empty when it
    /// went well.
    std::string UpdateorAddProject(const std::string& project, const std::string& subRule,
        const std::string& notSubRule, const std::string& peopleRule, const std::string& precedence, bool addOnly);
    /// Fills the array with all names and the special entries asked for; the result is its upper bound, -1 with the
    /// array untouched when there is nothing to put in.
    Variant GetProjects(
        std::vector<std::string>& projArray, bool withAddProject, bool withNoProject, bool withAllProjects);
    /// The project that the rules give for a subject and, unless empty, people; "No Project" when none does.
    std::string WhatProject(const std::string& subject, const std::string& people);
    /// True when a project's rules match the subject or the people; false for an unknown one.
    bool IsProject(const std::string& project, const std::string& subject, const std::string& people);
    /// Removes a project from all lists.
    void DeleteProject(const std::string& project);
    /// A message for the user when a project may not have that name, else empty.
    std::string ValidateProject(const std::string& project);
    /// The subject rule as typed; empty when there is no such project.
    std::string GetProjectSubRule(const std::string& project);
    /// The not-subject rule as typed; empty when there is no such project.
    std::string GetProjectNotSubRule(const std::string& project);
    /// The people rule as typed; empty when there is no such project.
    std::string GetProjectPeopleRule(const std::string& project);
    /// The precedence; "2" when there is no such project.
    std::string GetProjectPrecedence(const std::string& project);

private:
    using ProjectList = OrderedCollection<Ref<TempodialProject>>;

    void FlushProjects();
    /// Adds the project of a record; true when the record ends the loading.
    bool ParseProject(const std::string& line, std::optional<std::string>& lastName);
    std::string GetXML(std::string name, std::string subjectRule, std::string peopleRule, std::string notSubjectRule,
        std::string precedence);
    void AddProject(const std::string& name, const std::string& subjectRule, const std::string& notSubjectRule,
        const std::string& peopleRule, const std::string& precedence);
    std::string TestProjectList(const ProjectList& list, const FoldedText& subject, const FoldedText& people);
    Ref<TempodialProject> FindProject(const std::string& name);
    ProjectList& GetList(const std::string& precedence);
    void AlphaAdd(ProjectList& list, const Ref<TempodialProject>& project, const std::string& name);

    Ref<NameSpace> mNamespace;
    Ref<TempodialMain> mMain;
    Ref<FileSystemObject> mFileSystem;
    ProjectList mHighProjects;
    ProjectList mMediumProjects;
    ProjectList mLowProjects;
    bool mFlushing = false;
};

}
