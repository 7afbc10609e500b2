#pragma once

#include "review/RuledProject.h"

#include <string>

namespace tempodial {

/// A project with those rules, as typed.
inline RuledProject Ruled(const std::string& name, const std::string& precedence, const std::string& subject,
    const std::string& notSubject = "", const std::string& people = "")
{
    return { .name = name,
        .precedence = precedence,
        .subjectRule = subject,
        .notSubjectRule = notSubject,
        .peopleRule = people };
}

}
