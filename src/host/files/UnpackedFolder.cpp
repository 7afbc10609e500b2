#include "host/files/UnpackedFolder.h"

#include "host/files/ArchiveFile.h"
#include "host/files/PathOperations.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

constexpr std::size_t MostMembers = 100000;
constexpr std::size_t MostLevels = 8;
constexpr std::size_t LongestName = 255;

std::vector<std::string> LevelsOf(const std::string& path)
{
    std::vector<std::string> levels;
    std::size_t begin = 0;
    for (auto end = path.find('/'); end != std::string::npos; end = path.find('/', begin)) {
        levels.push_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    levels.push_back(path.substr(begin));
    return levels;
}

/// True for a name that stands for nothing but itself, wherever it is read.
bool IsPlain(const std::string& name)
{
    const bool isReadable = std::none_of(name.begin(), name.end(), [](char character) {
        const auto byte = static_cast<unsigned char>(character);
        return byte < ' ' || character == '\\' || byte == 0x7f; // NOLINT(readability-magic-numbers): delete
    });
    return isReadable && !name.empty() && name != "." && name != ".." && name.size() <= LongestName;
}

[[noreturn]] void RefuseMember(const std::string& path, const std::string& reason)
{
    throw ArchiveError("it holds \"" + path + "\", " + reason);
}

}

UnpackedFolder::UnpackedFolder(
    const NativePath& path, std::string top, std::function<bool(const std::string& name)> isRefused)
    : mPath(path)
    , mTop(std::move(top))
    , mIsRefused(std::move(isRefused))
{
    if (StatusAt(path, Links::Taken)) {
        if (!FolderDescriptor(path).TryLock()) {
            throw Failure(Error::PermissionDenied, "another process unpacks a backup there");
        }
        RemoveFolder(path);
    }
    MakeFolder(path);
    mFolder.emplace(path);
    (void)mFolder->TryLock();
}

UnpackedFolder::~UnpackedFolder()
{
    if (!mIsKept) {
        mFile.reset();
        try {
            RemoveFolder(mPath);
        } catch (const Failure&) {
            // The next one that is unpacked there removes it.
        }
    }
}

void UnpackedFolder::Begin(const ArchiveMember& member)
{
    EndFile();
    const auto below = PathBelow(member);
    const bool isFolder = member.kind == ArchiveMember::Kind::Folder;
    if (below.empty()) {
        if (!isFolder) {
            RefuseMember(member.path, "which is no folder");
        }
        return;
    }
    MakeFoldersFor(below);
    const auto [known, isNew] = mMembers.emplace(below, isFolder);
    if (!isNew && !(isFolder && known->second)) {
        RefuseMember(member.path, "and that twice");
    }
    if (mMembers.size() > MostMembers) {
        throw ArchiveError("it holds more files than a backup does");
    }
    if (isFolder && isNew) {
        MakeFolder(PathOf(below));
    } else if (!isFolder) {
        mFile.emplace(PathOf(below), Opening::New);
        mChanged = member.changed;
        ++mFiles;
    }
}

void UnpackedFolder::Write(std::string_view bytes)
{
    if (mFile) {
        mFile->Write(bytes);
    }
}

void UnpackedFolder::Finish()
{
    EndFile();
    for (const auto& [path, isFolder] : mMembers) {
        if (isFolder) {
            FolderDescriptor(PathOf(path)).Sync();
        }
    }
    mFolder->Sync();
}

void UnpackedFolder::EndFile()
{
    if (mFile) {
        mFile->SetModificationTime({ mChanged, 0 });
        mFile->Sync();
        mFile->Close();
        mFile.reset();
    }
}

std::string UnpackedFolder::PathBelow(const ArchiveMember& member) const
{
    if (member.kind == ArchiveMember::Kind::Other) {
        RefuseMember(member.path, "which is neither a file nor a folder");
    }
    const auto levels = LevelsOf(member.path);
    if (!std::all_of(levels.begin(), levels.end(), IsPlain)) {
        RefuseMember(member.path, "which is no name for a file");
    }
    if (levels.front() != mTop) {
        RefuseMember(member.path, "which isn't in \"" + mTop + "\"");
    }
    if (levels.size() > MostLevels) {
        RefuseMember(member.path, "which lies too deep");
    }
    if (std::any_of(levels.begin() + 1, levels.end(), mIsRefused)) {
        RefuseMember(member.path, "which is in no backup");
    }
    return member.path.substr(std::min(mTop.size() + 1, member.path.size()));
}

void UnpackedFolder::MakeFoldersFor(const std::string& path)
{
    for (auto end = path.find('/'); end != std::string::npos; end = path.find('/', end + 1)) {
        const auto above = path.substr(0, end);
        const auto [known, isNew] = mMembers.emplace(above, true);
        if (!known->second) {
            RefuseMember(path, "which stands below a file");
        }
        if (isNew) {
            MakeFolder(PathOf(above));
        }
    }
}

}
