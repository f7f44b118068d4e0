#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Robustness {

/// A word that no value may hold: it stands in files that no load may open, and where a document type would inject it.
inline constexpr std::string_view kCanary = "CANARY7F3A";

struct HostileDocument {
    std::string name;
    /// How the error goes on behind the name of the document: "2:1: a document type". Empty: it loads.
    std::string refusal;
    std::function<std::string(std::size_t size)> text;
    std::size_t small = 0; ///< sizes of the small and the full run; 0: there is but one
    std::size_t full = 0;
    std::string root = "TranslationConfig";
    double mostMegabytes = 150; ///< that a refusal may take
    bool lifted = false;        ///< loaded without limits
};

/// What is far larger inside than it looks has to be refused with very little memory.
inline constexpr double kBombMegabytes = 40;

using HostileDocuments = std::vector<HostileDocument>;

/// A group of HostileDocuments.txt. What they try to reach is in the folder: canary.txt, canary.xml and canary.dtd.
HostileDocuments DocumentsOf(std::string_view group, const std::string& folder = {});

} // namespace Robustness
