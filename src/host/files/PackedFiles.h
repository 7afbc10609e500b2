#pragma once

#include "host/files/ArchiveModule.h"
#include "host/files/FileDescriptor.h"
#include "host/files/NativePath.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// Files and folders that go into an archive, in the order in which they are added.
class PackedFiles final : public ArchiveSource
{
public:
    /// Adds a folder under a path in the archive.
    void AddFolder(const std::string& path);
    /// Adds a file under a path in the archive; it is opened when its turn comes.
    void AddFile(const std::string& path, const NativePath& file);
    /// Adds all that a folder holds under a path in the archive, but for the names told. Links to files are taken as
    /// what they lead to. What can't be in an archive is left out. Fails as reading folders does.
    void AddContent(
        const std::string& path, const NativePath& folder, const std::function<bool(const std::string& name)>& isMeant);

    /// How many files there are.
    std::size_t Files() const { return mFiles; }
    /// The paths of what was left out: pipes, links to folders, what lies too deep.
    const std::vector<std::string>& LeftOut() const { return mLeftOut; }

    /// Fails, as the next does, when a file can't be read (53, 70, 57).
    bool Next(ArchiveMember& member) override;
    std::size_t Read(char* buffer, std::size_t length) override;

private:
    struct Part
    {
        std::string path;
        /// Nothing for a folder.
        std::optional<NativePath> file;
    };

    std::vector<Part> mParts;
    std::vector<std::string> mLeftOut;
    std::size_t mFiles = 0;
    std::size_t mNext = 0;
    std::optional<FileDescriptor> mFile;
};

}
