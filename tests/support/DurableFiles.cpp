#include "support/DurableFiles.h"

#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

std::string Content(const fs::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(stream), {} };
}

}

DurableFiles::DurableFiles(fs::path folder)
    : mFolder(std::move(folder))
{
    NoteListing(mFolder);
    for (const auto& entry : fs::recursive_directory_iterator(mFolder)) {
        Flushed(entry.path());
    }
}

DurableFiles::~DurableFiles()
{
    for (const int file : mHeld) {
        ::close(file);
    }
}

void DurableFiles::Flushed(const fs::path& path)
{
    if (fs::is_directory(path)) {
        NoteListing(path);
    } else {
        NoteContent(path);
    }
}

void DurableFiles::LosePower(Names names) const
{
    std::vector<fs::path> folders { mFolder };
    for (const auto& entry : fs::recursive_directory_iterator(mFolder)) {
        if (entry.is_directory()) {
            folders.push_back(entry.path());
        }
    }
    for (const auto& folder : folders) {
        // A folder that was never flushed is there, and empty.
        const auto known = mListings.find(IdentityOf(folder));
        auto listing = known == mListings.end() ? Listing() : known->second;
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (!entry.is_directory()) {
                files.push_back(entry.path());
            }
        }
        if (names == Names::Kept) {
            listing.clear();
            for (const auto& file : files) {
                listing[file.filename().string()] = IdentityOf(file);
            }
        }
        for (const auto& file : files) {
            fs::remove(file);
        }
        for (const auto& [name, identity] : listing) {
            const auto content = mContents.find(identity);
            std::ofstream(folder / name, std::ios::binary) << (content == mContents.end() ? "" : content->second);
        }
    }
}

DurableFiles::Identity DurableFiles::IdentityOf(const fs::path& path)
{
    struct stat status
    {
    };
    ::stat(path.c_str(), &status);
    return { status.st_dev, status.st_ino };
}

void DurableFiles::NoteContent(const fs::path& file)
{
    const auto identity = IdentityOf(file);
    if (!mContents.contains(identity)) {
        mHeld.push_back(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    }
    mContents[identity] = Content(file);
}

void DurableFiles::NoteListing(const fs::path& folder)
{
    Listing listing;
    // The path may be that of a descriptor, which leads to the folder.
    for (const auto& entry : fs::directory_iterator(fs::canonical(folder))) {
        if (!entry.is_directory()) {
            listing[entry.path().filename().string()] = IdentityOf(entry.path());
        }
    }
    mListings[IdentityOf(folder)] = std::move(listing);
}

}
