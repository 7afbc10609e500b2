#pragma once

#include "host/files/NativePath.h"

#include <string>
#include <string_view>

namespace tempodial {

/// Where a person wants an answer, as it stands when this is made: a file's links are followed, and stay.
class OutputTarget
{
public:
    enum class Kind {
        /// Nothing stands there.
        Absent,
        /// A regular file, which an answer takes the place of.
        File,
        Folder,
        /// A device or a pipe, which an answer is written to.
        Stream,
        /// "-", or a name of what standard output goes to.
        StandardOutput,
    };

    /// Looks at a path; fails (52) when the text can't be one.
    explicit OutputTarget(const std::string& path);

    Kind WhatItIs() const { return mKind; }
    /// The path of a file from the root on, without links; that of anything else as it was given.
    const NativePath& Path() const { return mPath; }
    /// Puts a text there, with the mode of the file that it replaces or of the user's new files. A pipe is waited for
    /// until somebody reads it. Fails as `ReplacementFile` does, and with what is neither file nor stream (70).
    void Write(std::string_view text) const;

private:
    void WriteToStream(std::string_view text) const;

    NativePath mPath;
    Kind mKind;
};

}
