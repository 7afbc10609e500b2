#include "base/Failure.h"
#include "fuzz/FuzzTarget.h"
#include "host/files/ArchiveFile.h"
#include "host/files/UnpackedFolder.h"
#include "support/TarArchive.h"
#include "support/TempFolder.h"

#include <filesystem>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

/// A backup is unpacked. The first byte says whether the others are its file, "f", or what is compressed in it.
void UnpackArchive(std::string_view input)
{
    static const TempFolder files(TempFolder::InMemory());
    static const TempFolder place(TempFolder::InMemory());
    const auto rest = input.substr(input.empty() ? 0 : 1);
    const auto path = files.Write("a.tar.gz", input.starts_with('f') ? std::string(rest) : Gzip(rest));
    const NativePath folder(place.Path("new"));
    try {
        const ArchiveFile archive { NativePath(path) };
        archive.RequireWhole();
        UnpackedFolder unpacked(folder, "tempodial", [](const std::string& name) { return name.ends_with("-wal"); });
        archive.Unpack(unpacked);
        unpacked.Finish();
        std::size_t count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder.Text())) {
            Hold(!entry.is_symlink() && (entry.is_regular_file() || entry.is_directory()), "files and folders came");
            Hold(!entry.path().string().ends_with("-wal"), "nothing came that may not");
            count += entry.is_regular_file() ? 1 : 0;
        }
        Hold(count == unpacked.Files(), "the files are counted");
    } catch (const ArchiveError&) {
    } catch (const Failure&) {
    }
    Hold(fs::is_empty(place.Path()), "nothing is left of it, nor beside it");
}

}

TEMPODIAL_FUZZ_TARGET(Archive, UnpackArchive)

}
