#pragma once

#include "base/Failure.h"

#include <string>

namespace tempodial {

/// A path as the system is asked for it: one that holds "\" and doesn't exist as it stands is read with "/" instead.
class NativePath
{
public:
    /// Fails (52) when the text can't be a path.
    explicit NativePath(std::string path);

    const std::string& Text() const { return mText; }
    const char* CText() const { return mText.c_str(); }
    /// The folder that the path's last level stands in.
    std::string Folder() const;
    /// The last level.
    std::string Name() const;
    /// The failure that an error number means for this path: what is missing is the file (53) or its folder (76).
    Failure FailureOf(int error) const;

private:
    std::string mText;
};

}
