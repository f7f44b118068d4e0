#pragma once

#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/DocumentData.h"

#include <string>

namespace Framework {

/// Refuses a document for its size alone, before anything is done with it.
void CheckDocumentSize(std::size_t bytes, const std::string& sourceName, const LoadLimits& limits);

/// Parses a document: whatever XML the library reads, it reads through this function. Throws ParseError for everything
/// that is wrong with the document or beyond the limits, and std::bad_alloc.
DocumentData ParseDocument(std::string bytes, std::string sourceName, const LoadLimits& limits);

} // namespace Framework
