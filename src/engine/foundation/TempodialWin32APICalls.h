#pragma once

#include "base/Variant.h"
#include "engine/core/ProductWords.h"
#include "platform/Platform.h"
#include "platform/system/Registry.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The lowest layer: plain calls of the operating system, none of which reports a failure.
class TempodialWin32APICalls
{
public:
    /// The key that an empty one stands for.
    static constexpr const char* DefaultKey = ProductKey;

    /// A text or a number, the empty text when nothing can be read. An absent key is made.
    static Variant ReadRegistryValue(const Platform& platform, Hive hive, const std::string& key,
        const std::string& value, RegistryAccess access) noexcept;
    /// Writes a text without the blanks at its ends.
    static void WriteRegistryValue(const Platform& platform, Hive hive, const std::string& key,
        const std::string& value, const std::string& text) noexcept;
    /// The decimal id of the calling thread, 0 when it isn't known.
    static std::int32_t GetThreadId(const Platform& platform) noexcept;
    /// Opens a document or an address in its default program.
    static void OpenInShell(const Platform& platform, const std::string& document) noexcept;
};

}
