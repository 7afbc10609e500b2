#pragma once

#include "platform/objectmodel/MAPIFolder.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The folders below a folder, or the stores of a session.
class Folders
{
public:
    virtual ~Folders() = default;

    virtual std::int32_t Count() = 0;
    /// The folder at a position from 1; out of range fails (9).
    virtual Ref<MAPIFolder> Item(std::int32_t index) = 0;
    /// The folder of a name, case ignored; an unknown name fails (-2147221233).
    virtual Ref<MAPIFolder> ItemNamed(const std::string& name) = 0;
    /// Makes a folder of the kind of that default folder; a name in use or not allowed fails.
    virtual Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) = 0;
};

}
