#pragma once

#include "cli/Options.h"
#include "cli/Reply.h"
#include "review/ProjectMoves.h"
#include "review/RulePreview.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// What is answered where rules are applied to past activities, or would be.

/// The machine-readable answer to activities that came to other projects, or would.
JsonValue ChangesJson(const ProjectMoves& moves, std::int64_t keptByHand);
/// The answer to a preview, in both forms.
Reply PreviewReply(const RulePreview& preview);
/// The sum of a change, and of what a person's choice kept from it: lines that each end in a line feed.
std::string ChangesSum(std::int64_t changed, std::int64_t keptByHand);
/// Names on standard error, at once, the activities that come to a project although they belong to another by
/// precedence.
void TellDisputed(const RulePreview& preview, const Options& options);

}
