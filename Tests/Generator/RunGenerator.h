#pragma once

#include "Commands.h"

namespace Framework {

inline CommandResult RunGenerator(const std::filesystem::path& schemas, const std::filesystem::path& output,
                                  const std::string& option = {}) {
    return RunCommand(Quoted(FRAMEWORK_CONTAINER_GENERATOR) + " " + Quoted(schemas) + " " + Quoted(output) + " " +
                      option);
}

} // namespace Framework
