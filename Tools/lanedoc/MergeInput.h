#pragma once

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Messages.h"
#include "Source.h"

namespace Lanedoc {

/// What every command that merges is told.
struct MergeArguments {
    std::string base;
    std::vector<std::string> overrides; ///< each `[FEATURE=]FILE`
    std::size_t maxErrors = mostMessages;
    bool quiet = false; ///< no warnings
};

struct Override {
    std::unique_ptr<Source> source;
    std::string feature;
};

/// The documents of a merge. All are read before anything is done with one.
struct MergeInput {
    std::unique_ptr<Source> base;
    std::vector<Override> overrides;
};

/// Adds BASE, OVERRIDE... and the options for what is told on standard error to a command.
void AddMergeArguments(CLI::App& command, MergeArguments& arguments);

/// Reads them all. Throws a Failure when one cannot be read or has another root element than the base.
MergeInput ReadMergeInput(const MergeArguments& arguments);

/// What the help of every command that merges says about its arguments.
constexpr const char* aboutFeatures = "FEATURE is what the override is merged as: without it the FeatureID of its root "
                                      "element, else the name of the file.";

} // namespace Lanedoc
