#pragma once

#include "engine/projects/ProjectRule.h"
#include "session/Profile.h"

#include <string>
#include <vector>

namespace tempodial {

/// A project with its rules made ready for trying.
struct RuledProject
{
    std::string name;
    /// "1", "2" or "3".
    std::string precedence;
    /// The rules as they are kept.
    std::string subjectRule;
    std::string notSubjectRule;
    std::string peopleRule;
    ProjectRule subject = ProjectRule::ForSubjects(subjectRule);
    ProjectRule notSubject = ProjectRule::ForSubjects(notSubjectRule);
    ProjectRule people = ProjectRule::ForPeople(peopleRule);

    /// The projects of a profile's list in the order in which they are tried. The list is as the add-in left it; what
    /// it wouldn't read, and all that comes behind it, is left out.
    static std::vector<RuledProject> ReadAll(const Profile& profile);
    /// Puts projects into the order in which they are tried.
    static void Sort(std::vector<RuledProject>& projects);
};

}
