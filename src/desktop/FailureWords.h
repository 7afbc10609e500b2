#pragma once

#include <exception>
#include <string>

namespace tempodial {

/// What a person is told of something that failed: the failure's own words, and what to do where those don't say it.
/// The folder is that in which the profile lies.
std::string FailureSentence(const std::exception& failure, const std::string& folder);

}
