#pragma once

#include "addin/base/Windows.h"

#include <string>

namespace tempodial {

/// What the registry says of the add-in: the class that COM makes, and the add-in that Outlook loads.
class Registration
{
public:
    /// Takes the path of the module.
    explicit Registration(std::string module);

    /// Writes the class for all users, or where that isn't permitted for this user alone, and the add-in for this user.
    /// Fails with `Failure` when neither is permitted.
    void Write() const;
    /// Takes away what `Write` wrote; what isn't there, or isn't permitted, stays.
    static void Remove();

private:
    void WriteClass(HKEY hive) const;

    std::string mModule;
};

}
