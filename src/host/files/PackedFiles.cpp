#include "host/files/PackedFiles.h"

#include "host/files/FolderDescriptor.h"
#include "host/files/PathOperations.h"

#include <algorithm>

namespace tempodial {

namespace {

/// Levels of folders that are packed.
constexpr std::ptrdiff_t MostFolders = 6;

}

void PackedFiles::AddFolder(const std::string& path)
{
    mParts.push_back({ path, std::nullopt });
}

void PackedFiles::AddFile(const std::string& path, const NativePath& file)
{
    mParts.push_back({ path, file });
    ++mFiles;
}

void PackedFiles::AddContent(
    const std::string& path, const NativePath& folder, const std::function<bool(const std::string& name)>& isMeant)
{
    for (const auto& entry : FolderDescriptor(folder).Everything()) {
        if (!isMeant(entry.name)) {
            continue;
        }
        const auto inside = path + "/" + entry.name;
        const auto native = NativePath::Exactly(folder.Text() + "/" + entry.name);
        const auto status = StatusAt(native, Links::Followed);
        if (status && status->kind == FileStatus::Kind::File) {
            AddFile(inside, native);
        } else if (entry.status.kind == FileStatus::Kind::Folder
            && std::count(inside.begin(), inside.end(), '/') <= MostFolders) {
            AddFolder(inside);
            AddContent(inside, native, isMeant);
        } else {
            mLeftOut.push_back(native.Text());
        }
    }
}

bool PackedFiles::Next(ArchiveMember& member)
{
    mFile.reset();
    if (mNext == mParts.size()) {
        return false;
    }
    const auto& part = mParts[mNext++];
    member = { .kind = ArchiveMember::Kind::Folder, .path = part.path };
    if (part.file) {
        mFile.emplace(*part.file, Opening::Reading);
        member.kind = ArchiveMember::Kind::File;
        member.size = mFile->Status().size;
        member.changed = mFile->ModificationTime().tv_sec;
    }
    return true;
}

std::size_t PackedFiles::Read(char* buffer, std::size_t length)
{
    const auto count = mFile->Read(buffer, length);
    if (count == 0) {
        throw Failure(Error::DeviceError, mParts[mNext - 1].file->Text() + " became shorter while it was read");
    }
    return count;
}

}
