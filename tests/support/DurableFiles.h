#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// What of a folder would still be there after the power had gone: the contents that were flushed to the disk, and the
/// names of the folders that were flushed. All that is there at the beginning counts as flushed.
class DurableFiles
{
public:
    /// What happens to names that a folder got, lost or changed since it was flushed. A file system may do either.
    enum class Names { Kept, Lost };

    explicit DurableFiles(std::filesystem::path folder);
    ~DurableFiles();
    DurableFiles(const DurableFiles&) = delete;
    DurableFiles& operator=(const DurableFiles&) = delete;

    /// Notes that a file or a folder was flushed.
    void Flushed(const std::filesystem::path& path);
    /// Takes all from the folder that wasn't flushed.
    void LosePower(Names names) const;

private:
    /// A file of a disk: the device and its number there.
    using Identity = std::pair<std::uint64_t, std::uint64_t>;
    using Listing = std::map<std::string, Identity>;

    static Identity IdentityOf(const std::filesystem::path& path);
    void NoteContent(const std::filesystem::path& file);
    void NoteListing(const std::filesystem::path& folder);

    std::filesystem::path mFolder;
    std::map<Identity, std::string> mContents;
    /// The names of each folder, without the folders below it.
    std::map<Identity, Listing> mListings;
    /// The files are held open, so that none gets the number of one that was deleted.
    std::vector<int> mHeld;
};

}
