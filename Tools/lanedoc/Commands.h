#pragma once

#include <functional>

#include <CLI/CLI.hpp>

#include "Failure.h"
#include "Output.h"

namespace Lanedoc {

/// What the command line asks for, once it is read.
struct Request {
    ColorMode color = ColorMode::Auto;
    std::function<ExitCode()> run;
};

// Each adds its command to the tool; chosen, the command leaves its work in `request.run`.
void AddMergeCommand(CLI::App& tool, Request& request);
void AddPlanCommand(CLI::App& tool, Request& request);
void AddExplainCommand(CLI::App& tool, Request& request);
void AddBlameCommand(CLI::App& tool, Request& request);
void AddShowCommand(CLI::App& tool, Request& request);
void AddGetCommand(CLI::App& tool, Request& request);
void AddSetCommand(CLI::App& tool, Request& request);
void AddModelCommand(CLI::App& tool, Request& request);
void AddCheckCommand(CLI::App& tool, Request& request);
void AddHelpCommand(CLI::App& tool, Request& request);

} // namespace Lanedoc
