#include "host/system/TomlRegistry.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "host/files/FileDescriptor.h"
#include "host/files/ReplacementFile.h"
#include "host/system/RegistryText.h"

#include <toml++/toml.h>

#include <cstddef>
#include <iterator>
#include <limits>
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

[[noreturn]] void Refuse(const std::string& path, toml::source_index line, std::string_view reason)
{
    throw RegistryFileError("the registry file " + path + " can't be read, line " + std::to_string(line) + ": "
        + std::string(reason) + ": correct that line, or move the file away to begin with an empty registry");
}

std::string ContentOf(const std::string& path)
{
    try {
        return FileDescriptor(NativePath::Exactly(path), Opening::Reading).ReadAll(LargestFile);
    } catch (const Failure& failure) {
        if (failure.Is(Error::FileNotFound) || failure.Is(Error::PathNotFound)) {
            return {};
        }
        throw RegistryFileError("the registry file " + path + " can't be read (" + failure.Description()
            + "): make it a readable file, or move it away to begin with an empty registry");
    }
}

}

/// The content of the file.
class TomlRegistry::Tables
{
public:
    explicit Tables(const std::string& path)
    {
        try {
            mRoot = toml::parse(ContentOf(path), path);
        } catch (const toml::parse_error& error) {
            Refuse(path, error.source().begin.line, error.description());
        }
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
        const auto* number = node->as_integer();
        using Limits = std::numeric_limits<std::int32_t>;
        const bool fits = number != nullptr && number->get() >= Limits::min() && number->get() <= Limits::max();
        return fits ? Variant(static_cast<std::int32_t>(number->get())) : Variant();
    }
    std::string ToText() const { return RegistryText(mRoot); }

private:
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
    ReplacementFile file(NativePath::Exactly(mPath));
    file.Write(tables.ToText());
    file.Commit();
}

}
