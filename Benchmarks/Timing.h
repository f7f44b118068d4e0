#pragma once

#include <string>
#include <vector>

#include "Results.h"
#include "Works.h"

namespace Bench {

/// Times every offer that fits a document, all in this process and in a mixed order: the rounds of one work lie between
/// those of the others, so that a busy minute of the machine slows all alike. Each round makes ready, runs once
/// untimed, and then counts the processor time of the thread. With two threads the clock on the wall counts.
Results TimeAll(const Works& works, const std::vector<Document>& documents, const std::string& filter);

} // namespace Bench
