#include "faults/Interposed.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct ClassNames<Registry>
{
    static constexpr std::string_view All[] { "Registry" };
};
template <> struct ClassNames<ImportJournal>
{
    static constexpr std::string_view All[] { "ImportJournal" };
};
template <> struct ClassNames<PictureLoader>
{
    static constexpr std::string_view All[] { "PictureLoader" };
};
template <> struct ClassNames<Shell>
{
    static constexpr std::string_view All[] { "Shell" };
};
template <> struct ClassNames<XmlFactory>
{
    static constexpr std::string_view All[] { "XmlFactory" };
};
template <> struct ClassNames<XmlDocument>
{
    static constexpr std::string_view All[] { "XmlDocument", "XmlNode" };
};
template <> struct ClassNames<XmlNode>
{
    static constexpr std::string_view All[] { "XmlNode" };
};

namespace {

class InterposedRegistry final : public Interposed<Registry>
{
public:
    using Interposed::Interposed;

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override
    {
        return Call({ "Read", value }, &Object::Read, hive, key, value, access);
    }
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override
    {
        Call({ "Write", value }, &Object::Write, hive, key, value, text);
    }
};

class InterposedImportJournal final : public Interposed<ImportJournal>
{
public:
    using Interposed::Interposed;

    void Begin() override { Call("Begin", &Object::Begin); }
    void Loaded(const std::string& dayKey, const Position& position) override
    {
        Call({ "Loaded", dayKey }, &Object::Loaded, dayKey, position);
    }
    void Commit() override { Call("Commit", &Object::Commit); }
    std::optional<Position> Committed(const std::string& dayKey) override
    {
        return Call({ "Committed", dayKey }, &Object::Committed, dayKey);
    }
    void HistorySaved() override { Call("HistorySaved", &Object::HistorySaved); }
    void End() override { Call("End", &Object::End); }
    bool Remembers() override { return Call("Remembers", &Object::Remembers); }
    void ForgetLines() override { Call("ForgetLines", &Object::ForgetLines); }
    std::int32_t BeginDay(const std::string& dayKey, std::int32_t lastCount) override
    {
        return Call({ "BeginDay", dayKey }, &Object::BeginDay, dayKey, lastCount);
    }
    bool IsKnown(const std::string& line) override { return Call("IsKnown", &Object::IsKnown, line); }
    void Reached(std::int64_t number, bool isReadable) override
    {
        Call("Reached", &Object::Reached, number, isReadable);
    }
};

class InterposedPictureLoader final : public Interposed<PictureLoader>
{
public:
    using Interposed::Interposed;

    Ref<Picture> Load(const std::string& path) override { return Call("Load", &Object::Load, path); }
};

class InterposedShell final : public Interposed<Shell>
{
public:
    using Interposed::Interposed;

    void Open(const std::string& document) override { Call("Open", &Object::Open, document); }
    std::int32_t ThreadId() override { return Call("ThreadId", &Object::ThreadId); }
};

template <class Interface> class InterposedXml : public Interposed<Interface>
{
public:
    using Interposed<Interface>::Interposed;

    Ref<XmlNode> SelectSingleNode(std::string_view path) override
    {
        return WrappedAs<InterposedXml<XmlNode>>(
            this->Call({ "SelectSingleNode", path }, &Interface::SelectSingleNode, path), this->Between());
    }
    std::string Text() override { return this->Call("Text", &Interface::Text); }
    void SetText(const std::string& text) override { this->Set("Text", &Interface::SetText, text); }
};

class InterposedXmlDocument final : public InterposedXml<XmlDocument>
{
public:
    using InterposedXml::InterposedXml;

    bool LoadXML(const std::string& text) override { return Call("LoadXML", &Object::LoadXML, text); }
    bool IsEmpty() const override { return Call("IsEmpty", &Object::IsEmpty); }
    std::string Xml() override { return Call("Xml", &Object::Xml); }
};

class InterposedXmlFactory final : public Interposed<XmlFactory>
{
public:
    using Interposed::Interposed;

    Ref<XmlDocument> NewDocument() override
    {
        return WrappedAs<InterposedXmlDocument>(Call("NewDocument", &Object::NewDocument), Between());
    }
};

}

Ref<Registry> Wrapped(const Ref<Registry>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedRegistry>(object, interposer);
}

Ref<ImportJournal> Wrapped(const Ref<ImportJournal>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedImportJournal>(object, interposer);
}

Platform Wrapped(const Platform& platform, const Ref<Interposer>& interposer)
{
    auto wrapped = platform;
    wrapped.fileSystem = Wrapped(platform.fileSystem, interposer);
    wrapped.registry = Wrapped(platform.registry, interposer);
    wrapped.pictures = WrappedAs<InterposedPictureLoader>(platform.pictures, interposer);
    wrapped.shell = WrappedAs<InterposedShell>(platform.shell, interposer);
    wrapped.xml = WrappedAs<InterposedXmlFactory>(platform.xml, interposer);
    return wrapped;
}

}
