#pragma once

#include "engine/foundation/TracedObject.h"

#include <string>

namespace tempodial {

/// The data folder, which the tracker writes to as well, and the test for Outlook's security prompt.
class TempodialCommonUtils final : public TracedObject
{
public:
    explicit TempodialCommonUtils(Ref<const Platform> platform);

    /// Stores the log, the name of the data folder and Outlook's version.
    void Initialize(const Ref<TempodialDebugLog>& applog, const std::string& fnam, const std::string& version);
    /// Lets its references go.
    void Terminate();

    /// The path of the data folder, which is made when it is absent.
    std::string GetDataFolderName();
    /// The data folder with its files, nothing when it can't be had.
    Ref<const Folder> GetDataFolder();
    /// The path of a file in the data folder, whether or not the file exists.
    std::string GetDataFilePath(const std::string& filename);
    /// Opens a file of the data folder; nothing when that fails.
    Ref<TextStream> OpenDataFile(const std::string& filename, bool createIt, OpenMode mode);

    /// True when the use of Outlook's e-mail objects would raise the security prompt.
    bool EmailObjectGuardInPlace();
    /// Remembers that the prompt was seen; a user who may not write there forgets it with this run.
    void MarkEmailObjectGuardInPlace();

private:
    /// The path of the data folder, which is made when it is absent.
    const std::string& DataFolder();
    /// True when a policy of the site guards the e-mail objects.
    bool PolicyInPlace(const Attempt& attempt);

    Ref<FileSystemObject> mFileSystem;
    std::string mDataFolderName;
    std::string mFolderBaseName;
    std::string mOutlookVersion;
};

}
