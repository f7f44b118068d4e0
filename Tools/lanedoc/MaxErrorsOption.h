#pragma once

#include <cstddef>

#include <CLI/CLI.hpp>

namespace Lanedoc {

/// Adds --max-errors to a command that tells Messages.
void AddMaxErrorsOption(CLI::App& command, std::size_t& most);

} // namespace Lanedoc
