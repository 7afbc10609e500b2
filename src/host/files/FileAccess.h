#pragma once

#include "host/files/NativePath.h"

#include <cstdint>
#include <optional>

namespace tempodial {

/// True when other users may read or write what stands at a path.
bool IsOpenToOthers(const NativePath& path);
/// The bytes that this user may still write where a path is; nothing when nobody can tell.
std::optional<std::uint64_t> FreeBytes(const NativePath& path);

}
