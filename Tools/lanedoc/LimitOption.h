#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace Lanedoc {

/// Adds --limit, which sets the limits of all loads of this run.
void AddLimitOption(CLI::App& tool);

/// A refusal of the library in the words of the tool: how a limit is raised on the command line.
std::string WithLimitOption(std::string text);

} // namespace Lanedoc
