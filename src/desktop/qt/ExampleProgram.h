#pragma once

#include "session/Profile.h"

#include <string>

namespace tempodial {

/// The example: a profile of its own beside the real one, with made-up work, in a program of its own, so that nothing
/// of it can come into the log.
class ExampleProgram
{
public:
    /// Where the example of a profile is.
    static std::string FolderOf(const Profile& profile);
    /// True for a profile that holds the example.
    static bool Is(const Profile& profile);
    /// Removes the example of that folder from the disk, when no program has it open any more; fails as the disk does.
    static void Remove(const std::string& folder);
    /// Makes the example when there is none, and opens it. Fails with a `ProfileError` when that can't be.
    static void Open(const Profile& profile);
};

}
