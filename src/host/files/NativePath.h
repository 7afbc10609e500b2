#pragma once

#include "host/files/SystemFailure.h"

#include <string>

namespace tempodial {

/// A path as the system is asked for it. One that holds "\" and doesn't exist as it stands is read with "/" instead
/// behind the folders of it that do: what stands in a folder whose own name holds "\" is found and made there.
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
    /// Another name in the folder that the path's last level stands in.
    NativePath Beside(const std::string& name) const;
    /// The failure that an error number means for this path: what is missing is the file (53) or its folder (76).
    SystemFailure FailureOf(int error) const;

    /// A path of the system's own, in which "\" is a character like others. Fails (52) when the text can't be a path.
    static NativePath Exactly(std::string path);
    /// The failure that an error number means where a folder was asked for: what is missing is that (76).
    static SystemFailure FolderFailure(int error);

private:
    struct AsItIs
    {
    };

    NativePath(AsItIs, std::string path);

    std::string mText;
};

}
