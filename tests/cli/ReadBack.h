#pragma once

#include <string>

namespace tempodial {

/// What a Python script of tests/ prints about a file.
std::string ReadBack(const std::string& script, const std::string& path);

}
