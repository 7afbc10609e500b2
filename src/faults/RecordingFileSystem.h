#pragma once

#include "faults/Problems.h"
#include "platform/system/FileSystemObject.h"

#include <string>

namespace tempodial {

/// A file system that notes which files couldn't be read, written, copied, moved or deleted, and fails as before. That
/// a file is absent, or at its end, is no problem.
class RecordingFileSystem final : public FileSystemObject
{
public:
    RecordingFileSystem(Ref<FileSystemObject> inner, Ref<Problems> problems);

    std::string GetSpecialFolder(SpecialFolder folder) override;
    std::string BuildPath(const std::string& path, const std::string& name) override;
    bool FolderExists(const std::string& path) override;
    void CreateFolder(const std::string& path) override;
    Folder GetFolder(const std::string& path) override;
    bool FileExists(const std::string& path) override;
    File GetFile(const std::string& path) override;
    void MoveFile(const std::string& source, const std::string& target) override;
    void CopyFile(const std::string& source, const std::string& target, bool overwrite) override;
    void DeleteFile(const std::string& path, bool force) override;
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override;

private:
    Ref<FileSystemObject> mInner;
    Ref<Problems> mProblems;
};

}
