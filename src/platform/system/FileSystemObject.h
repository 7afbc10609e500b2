#pragma once

#include "base/Date.h"
#include "base/Ref.h"
#include "platform/system/TextStream.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What a text file is opened for.
enum class OpenMode : std::int32_t { Reading = 1, Writing = 2, Appending = 8 };

/// Which special folder is meant.
enum class SpecialFolder : std::int32_t { Temporary = 2 };

/// A file as it was when it was looked up.
struct File
{
    std::string name;
    std::string path;
    /// Bytes.
    std::int64_t size;
    /// When it came into being.
    Date dateCreated;
};

/// A folder as it was when it was looked up.
struct Folder
{
    std::string path;
    /// Its files in the order of their names.
    std::vector<File> files;
};

/// Files and folders.
class FileSystemObject
{
public:
    virtual ~FileSystemObject() = default;

    /// The path of a special folder.
    virtual std::string GetSpecialFolder(SpecialFolder folder) = 0;
    /// A path and a name joined by one separator; the parts stay as they are otherwise.
    virtual std::string BuildPath(const std::string& path, const std::string& name) = 0;
    virtual bool FolderExists(const std::string& path) = 0;
    /// Makes the last level of a path; one that exists fails (58), an absent parent (76).
    virtual void CreateFolder(const std::string& path) = 0;
    /// A folder with its files; an absent one fails (76).
    virtual Folder GetFolder(const std::string& path) = 0;
    virtual bool FileExists(const std::string& path) = 0;
    /// A file; an absent one fails (53).
    virtual File GetFile(const std::string& path) = 0;
    /// Moves a file; an absent source fails (53), an existing target (58), an absent folder (76).
    virtual void MoveFile(const std::string& source, const std::string& target) = 0;
    /// Copies a file, safe on disk when it returns; an absent source fails (53), an existing target that may not be
    /// overwritten (58), an absent folder (76).
    virtual void CopyFile(const std::string& source, const std::string& target, bool overwrite) = 0;
    /// Deletes a file; an absent one fails (53), a read-only one without force (70).
    virtual void DeleteFile(const std::string& path, bool force) = 0;
    /// Opens a text file; an absent one that may not be made fails (53), an absent folder (76), one that is locked, a
    /// folder or forbidden (70).
    virtual Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) = 0;
};

}
