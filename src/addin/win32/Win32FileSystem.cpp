#include "addin/win32/Win32FileSystem.h"

#include "addin/base/SystemText.h"
#include "addin/win32/AppendingStream.h"
#include "addin/win32/ErrorFailure.h"
#include "addin/win32/LocalTime.h"
#include "addin/win32/ReadingStream.h"
#include "addin/win32/ReplacingStream.h"
#include "portable/JoinedPath.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>

namespace tempodial {

namespace {

constexpr char Separator = '\\';
constexpr unsigned BitsOfPart = 32;

/// What the system keeps of a file.
using FileFacts = WIN32_FILE_ATTRIBUTE_DATA;

/// What stands at a path, nothing when nothing does or it can't be reached.
std::optional<FileFacts> FactsAt(const std::string& path)
{
    FileFacts facts {};
    if (GetFileAttributesExW(Wide(path).c_str(), GetFileExInfoStandard, &facts) == FALSE) {
        return std::nullopt;
    }
    return facts;
}

bool IsFolder(DWORD attributes)
{
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// The facts of a file that must be there.
FileFacts FactsOfFile(const std::string& path)
{
    const auto facts = FactsAt(path);
    if (!facts) {
        throw Failure(Error::FileNotFound);
    }
    if (IsFolder(facts->dwFileAttributes)) {
        throw Failure(Error::PermissionDenied);
    }
    return *facts;
}

/// A moment in the zone and the season in which it was.
Date LocalMoment(const FILETIME& time)
{
    SYSTEMTIME universal {};
    SYSTEMTIME local {};
    if (FileTimeToSystemTime(&time, &universal) == FALSE
        || SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) == FALSE) {
        throw FailureOfLastError();
    }
    return FromSystemTime(local);
}

/// A file by what the system tells of it, when it looks it up or lists it.
template <class Facts> File FileOf(const std::string& name, const std::string& path, const Facts& facts)
{
    const auto size = (std::int64_t { facts.nFileSizeHigh } << BitsOfPart) + std::int64_t { facts.nFileSizeLow };
    return { name, path, size, LocalMoment(facts.ftCreationTime) };
}

void RequireDone(BOOL done)
{
    if (done == FALSE) {
        throw FailureOfLastError();
    }
}

struct FindCloser
{
    using pointer = HANDLE;
    void operator()(HANDLE search) const { FindClose(search); }
};

}

std::string Win32FileSystem::GetSpecialFolder(SpecialFolder)
{
    std::array<wchar_t, MAX_PATH + 1> buffer {};
    const auto size = GetTempPathW(static_cast<DWORD>(buffer.size()), buffer.data());
    auto path = Narrow({ buffer.data(), size });
    // The system ends it with a separator, the product expects none.
    if (path.ends_with(Separator)) {
        path.pop_back();
    }
    return path;
}

std::string Win32FileSystem::BuildPath(const std::string& path, const std::string& name)
{
    return JoinedPath(path, name, Separator);
}

bool Win32FileSystem::FolderExists(const std::string& path)
{
    const auto facts = FactsAt(path);
    return facts && IsFolder(facts->dwFileAttributes);
}

void Win32FileSystem::CreateFolder(const std::string& path)
{
    RequireDone(CreateDirectoryW(Wide(path).c_str(), nullptr));
}

Folder Win32FileSystem::GetFolder(const std::string& path)
{
    if (!FolderExists(path)) {
        throw Failure(Error::PathNotFound);
    }
    Folder folder { path, {} };
    WIN32_FIND_DATAW found {};
    const std::unique_ptr<HANDLE, FindCloser> search(FindFirstFileW(Wide(BuildPath(path, "*")).c_str(), &found));
    if (search.get() == INVALID_HANDLE_VALUE) {
        throw FailureOfLastError();
    }
    do {
        if (!IsFolder(found.dwFileAttributes)) {
            const auto name = Narrow(found.cFileName);
            folder.files.push_back(FileOf(name, BuildPath(path, name), found));
        }
    } while (FindNextFileW(search.get(), &found) != FALSE);
    std::sort(folder.files.begin(), folder.files.end(), [](const File& a, const File& b) { return a.name < b.name; });
    return folder;
}

bool Win32FileSystem::FileExists(const std::string& path)
{
    const auto facts = FactsAt(path);
    return facts && !IsFolder(facts->dwFileAttributes);
}

File Win32FileSystem::GetFile(const std::string& path)
{
    return FileOf(path.substr(path.find_last_of("\\/") + 1), path, FactsOfFile(path));
}

void Win32FileSystem::MoveFile(const std::string& source, const std::string& target)
{
    FactsOfFile(source);
    RequireDone(
        MoveFileExW(Wide(source).c_str(), Wide(target).c_str(), MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH));
}

void Win32FileSystem::CopyFile(const std::string& source, const std::string& target, bool overwrite)
{
    FactsOfFile(source);
    RequireDone(CopyFileW(Wide(source).c_str(), Wide(target).c_str(), overwrite ? FALSE : TRUE));
    Win32File(target, { .access = GENERIC_WRITE, .disposition = OPEN_EXISTING }).Flush();
}

void Win32FileSystem::DeleteFile(const std::string& path, bool force)
{
    const auto attributes = FactsOfFile(path).dwFileAttributes;
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        if (!force) {
            throw Failure(Error::PermissionDenied);
        }
        RequireDone(SetFileAttributesW(Wide(path).c_str(), FILE_ATTRIBUTE_NORMAL));
    }
    RequireDone(DeleteFileW(Wide(path).c_str()));
}

Ref<TextStream> Win32FileSystem::OpenTextFile(const std::string& path, OpenMode mode, bool create)
{
    switch (mode) {
    case OpenMode::Reading:
        return MakeRef<ReadingStream>(path, create, mText);
    case OpenMode::Writing:
        return MakeRef<ReplacingStream>(path, create, mText);
    case OpenMode::Appending:
        return MakeRef<AppendingStream>(path, create, mText);
    }
    throw Failure(Error::InvalidCall);
}

}
