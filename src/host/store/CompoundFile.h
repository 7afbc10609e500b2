#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

struct _GsfInfile; // NOLINT(bugprone-reserved-identifier): the library names it so

namespace tempodial {

/// A compound file, opened for reading: streams in folders.
class CompoundFile
{
public:
    /// Opens the file of those bytes, which outlive it; fails (440) when they are no compound file.
    explicit CompoundFile(const std::string& bytes);

    /// The bytes of a stream under the names of the folders around it and its own; nothing when it is absent.
    std::optional<std::string> Stream(const std::vector<std::string>& names) const;

private:
    struct Release
    {
        void operator()(void* object) const;
    };

    std::unique_ptr<_GsfInfile, Release> mRoot;
};

}
