#include "session/ProfileFolder.h"

#include "session/ProductFacts.h"
#include "session/ProfileError.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tempodial {

namespace fs = std::filesystem;

namespace {

std::string Environment(const char* name)
{
    const auto* value = std::getenv(name);
    return value ? value : "";
}

std::string SystemText(int error)
{
    return std::system_category().message(error);
}

/// True for a folder in which nothing but our own files can be.
bool IsOurs(const fs::path& folder)
{
    constexpr std::array<const char*, 3> names { MailboxFileName, RegistryFileName, DataFolderName };
    std::error_code ignored;
    return fs::is_empty(folder, ignored)
        || std::any_of(names.begin(), names.end(), [&](auto name) { return fs::exists(folder / name, ignored); });
}

}

ProfileFolder::ProfileFolder(std::string path)
{
    std::error_code error;
    const auto absolute = fs::absolute(path, error).lexically_normal();
    mPath = absolute.has_filename() ? absolute.string() : absolute.parent_path().string();
    if (path.empty() || error) {
        throw ProfileError("the profile has no usable path: name a folder with --profile");
    }
    const fs::path folder(mPath);
    fs::create_directories(folder.parent_path(), error);
    if (::mkdir(mPath.c_str(), 0700) != 0 && errno != EEXIST) {
        throw ProfileError("can't make the profile folder " + mPath + ": " + SystemText(errno)
            + ": name another with --profile, or see to its parent folder");
    }
    Lock();
    CloseToOthers();
}

ProfileFolder::~ProfileFolder()
{
    ::close(mDescriptor);
}

void ProfileFolder::Lock()
{
    mDescriptor = ::open(mPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (mDescriptor < 0) {
        throw ProfileError("can't open the profile folder " + mPath + ": " + SystemText(errno)
            + ": name another with --profile, or see to its permissions");
    }
    if (::flock(mDescriptor, LOCK_EX | LOCK_NB) != 0) {
        const auto reason = errno;
        ::close(mDescriptor);
        if (reason == EWOULDBLOCK) {
            throw ProfileInUse("the profile " + mPath
                + " is in use by another process: wait until that has ended, or name another with --profile");
        }
        throw ProfileError("can't lock the profile folder " + mPath + ": " + SystemText(reason)
            + ": put it on a file system that knows locks");
    }
}

void ProfileFolder::CloseToOthers() const
{
    struct stat status
    {
    };
    // A folder that holds other things too, such as one named by mistake, keeps its mode; our files are closed anyway.
    if (::fstat(mDescriptor, &status) == 0 && (status.st_mode & 077) != 0 && status.st_uid == ::geteuid()
        && IsOurs(mPath)) {
        (void)::fchmod(mDescriptor, 0700);
    }
}

std::string ProfileFolder::Default()
{
    if (auto named = Environment("TEMPODIAL_PROFILE"); !named.empty()) {
        return named;
    }
    // The base folder counts only when it is absolute.
    if (auto data = Environment("XDG_DATA_HOME"); !data.empty() && data.front() == '/') {
        return data + "/tempodial";
    }
    if (auto home = Environment("HOME"); !home.empty()) {
        return home + "/.local/share/tempodial";
    }
    throw ProfileError("there is no home folder for the profile: name a folder with --profile");
}

}
