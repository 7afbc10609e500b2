#include "faults/RecordingRegistry.h"

#include "base/Failure.h"

#include <utility>

namespace tempodial {

RecordingRegistry::RecordingRegistry(Ref<Registry> inner, Ref<Problems> problems)
    : mInner(std::move(inner))
    , mProblems(std::move(problems))
{
}

Variant RecordingRegistry::Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access)
{
    return mInner->Read(hive, key, value, access);
}

void RecordingRegistry::Write(Hive hive, const std::string& key, const std::string& value, const std::string& text)
{
    try {
        mInner->Write(hive, key, value, text);
    } catch (const Failure& failure) {
        mProblems->Note("the value \"" + value + "\" couldn't be kept in registry.toml: " + failure.Description()
            + ": see to the profile's folder and disk, and run the command again");
        throw;
    }
}

}
