#pragma once

#include "scenarios/ProfileState.h"
#include "support/ProgramFixture.h"

#include <filesystem>
#include <functional>
#include <map>
#include <string>

namespace tempodial {

/// A profile with tracker files of three days, which is synced while something is wrong with the world.
class TroubleFixture : public ProgramFixture
{
protected:
    static constexpr auto Live = "tracker_granules20061010.out";

    TroubleFixture();

    static std::vector<std::string> SlotsOf(const std::string& day, int count);
    /// Puts the tracker files of the three days into the profile.
    void WriteDays() const;
    ProgramResult Sync() const;
    /// A run that ended in a way that is told: done, or each problem in a line that says what to do.
    static void ExpectTold(const ProgramResult& result);
    /// The next sync has nothing to complain of, and all is as if nothing had been wrong.
    void ExpectNextSyncCompletes() const;
    /// The next sync has nothing to complain of, and the activities and the history are as if nothing had been wrong.
    void ExpectNextSyncImportsAll() const;
    /// The files of a state, each with a mark of what it holds.
    static std::map<std::string, std::string> FilesOf(const ProfileState& state);

    ProfileState mExpected;
};

}
