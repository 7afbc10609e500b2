#pragma once

#include "host/files/FileDescriptor.h"

#include <optional>
#include <string_view>

namespace tempodial {

/// New content for a file. It is written beside the file and takes its place as a whole; until then, and whenever
/// something fails, the file is as it was.
class ReplacementFile
{
public:
    /// What the file is that is to be replaced.
    enum class Old { MayBeAbsent, MustExist };

    /// Begins with no content. Fails as opening a new file does, and when the old file may not be replaced: an absent
    /// one (53) if it must exist, a folder, a link, a pipe, a read-only or locked file (70).
    explicit ReplacementFile(const NativePath& path, Old old = Old::MayBeAbsent);
    ~ReplacementFile();
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;

    /// Adds content; fails when the disk refuses (61, 57), and then it can't take the file's place any more.
    void Write(std::string_view bytes);
    /// Gives the new content the mode of the file whose place it takes, or else that of the user's new files; without
    /// this it is the user's alone.
    void TakeUsualMode() const;
    /// Gives the new content a time of last change.
    void SetModificationTime(const timespec& moment) { mFile.SetModificationTime(moment); }
    /// Takes the file's place, safe on disk when it returns; fails when the disk refuses it or refused a part (61, 57).
    void Commit();
    /// Takes the file's place, sooner or later safe on disk; fails when the disk refused a part.
    void TakePlace();

    /// Removes what runs that were killed left of their replacements in a folder, if there is one.
    static void DiscardLeftovers(const NativePath& folder) noexcept;

private:
    /// Fails when the disk has refused a part.
    void RequireWhole() const;

    NativePath mPath;
    NativePath mNewPath;
    FileDescriptor mFile;
    std::optional<Failure> mFailure;
    bool mHasTakenPlace = false;
};

}
