#pragma once

#include <toml++/toml.h>

#include <string>

namespace tempodial {

/// The text of a registry file: values, then tables, each under its whole name. Whatever stands in a name or a text,
/// the file reads as it was.
std::string RegistryText(const toml::table& root);
/// The text of one value in it that holds no other ones.
std::string RegistryValueText(const toml::node& value);

}
