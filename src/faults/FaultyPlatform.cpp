#include "faults/Faulty.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct FaultNames<FileSystemObject>
{
    static constexpr std::string_view All[] { "FileSystem", "FileSystemObject" };
};
template <> struct FaultNames<TextStream>
{
    static constexpr std::string_view All[] { "TextStream" };
};
template <> struct FaultNames<Registry>
{
    static constexpr std::string_view All[] { "Registry" };
};
template <> struct FaultNames<PictureLoader>
{
    static constexpr std::string_view All[] { "PictureLoader" };
};
template <> struct FaultNames<Shell>
{
    static constexpr std::string_view All[] { "Shell" };
};
template <> struct FaultNames<XmlFactory>
{
    static constexpr std::string_view All[] { "XmlFactory" };
};
template <> struct FaultNames<XmlDocument>
{
    static constexpr std::string_view All[] { "XmlDocument", "XmlNode" };
};
template <> struct FaultNames<XmlNode>
{
    static constexpr std::string_view All[] { "XmlNode" };
};

namespace {

class FaultyTextStream final : public Faulty<TextStream>
{
public:
    using Faulty::Faulty;

    std::string ReadLine() override { return Call("ReadLine")->ReadLine(); }
    std::string ReadAll() override { return Call("ReadAll")->ReadAll(); }
    void Write(const std::string& text) override { Call("Write")->Write(text); }
    void WriteLine(const std::string& text) override { Call("WriteLine")->WriteLine(text); }
    void Close() override { Call("Close")->Close(); }
};

class FaultyFileSystem final : public Faulty<FileSystemObject>
{
public:
    using Faulty::Faulty;

    std::string GetSpecialFolder(SpecialFolder folder) override
    {
        return Call("GetSpecialFolder")->GetSpecialFolder(folder);
    }
    std::string BuildPath(const std::string& path, const std::string& name) override
    {
        return Call("BuildPath", name)->BuildPath(path, name);
    }
    bool FolderExists(const std::string& path) override { return Call("FolderExists", Name(path))->FolderExists(path); }
    void CreateFolder(const std::string& path) override { Call("CreateFolder", Name(path))->CreateFolder(path); }
    Folder GetFolder(const std::string& path) override { return Call("GetFolder", Name(path))->GetFolder(path); }
    bool FileExists(const std::string& path) override { return Call("FileExists", Name(path))->FileExists(path); }
    File GetFile(const std::string& path) override { return Call("GetFile", Name(path))->GetFile(path); }
    void MoveFile(const std::string& source, const std::string& target) override
    {
        Call("MoveFile", Name(source))->MoveFile(source, target);
    }
    void CopyFile(const std::string& source, const std::string& target, bool overwrite) override
    {
        Call("CopyFile", Name(source))->CopyFile(source, target, overwrite);
    }
    void DeleteFile(const std::string& path, bool force) override
    {
        Call("DeleteFile", Name(path))->DeleteFile(path, force);
    }
    Ref<TextStream> OpenTextFile(const std::string& path, OpenMode mode, bool create) override
    {
        auto* target = Call("OpenTextFile", Name(path));
        return WrappedAs<FaultyTextStream>(target->OpenTextFile(path, mode, create), Plan());
    }

private:
    /// The key of a call: the name of the file or folder.
    static std::string Name(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }
};

class FaultyRegistry final : public Faulty<Registry>
{
public:
    using Faulty::Faulty;

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override
    {
        return Call("Read", value)->Read(hive, key, value, access);
    }
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override
    {
        Call("Write", value)->Write(hive, key, value, text);
    }
};

class FaultyPictureLoader final : public Faulty<PictureLoader>
{
public:
    using Faulty::Faulty;

    Ref<Picture> Load(const std::string& path) override { return Call("Load")->Load(path); }
};

class FaultyShell final : public Faulty<Shell>
{
public:
    using Faulty::Faulty;

    void Open(const std::string& document) override { Call("Open")->Open(document); }
    std::int32_t ThreadId() override { return Call("ThreadId")->ThreadId(); }
};

template <class Interface> class FaultyXml : public Faulty<Interface>
{
public:
    using Faulty<Interface>::Faulty;

    Ref<XmlNode> SelectSingleNode(std::string_view path) override
    {
        auto* target = this->Call("SelectSingleNode", path);
        return WrappedAs<FaultyXml<XmlNode>>(target->SelectSingleNode(path), this->Plan());
    }
    std::string Text() override { return this->Call("Text")->Text(); }
    void SetText(const std::string& text) override { this->Call("Text")->SetText(text); }
};

class FaultyXmlDocument final : public FaultyXml<XmlDocument>
{
public:
    using FaultyXml::FaultyXml;

    bool LoadXML(const std::string& text) override { return Call("LoadXML")->LoadXML(text); }
    bool IsEmpty() const override { return Call("IsEmpty")->IsEmpty(); }
    std::string Xml() override { return Call("Xml")->Xml(); }
};

class FaultyXmlFactory final : public Faulty<XmlFactory>
{
public:
    using Faulty::Faulty;

    Ref<XmlDocument> NewDocument() override
    {
        auto* target = Call("NewDocument");
        return WrappedAs<FaultyXmlDocument>(target->NewDocument(), Plan());
    }
};

}

Platform Wrapped(const Platform& platform, const Ref<FaultPlan>& plan)
{
    auto wrapped = platform;
    wrapped.fileSystem = WrappedAs<FaultyFileSystem>(platform.fileSystem, plan);
    wrapped.registry = WrappedAs<FaultyRegistry>(platform.registry, plan);
    wrapped.pictures = WrappedAs<FaultyPictureLoader>(platform.pictures, plan);
    wrapped.shell = WrappedAs<FaultyShell>(platform.shell, plan);
    wrapped.xml = WrappedAs<FaultyXmlFactory>(platform.xml, plan);
    return wrapped;
}

}
