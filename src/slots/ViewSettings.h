#pragma once

#include "base/SettingsFile.h"
#include "slots/PrivacyRules.h"
#include "slots/Program.h"
#include "slots/ViewMaker.h"

#include <vector>

namespace tempodial {

/// The programs of a file of records "program". Fails with `SettingsFileError` for a record, a name or a value that it
/// doesn't know.
std::vector<Program> ProgramsOf(const SettingsFile& file);
/// The rules of a file of records "rule"; fails as `ProgramsOf` does.
std::vector<PrivacyRule> RulesOf(const SettingsFile& file);

/// What views are made by: a user's own programs go before those of the product. Fails as `ProgramsOf` does.
ViewMaker ViewsBy(const SettingsFile& ownPrograms, const SettingsFile& programs, const SettingsFile& rules);

}
