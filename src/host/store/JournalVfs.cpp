#include "host/store/JournalVfs.h"

#include <sqlite3.h>

#include <cerrno>
#include <string_view>
#include <unistd.h>

namespace tempodial {

namespace {

constexpr auto VfsName = "tempodial-mailbox";
constexpr std::string_view JournalSuffix = "-wal";
constexpr int HeadSize = 32;

/// What SQLite holds of an open journal; behind it in memory stands what its own way to files holds of it.
struct JournalFile
{
    sqlite3_file base;
    /// The size after the last flush. Another size tells that somebody else has written too.
    sqlite3_int64 flushedSize;
    /// True when the disk may not have all of it.
    bool isUnflushed;
    /// True until there is more in it than a head.
    bool isEmpty;
};

JournalFile& Journal(sqlite3_file* file)
{
    return *reinterpret_cast<JournalFile*>(file);
}

sqlite3_file* Inner(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<char*>(file) + sizeof(JournalFile));
}

int Close(sqlite3_file* file)
{
    return Inner(file)->pMethods->xClose(Inner(file));
}

int Read(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset)
{
    return Inner(file)->pMethods->xRead(Inner(file), buffer, amount, offset);
}

int Write(sqlite3_file* file, const void* buffer, int amount, sqlite3_int64 offset)
{
    auto& journal = Journal(file);
    journal.isUnflushed = true;
    journal.isEmpty = journal.isEmpty && offset + amount <= HeadSize;
    return Inner(file)->pMethods->xWrite(Inner(file), buffer, amount, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    Journal(file).isUnflushed = true;
    return Inner(file)->pMethods->xTruncate(Inner(file), size);
}

int FileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return Inner(file)->pMethods->xFileSize(Inner(file), size);
}

int Sync(sqlite3_file* file, int flags)
{
    auto& journal = Journal(file);
    sqlite3_int64 size = 0;
    const bool isSizeKnown = FileSize(file, &size) == SQLITE_OK;
    // Nothing follows from a head without a commit, and the commit flushes both.
    const bool isHeadAlone = journal.isEmpty && size <= HeadSize;
    const bool isFlushed = !journal.isUnflushed && size == journal.flushedSize;
    if (isSizeKnown && (isHeadAlone || isFlushed)) {
        return SQLITE_OK;
    }
    const int result = Inner(file)->pMethods->xSync(Inner(file), flags);
    journal.isUnflushed = result != SQLITE_OK || !isSizeKnown;
    journal.flushedSize = size;
    return result;
}

int Lock(sqlite3_file* file, int level)
{
    return Inner(file)->pMethods->xLock(Inner(file), level);
}

int Unlock(sqlite3_file* file, int level)
{
    return Inner(file)->pMethods->xUnlock(Inner(file), level);
}

int CheckReservedLock(sqlite3_file* file, int* isReserved)
{
    return Inner(file)->pMethods->xCheckReservedLock(Inner(file), isReserved);
}

int FileControl(sqlite3_file* file, int operation, void* argument)
{
    return Inner(file)->pMethods->xFileControl(Inner(file), operation, argument);
}

int SectorSize(sqlite3_file* file)
{
    return Inner(file)->pMethods->xSectorSize(Inner(file));
}

int DeviceCharacteristics(sqlite3_file* file)
{
    return Inner(file)->pMethods->xDeviceCharacteristics(Inner(file));
}

const sqlite3_io_methods& Methods()
{
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods table {};
        table.iVersion = 1;
        table.xClose = Close;
        table.xRead = Read;
        table.xWrite = Write;
        table.xTruncate = Truncate;
        table.xSync = Sync;
        table.xFileSize = FileSize;
        table.xLock = Lock;
        table.xUnlock = Unlock;
        table.xCheckReservedLock = CheckReservedLock;
        table.xFileControl = FileControl;
        table.xSectorSize = SectorSize;
        table.xDeviceCharacteristics = DeviceCharacteristics;
        return table;
    }();
    return methods;
}

/// SQLite's own way to files, from the time before this one was made known.
sqlite3_vfs& Own()
{
    static auto* const own = sqlite3_vfs_find(nullptr);
    return *own;
}

/// Opens a journal; a new one has its name on the disk afterwards.
int OpenInner(const char* name, sqlite3_file* inner, int flags, int* flagsFound)
{
    // SQLite flushes the folder for each journal that it may make, whether or not it had to.
    const bool isThere = ::access(name, F_OK) == 0;
    const int result = Own().xOpen(&Own(), name, inner, isThere ? flags & ~SQLITE_OPEN_CREATE : flags, flagsFound);
    return result != SQLITE_OK || isThere ? result : inner->pMethods->xSync(inner, SQLITE_SYNC_NORMAL);
}

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsFound)
{
    if ((flags & SQLITE_OPEN_WAL) == 0) {
        return Own().xOpen(&Own(), name, file, flags, flagsFound);
    }
    file->pMethods = nullptr;
    auto* const inner = Inner(file);
    int result = OpenInner(name, inner, flags, flagsFound);
    sqlite3_int64 size = 0;
    if (result == SQLITE_OK) {
        result = inner->pMethods->xFileSize(inner, &size);
    }
    if (result != SQLITE_OK) {
        if (inner->pMethods != nullptr) {
            inner->pMethods->xClose(inner);
        }
        return result;
    }
    auto& journal = Journal(file);
    journal.flushedSize = 0;
    // What stands in it may come from a run that ended before it was flushed.
    journal.isUnflushed = true;
    journal.isEmpty = size == 0;
    journal.base.pMethods = &Methods();
    return SQLITE_OK;
}

int Delete(sqlite3_vfs*, const char* name, int flushesFolder)
{
    if (!std::string_view(name).ends_with(JournalSuffix)) {
        return Own().xDelete(&Own(), name, flushesFolder);
    }
    if (::truncate(name, 0) == 0) {
        return SQLITE_OK;
    }
    return errno == ENOENT ? SQLITE_IOERR_DELETE_NOENT : SQLITE_IOERR_DELETE;
}

}

const char* JournalVfs::Name()
{
    static sqlite3_vfs vfs = [] {
        auto copy = Own();
        copy.pNext = nullptr;
        copy.zName = VfsName;
        copy.szOsFile += static_cast<int>(sizeof(JournalFile));
        copy.xOpen = Open;
        copy.xDelete = Delete;
        return copy;
    }();
    static const int registered = sqlite3_vfs_register(&vfs, 0);
    return registered == SQLITE_OK ? VfsName : nullptr;
}

}
