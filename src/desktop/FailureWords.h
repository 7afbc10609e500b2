#pragma once

#include "base/Failure.h"

#include <exception>
#include <string>

namespace tempodial {

/// What a person is told of something that failed: the failure's own words, and what to do where those don't say it.
/// The folder is that in which the profile lies.
std::string FailureSentence(const std::exception& failure, const std::string& folder);

/// What a person is told of a mailbox of which a read has met damage, a failing disk or a want of memory, after which
/// nothing more is written.
std::string TroubleSentence(const Failure& trouble);

}
