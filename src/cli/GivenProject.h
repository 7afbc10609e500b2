#pragma once

#include "cli/Reply.h"
#include "engine/core/TempodialMain.h"

#include <string>

namespace tempodial {

/// The project that a command gives to activities. One that isn't in the list comes into being.
class GivenProject
{
public:
    /// Fails with a `CommandError` for a name that the add-in refuses.
    GivenProject(TempodialMain& addIn, const std::string& name);

    /// The name as it is kept.
    const std::string& Name() const { return mName; }
    /// Adds it to the list when it isn't there.
    void Make() const;
    /// Tells that it was added, if it was.
    void NoteIfAdded(Reply& reply) const;

private:
    TempodialMain& mAddIn;
    std::string mName;
    bool mWasListed;
};

}
