#include "cli/GivenProject.h"

#include "cli/CommandError.h"
#include "cli/KnownProject.h"
#include "cli/ProjectNames.h"
#include "terminal/TerminalText.h"

namespace tempodial {

namespace {

constexpr auto MediumPrecedence = "2";

}

GivenProject::GivenProject(TempodialMain& addIn, const std::string& name)
    : mAddIn(addIn)
    , mName(KnownProject::NameOrNew(addIn, name))
    , mWasListed(KnownProject::IsListed(addIn, mName))
{
    if (const auto refusal = addIn.ValidateProject(mName); !IsNoProject(mName) && !refusal.empty()) {
        throw CommandError(refusal);
    }
}

void GivenProject::Make() const
{
    mAddIn.UpdateorAddProject(mName, "", "", "", MediumPrecedence, true);
}

void GivenProject::NoteIfAdded(Reply& reply) const
{
    if (!mWasListed && KnownProject::IsListed(mAddIn, mName)) {
        reply.notes.push_back("Added: the project " + IsolatedLine(mName));
    }
}

}
