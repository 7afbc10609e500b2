#pragma once

#include "host/files/AppendedFile.h"
#include "host/system/LocalTime.h"
#include "platform/system/FileSystemObject.h"

#include <functional>
#include <string>

namespace tempodial {

/// The files and folders of the system. Paths may be joined by "\" as well as by "/". Pipes, devices and folders are
/// refused as files (70), and links are never followed for writing.
class HostFileSystem : public FileSystemObject
{
public:
    /// Called, when it is set, before anything is changed but for what is appended to a file; when it fails, so does
    /// the change.
    std::function<void()> mBeforeChange;

    /// Takes the folder that stands in for the temporary folder.
    explicit HostFileSystem(std::string temporaryFolder);

    std::string GetSpecialFolder(SpecialFolder folder) override;
    std::string BuildPath(const std::string& path, const std::string& name) override;
    bool FolderExists(const std::string& path) override;
    void CreateFolder(const std::string& path) override;
    Folder GetFolder(const std::string& path) override;
    /// True for whatever stands at the path but a folder.
    bool FileExists(const std::string& path) override;
    File GetFile(const std::string& path) override;
    void MoveFile(const std::string& source, const std::string& target) override;
    void CopyFile(const std::string& source, const std::string& target, bool overwrite) override;
    void DeleteFile(const std::string& path, bool force) override;
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override;

private:
    File FileOf(const std::string& name, std::string path, const FileStatus& status);
    void RequireChangeable() const;

    std::string mTemporaryFolder;
    LocalTime mLocalTime;
    AppendedFile mAppended;
};

}
