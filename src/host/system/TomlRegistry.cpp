#include "host/system/TomlRegistry.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "host/files/FileDescriptor.h"
#include "host/files/ReplacementFile.h"
#include "host/settings/TomlNesting.h"
#include "host/system/RegistryText.h"

#include <toml++/toml.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t LargestFile = std::size_t { 64 } << 20;

std::string_view NameOf(Hive hive)
{
    return hive == Hive::CurrentUser ? "HKCU" : "HKLM";
}

/// The name in a table that is the given one but for case; one that is spelled the same comes first.
std::string SpelledIn(const toml::table& table, std::string_view name)
{
    if (!table.contains(name)) {
        for (const auto& [known, node] : table) {
            if (EqualIgnoringCase(known.str(), name)) {
                return std::string(known.str());
            }
        }
    }
    return std::string(name);
}

/// Takes a name out of a table in every spelling: a second one, which only a file made by hand can have, would be found
/// instead.
void Erase(toml::table& table, std::string_view name)
{
    for (auto at = table.begin(); at != table.end();) {
        at = EqualIgnoringCase(at->first.str(), name) ? table.erase(at) : std::next(at);
    }
}

/// The table of that name, made when there is none; null when something else has the name.
toml::table* MadeIn(toml::table& table, std::string_view name)
{
    return table.insert(SpelledIn(table, name), toml::table()).first->second.as_table();
}

[[noreturn]] void Refuse(const std::string& path, std::size_t line, const std::string& reason)
{
    throw RegistryFileError("the registry file " + path + " can't be read, line " + std::to_string(line) + ": " + reason
        + ": correct that line, or move the file away to begin with an empty registry");
}

std::string ContentOf(const std::string& path)
{
    try {
        const FileDescriptor file(NativePath::Exactly(path), Opening::Reading);
        if (file.Status().size > LargestFile) {
            throw RegistryFileError("the registry file " + path
                + " is larger than 64 MiB, which no registry is: move it "
                  "away to begin with an empty registry");
        }
        return file.ReadAll(LargestFile);
    } catch (const Failure& failure) {
        if (failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound)) {
            return {};
        }
        throw RegistryFileError("the registry file " + path + " can't be read (" + failure.Description()
            + "): make it a readable file, or move it away to begin with an empty registry");
    }
}

/// What is wrong with a text that can't be read, in words for those who wrote it.
std::string ReasonOf(const toml::parse_error& error)
{
    const bool isTwice = error.description().find("redefine") != std::string_view::npos;
    return isTwice ? "the name stands in the file a second time"
                   : "this is no value, no name and no heading (a quotation mark or a bracket may be missing)";
}

toml::table Parsed(const std::string& path)
{
    const auto content = ContentOf(path);
    if (const auto line = LineNestedTooDeeply(content)) {
        Refuse(path, *line, "it is nested more than 32 deep");
    }
    try {
        return toml::parse(content, path);
    } catch (const toml::parse_error& error) {
        Refuse(path, error.source().begin.line, ReasonOf(error));
    }
}

/// The number that a value of the registry has, nothing for another kind of value and for one beyond 32 bits.
std::optional<std::int32_t> NumberIn(const toml::node& node)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const auto* number = node.as_integer();
    if (number == nullptr || number->get() < Limits::min() || number->get() > Limits::max()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(number->get());
}

}

/// The content of the file.
class TomlRegistry::Tables
{
public:
    explicit Tables(const std::string& path)
        : mRoot(Parsed(path))
    {
        for (const auto hive : { Hive::CurrentUser, Hive::LocalMachine }) {
            const auto* node = mRoot.get(SpelledIn(mRoot, NameOf(hive)));
            if (node != nullptr && !node->is_table()) {
                Refuse(path, node->source().begin.line, std::string(NameOf(hive)) + " isn't a table");
            }
        }
    }

    /// The key's table, null when there is none.
    const toml::table* Find(Hive hive, std::string_view key) const
    {
        const auto* keys = mRoot[SpelledIn(mRoot, NameOf(hive))].as_table();
        return keys == nullptr ? nullptr : (*keys)[SpelledIn(*keys, key)].as_table();
    }
    /// The key's table, made when there is none; null when something else has its name.
    toml::table* Make(Hive hive, std::string_view key) { return MadeIn(*MadeIn(mRoot, NameOf(hive)), key); }
    Variant Get(Hive hive, std::string_view key, std::string_view value) const
    {
        const auto* table = Find(hive, key);
        const auto* node = table == nullptr ? nullptr : table->get(SpelledIn(*table, value));
        if (node == nullptr) {
            return {};
        }
        if (const auto* text = node->as_string()) {
            return text->get();
        }
        const auto number = NumberIn(*node);
        return number ? Variant(*number) : Variant();
    }
    void RequireSound(const std::string& path, std::string_view key, const std::vector<std::string>& texts) const
    {
        for (const auto hive : { Hive::CurrentUser, Hive::LocalMachine }) {
            const auto* keys = mRoot[SpelledIn(mRoot, NameOf(hive))].as_table();
            const auto* node = keys == nullptr ? nullptr : keys->get(SpelledIn(*keys, key));
            if (node != nullptr && !node->is_table()) {
                Refuse(path, node->source().begin.line, std::string(key) + " isn't a table");
            }
            if (node != nullptr) {
                RequireValues(path, *node->as_table(), texts);
            }
        }
    }
    std::vector<RegistryEntry> Entries() const
    {
        std::vector<RegistryEntry> entries;
        for (const auto hive : { Hive::CurrentUser, Hive::LocalMachine }) {
            const auto* keys = mRoot[SpelledIn(mRoot, NameOf(hive))].as_table();
            for (const auto& [key, values] : keys == nullptr ? toml::table() : *keys) {
                for (const auto& [value, node] : values.is_table() ? *values.as_table() : toml::table()) {
                    auto data = Get(hive, key.str(), value.str());
                    if (!data.IsEmpty()) {
                        entries.push_back({ hive, std::string(key.str()), std::string(value.str()), std::move(data) });
                    }
                }
            }
        }
        return entries;
    }
    std::string ToText() const { return RegistryText(mRoot); }

private:
    static void RequireValues(const std::string& path, const toml::table& values, const std::vector<std::string>& texts)
    {
        for (const auto& [name, node] : values) {
            const bool isText = std::any_of(texts.begin(), texts.end(),
                [known = name.str()](const auto& text) { return EqualIgnoringCase(text, known); });
            if (!node.is_string() && (isText || !NumberIn(node))) {
                Refuse(path, node.source().begin.line,
                    "\"" + std::string(name.str()) + "\" must be a text"
                        + (isText ? ", in quotation marks" : " in quotation marks, or a whole number of 32 bits"));
            }
        }
    }

    toml::table mRoot;
};

TomlRegistry::TomlRegistry(std::string path)
    : mPath(std::move(path))
    , mTables(std::make_unique<Tables>(mPath))
{
}

TomlRegistry::~TomlRegistry() = default;

Variant TomlRegistry::Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess)
{
    if (IsUtf8(key)) {
        mTables->Make(hive, key);
    }
    return Get(hive, key, value);
}

void TomlRegistry::Write(Hive hive, const std::string& key, const std::string& value, const std::string& text)
{
    Set(hive, key, value, text);
}

void TomlRegistry::RequireSound(const std::string& key, const std::vector<std::string>& texts) const
{
    mTables->RequireSound(mPath, key, texts);
}

std::vector<RegistryEntry> TomlRegistry::Entries() const
{
    return mTables->Entries();
}

Variant TomlRegistry::Get(Hive hive, const std::string& key, const std::string& value) const
{
    return mTables->Get(hive, key, value);
}

void TomlRegistry::WriteNumber(Hive hive, const std::string& key, const std::string& value, std::int32_t number)
{
    Set(hive, key, value, number);
}

bool TomlRegistry::Delete(Hive hive, const std::string& key, const std::string& value)
{
    const auto* table = mTables->Find(hive, key);
    if (table == nullptr || !table->contains(SpelledIn(*table, value))) {
        return false;
    }
    auto changed = std::make_unique<Tables>(*mTables);
    Erase(*changed->Make(hive, key), value);
    Take(std::move(changed));
    return true;
}

void TomlRegistry::Together(const std::function<void()>& work)
{
    mIsHolding = true;
    try {
        work();
    } catch (...) {
        Release();
        throw;
    }
    Release();
}

void TomlRegistry::AllOrNothing(const std::function<void()>& work)
{
    mIsHolding = true;
    try {
        work();
    } catch (...) {
        mIsHolding = false;
        if (auto saved = std::exchange(mSaved, nullptr)) {
            mTables = std::move(saved);
        }
        throw;
    }
    Release();
}

void TomlRegistry::Take(std::unique_ptr<Tables> changed)
{
    if (!mIsHolding) {
        Save(*changed);
    } else if (!mSaved) {
        mSaved = std::move(mTables);
    }
    mTables = std::move(changed);
}

void TomlRegistry::Release()
{
    mIsHolding = false;
    auto saved = std::exchange(mSaved, nullptr);
    if (!saved) {
        return;
    }
    try {
        Save(*mTables);
    } catch (const Failure& failure) {
        mTables = std::move(saved);
        throw Failure(failure.Number(), failure.Description() + ": the registry file " + mPath);
    }
}

void TomlRegistry::Set(Hive hive, const std::string& key, const std::string& value, const Variant& data)
{
    if (Get(hive, key, value) == data) {
        return;
    }
    const auto* text = data.If<std::string>();
    if (!IsUtf8(key) || !IsUtf8(value) || (text != nullptr && !IsUtf8(*text))) {
        throw Failure(Error::InvalidCall);
    }
    auto changed = std::make_unique<Tables>(*mTables);
    auto* values = changed->Make(hive, key);
    if (values == nullptr) {
        throw Failure(Error::PathFileAccess);
    }
    const auto name = SpelledIn(*values, value);
    Erase(*values, name);
    if (text != nullptr) {
        values->insert(name, *text);
    } else {
        values->insert(name, data.ToInt32());
    }
    Take(std::move(changed));
}

void TomlRegistry::Save(const Tables& tables) const
{
    if (mBeforeChange) {
        mBeforeChange();
    }
    ReplacementFile file(NativePath::Exactly(mPath));
    file.Write(tables.ToText());
    file.Commit();
}

}
