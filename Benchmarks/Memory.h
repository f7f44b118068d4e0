#pragma once

#include <string>
#include <vector>

#include "Results.h"
#include "Works.h"

namespace Bench {

/// Runs this program anew for every load of every document, once each, and asks it for that figure. The document is
/// handed over as a file in memory.
void MeasureMemory(const Works& works, const std::vector<Document>& documents, const std::string& filter,
                   Results& results);

/// The part of the program that is run anew: the words that follow its own flag.
inline const std::string memoryFlag = "--measure-memory";
int MeasureMemoryHere(const Works& works, const std::vector<std::string>& words);

} // namespace Bench
