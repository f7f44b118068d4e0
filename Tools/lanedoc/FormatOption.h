#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace Lanedoc {

/// Adds --format, text or json, to a command.
void AddFormatOption(CLI::App& command, std::string& format);

} // namespace Lanedoc
