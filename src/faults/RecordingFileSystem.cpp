#include "faults/RecordingFileSystem.h"

#include "base/Failure.h"

#include <utility>

namespace tempodial {

namespace {

bool IsOrdinary(const Failure& failure)
{
    return failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound) || failure.Is(Error::InputPastEnd);
}

/// Runs an operation on a file and notes its failure.
template <class Operation>
auto Noting(Problems& problems, const char* what, const std::string& path, Operation&& operation)
{
    try {
        return operation();
    } catch (const Failure& failure) {
        if (!IsOrdinary(failure)) {
            problems.NoteFile(path,
                std::string("couldn't be ") + what + ": " + failure.Description()
                    + ": see to the file and run the command again");
        }
        throw;
    }
}

class RecordingTextStream final : public TextStream
{
public:
    RecordingTextStream(Ref<TextStream> inner, Ref<Problems> problems, std::string path)
        : mInner(std::move(inner))
        , mProblems(std::move(problems))
        , mPath(std::move(path))
    {
    }

    std::string ReadLine() override
    {
        return Noting(*mProblems, "read", mPath, [this] { return mInner->ReadLine(); });
    }
    std::string ReadAll() override
    {
        return Noting(*mProblems, "read", mPath, [this] { return mInner->ReadAll(); });
    }
    void Write(const std::string& text) override
    {
        Noting(*mProblems, "written", mPath, [&] { mInner->Write(text); });
    }
    void WriteLine(const std::string& text) override
    {
        Noting(*mProblems, "written", mPath, [&] { mInner->WriteLine(text); });
    }
    void Close() override
    {
        Noting(*mProblems, "written", mPath, [this] { mInner->Close(); });
    }

private:
    Ref<TextStream> mInner;
    Ref<Problems> mProblems;
    std::string mPath;
};

}

RecordingFileSystem::RecordingFileSystem(Ref<FileSystemObject> inner, Ref<Problems> problems)
    : mInner(std::move(inner))
    , mProblems(std::move(problems))
{
}

std::string RecordingFileSystem::GetSpecialFolder(SpecialFolder folder)
{
    return mInner->GetSpecialFolder(folder);
}

std::string RecordingFileSystem::BuildPath(const std::string& path, const std::string& name)
{
    return mInner->BuildPath(path, name);
}

bool RecordingFileSystem::FolderExists(const std::string& path)
{
    return mInner->FolderExists(path);
}

void RecordingFileSystem::CreateFolder(const std::string& path)
{
    Noting(*mProblems, "made", path, [&] { mInner->CreateFolder(path); });
}

Folder RecordingFileSystem::GetFolder(const std::string& path)
{
    return Noting(*mProblems, "read", path, [&] { return mInner->GetFolder(path); });
}

bool RecordingFileSystem::FileExists(const std::string& path)
{
    return mInner->FileExists(path);
}

File RecordingFileSystem::GetFile(const std::string& path)
{
    return mInner->GetFile(path);
}

void RecordingFileSystem::MoveFile(const std::string& source, const std::string& target)
{
    Noting(*mProblems, "moved", source, [&] { mInner->MoveFile(source, target); });
}

void RecordingFileSystem::CopyFile(const std::string& source, const std::string& target, bool overwrite)
{
    Noting(*mProblems, "copied", source, [&] { mInner->CopyFile(source, target, overwrite); });
}

void RecordingFileSystem::DeleteFile(const std::string& path, bool force)
{
    Noting(*mProblems, "deleted", path, [&] { mInner->DeleteFile(path, force); });
}

Ref<TextStream> RecordingFileSystem::OpenTextFile(const std::string& path, OpenMode mode, bool create)
{
    auto stream = Noting(*mProblems, mode == OpenMode::Reading ? "read" : "written", path,
        [&] { return mInner->OpenTextFile(path, mode, create); });
    return MakeRef<RecordingTextStream>(std::move(stream), mProblems, path);
}

}
