#pragma once

#include "cli/ShownText.h"
#include "terminal/ExitStatus.h"
#include "terminal/JsonValue.h"

#include <string>
#include <vector>

namespace tempodial {

/// What a command answers, in both forms in which it can be printed.
struct Reply
{
    /// The machine-readable answer; null when there is none, and then nothing is printed.
    JsonValue document;
    /// The same as text, without a line feed behind it, where it is too large to be held twice; printed in its place.
    std::string documentText;
    /// An answer for other programs as well, printed byte for byte before the text. On a terminal it is made harmless.
    std::string content;
    /// True when the content goes where the user told it to, and not to a pager.
    bool isRedirected = false;
    /// The answer for people.
    ShownText text;
    /// What stands behind it unless the run is quiet: lines that each end in a line feed.
    std::string summary;
    /// What is told beside the answer on standard error, unless the run is quiet: a line each.
    std::vector<std::string> notes;
    /// What may not be as it was meant, a message each, quiet or not.
    std::vector<std::string> warnings;
    /// What couldn't be done, a message each.
    std::vector<std::string> complaints;
    /// What may be of use beside the answer unless the run is quiet, a message each.
    std::vector<std::string> remarks;
    ExitStatus status = ExitStatus::Done;
};

}
