#pragma once

#include "base/Ref.h"
#include "faults/Problems.h"
#include "platform/system/Registry.h"

namespace tempodial {

/// A registry that notes which values couldn't be written, and fails as before.
class RecordingRegistry final : public Registry
{
public:
    RecordingRegistry(Ref<Registry> inner, Ref<Problems> problems);

    Variant Read(Hive hive, const std::string& key, const std::string& value, RegistryAccess access) override;
    void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override;

private:
    Ref<Registry> mInner;
    Ref<Problems> mProblems;
};

}
