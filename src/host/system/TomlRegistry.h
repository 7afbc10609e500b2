#pragma once

#include "platform/system/Registry.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tempodial {

/// A registry file that can't be used; the message names the file, the line and what to do.
class RegistryFileError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A value of the registry.
struct RegistryEntry
{
    Hive hive;
    std::string key;
    std::string value;
    /// A text or a number.
    Variant data;
};

/// The registry in one file, with both hives, that can be read and edited by hand. Keys and values are found in any
/// case. Changes replace the file as a whole; what doesn't change anything isn't written.
class TomlRegistry : public Registry
{
public:
    /// Called, when it is set, before the file is replaced; when it fails, so does the change.
    std::function<void()> mBeforeChange;

    /// Reads the file, or begins with nothing when it is absent. A file that is damaged throws a `RegistryFileError`.
    explicit TomlRegistry(std::string path);
    ~TomlRegistry() override;
    TomlRegistry(const TomlRegistry&) = delete;
    TomlRegistry& operator=(const TomlRegistry&) = delete;

    /// A key that is made by reading reaches the file with the next change.
    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override;
    /// Fails for texts that aren't UTF-8 (5), where the file has something else of the key's name (75), when the
    /// file is a link, read-only or locked (70), and when the disk refuses (61, 57); then nothing has changed.
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override;
    /// Throws a `RegistryFileError` when a value of that key is neither a text nor a number of 32 bits, in either hive;
    /// those named must be texts.
    void RequireSound(const std::string& key, const std::vector<std::string>& texts) const;
    /// A text or a number, nothing when there is none; makes no key.
    Variant Get(Hive hive, const std::string& key, const std::string& value) const;
    /// All texts and numbers of both hives.
    std::vector<RegistryEntry> Entries() const;
    /// Writes a number, making the key; fails as `Write` does.
    void WriteNumber(Hive hive, const std::string& key, const std::string& value, std::int32_t number);
    /// Deletes a value; false when there was none. Fails as `Write` does.
    bool Delete(Hive hive, const std::string& key, const std::string& value);
    /// Does work whose changes reach the file together, when it has ended in whatever way; that fails as `Write` does,
    /// and then none of them was made.
    void Together(const std::function<void()>& work);
    /// Does work whose changes reach the file together when it has ended well, and are dropped when it fails; that
    /// fails as `Write` does, and then none of them was made.
    void AllOrNothing(const std::function<void()>& work);

private:
    class Tables;

    /// Takes over changed content: into the file, or while changes are held into memory alone.
    void Take(std::unique_ptr<Tables> changed);
    /// Brings held changes into the file, and holds no more.
    void Release();

    void Set(Hive hive, const std::string& key, const std::string& value, const Variant& data);
    void Save(const Tables& tables) const;

    std::string mPath;
    std::unique_ptr<Tables> mTables;
    bool mIsHolding = false;
    /// What the file has while it lacks changes that are held.
    std::unique_ptr<Tables> mSaved;
};

}
