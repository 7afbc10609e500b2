#pragma once

#include "base/SettingsFile.h"

#include <string>

namespace tempodial {

/// What is wrong with settings that some work reads, empty when it reads them.
template <class Work> std::string SettingsRefusal(Work&& work)
{
    try {
        work();
    } catch (const SettingsFileError& error) {
        return error.what();
    }
    return "";
}

}
