#pragma once

#include "base/Failure.h"

#include <string>
#include <utility>

namespace tempodial {

/// A module of the program, loaded when a function of it is first asked for, so that runs that need none don't pay for
/// the libraries behind it.
class ProgramModule
{
public:
    /// Takes the path of the module.
    explicit ProgramModule(std::string path)
        : mPath(std::move(path))
    {
    }

    /// The function of that name; fails (429) when the module or the function can't be loaded.
    template <class Function> Function Get(const char* name) const { return reinterpret_cast<Function>(Symbol(name)); }

    /// The path of the module of that name that belongs to the running program, both installed and in a build tree.
    static std::string PathOf(const std::string& name);

private:
    void* Symbol(const char* name) const;

    std::string mPath;
};

}
