#pragma once

#include <cstddef>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/mount.h>
#include <unistd.h>
#include <vector>

namespace tempodial {

/// A disk of a few megabytes in memory, mounted on a folder for one test. It takes the rights of an administrator.
class SmallDisk
{
public:
    explicit SmallDisk(std::string folder)
        : mFolder(std::move(folder))
    {
        std::filesystem::create_directories(mFolder);
        mIsMounted = ::mount("tempodial-test", mFolder.c_str(), "tmpfs", 0, "size=4m") == 0;
    }
    ~SmallDisk()
    {
        if (mIsMounted) {
            ::umount2(mFolder.c_str(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// False when this system doesn't let the test mount anything.
    bool IsMounted() const { return mIsMounted; }
    /// Fills the disk up, except for so many pages of 4096 bytes.
    void FillBut(int freePages) const
    {
        Empty();
        const int file = ::open(Ballast().c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        const std::vector<char> page(4096, 'x');
        off_t size = 0;
        while (::write(file, page.data(), page.size()) == static_cast<ssize_t>(page.size())) {
            size += static_cast<off_t>(page.size());
        }
        const off_t kept = size - static_cast<off_t>(page.size()) * freePages;
        static_cast<void>(::ftruncate(file, kept > 0 ? kept : 0));
        ::close(file);
    }
    /// Gives the room back.
    void Empty() const { std::filesystem::remove(Ballast()); }
    void MakeReadOnly() const { ::mount("", mFolder.c_str(), "", MS_REMOUNT | MS_RDONLY, "size=4m"); }
    void MakeWritable() const { ::mount("", mFolder.c_str(), "", MS_REMOUNT, "size=4m"); }

private:
    std::string Ballast() const { return mFolder + "/ballast"; }

    std::string mFolder;
    bool mIsMounted = false;
};

}
