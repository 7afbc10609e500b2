#pragma once

#include <CLI/CLI.hpp>

#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// Reads a program's arguments, its name left out. False when only help or the version was wanted, which is then
/// printed to the stream. Fails with `UsageError`.
bool ParseArguments(CLI::App& app, const std::vector<std::string>& arguments, std::ostream& out);

/// The command that the arguments read chose, the program itself when they chose none.
const CLI::App& ChosenApp(const CLI::App& app);

}
