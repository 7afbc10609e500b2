#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>

namespace tempodial {

/// Something in an archive.
struct ArchiveMember
{
    enum class Kind {
        File,
        Folder,
        /// A link, a device, a file with holes, or whatever else there is.
        Other,
    };

    Kind kind = Kind::File;
    /// Names with "/" between, as they stand in the archive but for a "/" at the end.
    std::string path;
    /// Bytes of a file.
    std::uint64_t size = 0;
    /// Seconds since 1970 of its last change.
    std::time_t changed = 0;
};

/// What goes into an archive.
class ArchiveSource
{
public:
    virtual ~ArchiveSource() = default;
    /// The next member; false behind the last.
    virtual bool Next(ArchiveMember& member) = 0;
    /// Reads of the last member's content, of which there are as many bytes as it says.
    virtual std::size_t Read(char* buffer, std::size_t length) = 0;
};

/// What an archive goes into.
class ArchiveTarget
{
public:
    virtual ~ArchiveTarget() = default;
    /// The next member begins.
    virtual void Begin(const ArchiveMember& member) = 0;
    /// More of its content.
    virtual void Write(std::string_view bytes) = 0;
};

/// Takes the bytes of an archive's file.
using ByteSink = std::function<void(std::string_view bytes)>;
/// Gives the next bytes of an archive's file, none at its end.
using ByteSource = std::function<std::string_view()>;

/// The module that knows archives, and its functions. Each says what is wrong with an archive, nothing when it is
/// right, and fails as what it is given does.
inline constexpr auto ArchiveModule = "tempodial-archive";
/// Makes a compressed archive.
using ArchivePacker = void (*)(ArchiveSource& source, const ByteSink& sink, std::string& problem);
inline constexpr auto ArchivePackerName = "TempodialPackArchive";
/// Reads a compressed archive.
using ArchiveUnpacker = void (*)(const ByteSource& source, ArchiveTarget& target, std::string& problem);
inline constexpr auto ArchiveUnpackerName = "TempodialUnpackArchive";
/// Takes the compression away, and nothing else.
using ArchiveExpander = void (*)(const ByteSource& source, const ByteSink& sink, std::string& problem);
inline constexpr auto ArchiveExpanderName = "TempodialExpandArchive";

}
