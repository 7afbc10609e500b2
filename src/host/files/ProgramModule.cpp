#include "host/files/ProgramModule.h"

#include "host/files/ProgramFolder.h"

#include <dlfcn.h>

namespace tempodial {

std::string ProgramModule::PathOf(const std::string& name)
{
    return InProgramFolder("lib/tempodial/" + name + ".so");
}

void* ProgramModule::Symbol(const char* name) const
{
    // It stays loaded: GLib, on which modules stand, can't be unloaded.
    auto* module = ::dlopen(mPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    auto* symbol = module != nullptr ? ::dlsym(module, name) : nullptr;
    if (symbol == nullptr) {
        throw Failure(Error::CannotCreateObject);
    }
    return symbol;
}

}
