#pragma once

#include "driver/Json.h"

#include <map>
#include <string>

namespace tempodial {

/// What a person did, kept for a comparison with other hosts: a file in the folder that TEMPODIAL_KEPT_CASES names, as
/// tests/rig reads it. Without a folder nothing is kept.
class KeptCase
{
public:
    /// Begins the case of the test that runs.
    KeptCase();
    /// Keeps what there is, unless that is nothing.
    ~KeptCase();
    KeptCase(const KeptCase&) = delete;
    KeptCase& operator=(const KeptCase&) = delete;

    /// A file of the data folder was written.
    void Wrote(const std::string& name, const std::string& text) { mFiles[name] = text; }
    /// A command was done.
    void Did(const Json& command);

private:
    std::string mPath;
    std::map<std::string, std::string> mFiles;
    std::string mCommands;
};

}
