#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// What a person has put into the form of the project settings, and hasn't saved.
struct RuleEdit
{
    std::string project;
    std::string subjectRule;
    std::string notSubjectRule;
    /// "1", "2" or "3"; empty when the text names none, with which nothing can be saved.
    std::string precedence;
    /// How many days up to today the project is applied back to; 0 for a text that is no such number.
    std::int32_t days = 0;
    /// The project is applied back when the form is saved.
    bool isAppliedBack = false;
    /// Saving keeps these rules; otherwise those that are kept stay.
    bool isChanged = false;

    friend bool operator==(const RuleEdit&, const RuleEdit&) = default;
};

}
