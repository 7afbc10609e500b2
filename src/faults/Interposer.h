#pragma once

#include "base/Failure.h"

#include <span>
#include <string_view>

namespace tempodial {

/// A call that the add-in makes to its surroundings.
struct InterposedCall
{
    /// The names of the object's class, its own first.
    std::span<const std::string_view> classes;
    /// The member; a property has one name, whether it is read or written.
    std::string_view member;
    /// Which of several things it asks for, empty without any.
    std::string_view key;
    /// The file or folder that it is about, empty without any.
    std::string_view path;
    /// True when it opens the file for writing.
    bool opensForWriting = false;
    /// True when it sets the property that the member names.
    bool writes = false;
};

/// What stands between the add-in and its surroundings, and is told of each call.
class Interposer
{
public:
    virtual ~Interposer() = default;

    /// A call is about to be made; what is thrown here, it fails with, and the object never sees it.
    virtual void Before(const InterposedCall& /*call*/) { }
    /// A call that was made has failed; the failure goes on to the add-in.
    virtual void Failed(const InterposedCall& /*call*/, const Failure& /*failure*/) { }
};

}
