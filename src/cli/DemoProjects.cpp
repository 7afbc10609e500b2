#include "cli/DemoProjects.h"

#include "session/ProductFacts.h"

#include <string>

namespace tempodial {

namespace {

struct DemoProject
{
    const char* name;
    /// Words of subjects, with separators between.
    const char* subject;
};

constexpr DemoProject InventedProjects[] {
    { "Accounts", "invoice, invoices, travel expenses, ledger" },
    { "Atlas", "atlas" },
    { "Riverside", "riverside" },
    { "Team", "weekly, minutes, general" },
};

/// True for a list in which some project has a rule.
bool HasRules(const std::string& records)
{
    for (const std::string rule : { "subjrules", "peoplerules" }) {
        const auto begin = "<" + rule + ">";
        for (auto at = records.find(begin); at != std::string::npos; at = records.find(begin, at + 1)) {
            if (records.compare(at + begin.size(), 2, "</") != 0) {
                return true;
            }
        }
    }
    return false;
}

}

void AddDemoProjects(const Profile& profile)
{
    auto records = profile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText();
    if (HasRules(records)) {
        return;
    }
    for (const auto& project : InventedProjects) {
        records += std::string("<project><name>") + project.name + "</name><subjrules>" + project.subject
            + "</subjrules><peoplerules></peoplerules><notsubjrules></notsubjrules><precedence>2</precedence></"
              "project>|";
    }
    profile.Registry()->Write(Hive::CurrentUser, ProductKey, ProjectsValue, records);
}

}
