#include "host/system/HostFileSystem.h"

#include "host/files/FolderDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "host/system/FileAppender.h"
#include "host/system/FileReader.h"
#include "host/system/FileReplacer.h"
#include "portable/JoinedPath.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

/// What stands at a path itself, not behind a link; fails as a file operation does when nothing does or a folder.
FileStatus StatusOfFile(const NativePath& path)
{
    const auto status = StatusOf(path, Links::Taken);
    if (status.kind == FileStatus::Kind::Folder) {
        throw Failure(Error::PermissionDenied);
    }
    return status;
}

}

HostFileSystem::HostFileSystem(std::string temporaryFolder)
    : mTemporaryFolder(std::move(temporaryFolder))
{
}

std::string HostFileSystem::GetSpecialFolder(SpecialFolder)
{
    return mTemporaryFolder;
}

std::string HostFileSystem::BuildPath(const std::string& path, const std::string& name)
{
    return JoinedPath(path, name, '/');
}

bool HostFileSystem::FolderExists(const std::string& path)
{
    const auto status = StatusAt(NativePath(path), Links::Followed);
    return status && status->kind == FileStatus::Kind::Folder;
}

void HostFileSystem::CreateFolder(const std::string& path)
{
    MakeFolder(NativePath(path));
}

Folder HostFileSystem::GetFolder(const std::string& path)
{
    Folder folder { path, {} };
    for (const auto& entry : FolderDescriptor(NativePath(path)).Files()) {
        folder.files.push_back(FileOf(entry.name, BuildPath(path, entry.name), entry.status));
    }
    std::sort(folder.files.begin(), folder.files.end(), [](const File& a, const File& b) { return a.name < b.name; });
    return folder;
}

bool HostFileSystem::FileExists(const std::string& path)
{
    const auto status = StatusAt(NativePath(path), Links::Followed);
    return status && status->kind != FileStatus::Kind::Folder;
}

File HostFileSystem::GetFile(const std::string& path)
{
    if (const auto status = mAppended.LookAgain(path)) {
        return FileOf(mAppended.Name(), path, *status);
    }
    const NativePath native(path);
    const auto status = StatusOf(native, Links::Followed);
    if (status.kind != FileStatus::Kind::File) {
        throw Failure(Error::PermissionDenied);
    }
    mAppended.Seen(path, native, status);
    return FileOf(native.Name(), path, status);
}

void HostFileSystem::MoveFile(const std::string& source, const std::string& target)
{
    RequireChangeable();
    mAppended.Forget();
    const NativePath from(source);
    StatusOfFile(from);
    RenameToAbsent(from, NativePath(target));
}

void HostFileSystem::CopyFile(const std::string& source, const std::string& target, bool overwrite)
{
    RequireChangeable();
    mAppended.Forget();
    const FileDescriptor from(NativePath(source), Opening::Reading);
    from.RequireUnlocked();
    const auto changed = from.ModificationTime();
    const NativePath to(target);
    if (!overwrite && StatusAt(to, Links::Taken)) {
        throw Failure(Error::FileExists);
    }
    ReplacementFile copy(to);
    std::array<char, 65536> buffer {};
    while (const auto count = from.Read(buffer.data(), buffer.size())) {
        copy.Write({ buffer.data(), count });
    }
    copy.SetModificationTime(changed);
    copy.Commit();
}

void HostFileSystem::DeleteFile(const std::string& path, bool force)
{
    RequireChangeable();
    mAppended.Forget();
    const NativePath native(path);
    const auto status = StatusOfFile(native);
    if (!force && status.kind == FileStatus::Kind::File && !status.isWritable) {
        throw Failure(Error::PermissionDenied);
    }
    Remove(native);
}

Ref<TextStream> HostFileSystem::OpenTextFile(const std::string& path, OpenMode mode, bool create)
{
    switch (mode) {
    case OpenMode::Reading:
        return MakeRef<FileReader>(NativePath(path), create);
    case OpenMode::Writing:
        mAppended.Forget();
        RequireChangeable();
        return MakeRef<FileReplacer>(NativePath(path), create, mBeforeChange);
    case OpenMode::Appending:
        return MakeRef<FileAppender>(mAppended.Open(path, create));
    }
    throw Failure(Error::InvalidCall);
}

File HostFileSystem::FileOf(const std::string& name, std::string path, const FileStatus& status)
{
    return { name, std::move(path), static_cast<std::int64_t>(status.size), mLocalTime.At(status.created) };
}

void HostFileSystem::RequireChangeable() const
{
    if (mBeforeChange) {
        mBeforeChange();
    }
}

}
