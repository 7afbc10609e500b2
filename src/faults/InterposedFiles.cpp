#include "faults/Interposed.h"
#include "faults/Wrapped.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace tempodial {

template <> struct ClassNames<FileSystemObject>
{
    static constexpr std::string_view All[] { "FileSystem", "FileSystemObject" };
};
template <> struct ClassNames<TextStream>
{
    static constexpr std::string_view All[] { "TextStream" };
};

namespace {

class InterposedTextStream final : public Interposed<TextStream>
{
public:
    InterposedTextStream(Ref<TextStream> target, Ref<Interposer> interposer, std::string path)
        : Interposed(std::move(target), std::move(interposer))
        , mPath(std::move(path))
    {
    }

    std::string ReadLine() override { return Call(Named("ReadLine"), &Object::ReadLine); }
    LineKind LastLine() const override { return Target()->LastLine(); }
    std::string ReadAll() override { return Call(Named("ReadAll"), &Object::ReadAll); }
    void Write(const std::string& text) override { Call(Named("Write"), &Object::Write, text); }
    void WriteLine(const std::string& text) override { Call(Named("WriteLine"), &Object::WriteLine, text); }
    void Close() override { Call(Named("Close"), &Object::Close); }

private:
    Told Named(const char* member) const { return { member, {}, mPath }; }

    std::string mPath;
};

class InterposedFileSystem final : public Interposed<FileSystemObject>
{
public:
    using Interposed::Interposed;

    std::string GetSpecialFolder(SpecialFolder folder) override
    {
        return Call("GetSpecialFolder", &Object::GetSpecialFolder, folder);
    }
    std::string BuildPath(const std::string& path, const std::string& name) override
    {
        return Call({ "BuildPath", name }, &Object::BuildPath, path, name);
    }
    bool FolderExists(const std::string& path) override
    {
        return Call(Named("FolderExists", path), &Object::FolderExists, path);
    }
    void CreateFolder(const std::string& path) override
    {
        Call(Named("CreateFolder", path), &Object::CreateFolder, path);
    }
    Folder GetFolder(const std::string& path) override
    {
        return Call(Named("GetFolder", path), &Object::GetFolder, path);
    }
    bool FileExists(const std::string& path) override
    {
        return Call(Named("FileExists", path), &Object::FileExists, path);
    }
    File GetFile(const std::string& path) override { return Call(Named("GetFile", path), &Object::GetFile, path); }
    void MoveFile(const std::string& source, const std::string& target) override
    {
        Call(Named("MoveFile", source), &Object::MoveFile, source, target);
    }
    void CopyFile(const std::string& source, const std::string& target, bool overwrite) override
    {
        Call(Named("CopyFile", source), &Object::CopyFile, source, target, overwrite);
    }
    void DeleteFile(const std::string& path, bool force) override
    {
        Call(Named("DeleteFile", path), &Object::DeleteFile, path, force);
    }
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override
    {
        auto told = Named("OpenTextFile", path);
        told.opensForWriting = mode != OpenMode::Reading;
        return MakeRef<InterposedTextStream>(Call(told, &Object::OpenTextFile, path, mode, create), Between(), path);
    }

private:
    /// A call about a file or folder, whose name is the key.
    static Told Named(const char* member, std::string_view path)
    {
        // Each line of the trace asks twice, so this is written for speed.
        const auto name = std::find_if(
            path.rbegin(), path.rend(), [](char character) { return character == '/' || character == '\\'; });
        return { member, path.substr(static_cast<std::size_t>(path.rend() - name)), path };
    }
};

}

Ref<FileSystemObject> Wrapped(const Ref<FileSystemObject>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedFileSystem>(object, interposer);
}

}
