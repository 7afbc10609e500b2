#include "host/files/OutputTarget.h"

#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "host/files/Uninterrupted.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace tempodial {

namespace fs = std::filesystem;

namespace {

constexpr auto StandardOutputName = "-";

OutputTarget::Kind KindAt(const NativePath& path)
{
    using enum OutputTarget::Kind;
    if (path.Text() == StandardOutputName) {
        return StandardOutput;
    }
    const auto status = StatusAt(path, Links::Followed);
    if (!status) {
        return path.Name().empty() ? Folder : Absent;
    }
    if (status->kind == FileStatus::Kind::Folder) {
        return Folder;
    }
    const auto output = FileStatus::Look(STDOUT_FILENO, "", AT_EMPTY_PATH);
    if (output && output->IsSameFile(*status)) {
        return StandardOutput;
    }
    return status->kind == FileStatus::Kind::File ? File : Stream;
}

/// The path of a file without links, whether it is there or not.
NativePath WithoutLinks(const NativePath& path)
{
    std::error_code error;
    const auto absolute = fs::absolute(BehindLinks(path).Text(), error);
    const auto real = error ? absolute : fs::weakly_canonical(absolute, error);
    return error ? path : NativePath::Exactly(real.string());
}

}

OutputTarget::OutputTarget(const std::string& path)
    : mPath(path)
    , mKind(KindAt(mPath))
{
    if (mKind == Kind::Absent || mKind == Kind::File) {
        mPath = WithoutLinks(mPath);
    }
}

void OutputTarget::Write(std::string_view text) const
{
    if (mKind == Kind::Stream) {
        WriteToStream(text);
        return;
    }
    if (mKind == Kind::StandardOutput) {
        throw Failure(Error::PermissionDenied);
    }
    ReplacementFile file(mPath);
    file.TakeUsualMode();
    file.Write(text);
    file.Commit();
}

void OutputTarget::WriteToStream(std::string_view text) const
{
    const auto stream = Uninterrupted([&] { return ::open(mPath.CText(), O_WRONLY | O_CLOEXEC | O_NOCTTY); });
    if (stream < 0) {
        throw mPath.FailureOf(errno);
    }
    while (!text.empty()) {
        const auto count = Uninterrupted([&] { return ::write(stream, text.data(), text.size()); });
        if (count < 0) {
            const int error = errno;
            ::close(stream);
            throw SystemFailure(error);
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    ::close(stream);
}

}
