#pragma once

#include "addin/win32/FileText.h"
#include "platform/system/FileSystemObject.h"

#include <string>

namespace tempodial {

/// Files and folders as the system has them.
class Win32FileSystem final : public FileSystemObject
{
public:
    explicit Win32FileSystem(const FileText& text)
        : mText(text)
    {
    }

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
    FileText mText;
};

}
