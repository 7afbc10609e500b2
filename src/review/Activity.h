#pragma once

#include "host/store/ActivityRows.h"

#include <functional>
#include <string>

namespace tempodial {

/// An activity of a work log, as far as people ask about it.
using Activity = ActivityRow;
/// Gives activities one by one, in no certain order; each stays only for the call.
using ActivityStream = std::function<void(const std::function<void(const Activity& activity)>& take)>;

/// The project of an activity, "No Project" for one that lacks it.
const std::string& ProjectNameOf(const Activity& activity);
/// The subject of an activity without its project, by which rules find it.
std::string RuledSubject(const Activity& activity);
/// True for an activity that belongs to no project.
bool IsUnassigned(const Activity& activity);

}
