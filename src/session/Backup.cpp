#include "session/Backup.h"

#include "host/files/ArchiveFile.h"
#include "host/files/FileDescriptor.h"
#include "host/files/PackedFiles.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "host/store/MailboxCopy.h"
#include "session/ProductFacts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 5> EndsOfProcesses { "-wal", "-shm", "-journal", ".lock", ".sock" };

/// A copy of the mailbox beside the backup that it goes into, gone with this.
class CopiedMailbox
{
public:
    CopiedMailbox(const Profile& profile, const NativePath& backup)
        : mPath(backup.Beside("." + backup.Name() + ".mailbox"))
    {
        Discard(mPath); // left over from a run that was killed
        try {
            CopyMailbox(profile.Mailbox(), mPath);
            // With its own time the same mailbox makes the same backup, whenever that is.
            const auto changed
                = FileDescriptor(NativePath::Exactly(profile.Path() + "/" + MailboxFileName), Opening::Reading)
                      .ModificationTime();
            FileDescriptor(mPath, Opening::Writing).SetModificationTime(changed);
        } catch (...) {
            Discard(mPath);
            throw;
        }
    }
    ~CopiedMailbox() { Discard(mPath); }
    CopiedMailbox(const CopiedMailbox&) = delete;
    CopiedMailbox& operator=(const CopiedMailbox&) = delete;

    const NativePath& Path() const { return mPath; }

private:
    NativePath mPath;
};

}

BackupContent BackUp(const Profile& profile, const NativePath& file)
{
    // The file's place first: where nothing can be written the mailbox need not be copied.
    ReplacementFile backup(file);
    const CopiedMailbox mailbox(profile, file);
    const std::string top = BackupFolderName;
    const auto isFile = [](const std::string& name) { return !IsOfProcesses(name); };
    PackedFiles files;
    files.AddFolder(top);
    files.AddFile(top + "/" + MailboxFileName, mailbox.Path());
    files.AddContent(top, NativePath::Exactly(profile.Path()),
        [&](const std::string& name) { return isFile(name) && name != MailboxFileName && name != DataFolderName; });
    // It may be a link to a folder elsewhere.
    const auto data = NativePath::Exactly(profile.DataFolder());
    if (const auto status = StatusAt(data, Links::Followed); status && status->kind == FileStatus::Kind::Folder) {
        files.AddFolder(top + "/" + DataFolderName);
        files.AddContent(top + "/" + DataFolderName, data, isFile);
    }
    ArchiveFile::Pack(files, [&backup](std::string_view bytes) { backup.Write(bytes); });
    backup.Commit();
    return { files.Files(), files.LeftOut() };
}

bool IsOfProcesses(const std::string& name)
{
    constexpr auto leftover = ".new";
    const bool isLeft = name.ends_with(leftover) && (name.front() == '.' || name.starts_with(MailboxFileName));
    return isLeft || std::any_of(EndsOfProcesses.begin(), EndsOfProcesses.end(), [&name](std::string_view end) {
        return name.ends_with(end);
    });
}

}
