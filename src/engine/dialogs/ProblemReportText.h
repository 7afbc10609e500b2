#pragma once

#include <string>

namespace tempodial {

/// The text of the mail that reports a problem.
class ProblemReportText
{
public:
    /// The text about a day, in its long form, with what was expected, what happened and the add-in's version.
    static std::string Body(
        const std::string& day, const std::string& expected, const std::string& actual, const std::string& version);
};

}
