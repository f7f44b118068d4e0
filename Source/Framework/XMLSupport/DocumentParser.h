#pragma once

#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/DocumentData.h"

#include <string>

namespace Framework {

/// Parses a document: whatever XML the library reads, it reads through this function. Throws ParseError for everything
/// that is wrong with the document or beyond the limits, and std::bad_alloc.
DocumentData ParseDocument(std::string bytes, std::string sourceName, const LoadLimits& limits);

} // namespace Framework
