#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Robustness {

/// A word that no value may hold: it stands in files that no load may open, and where a document type would inject it.
inline constexpr std::string_view kCanary = "CANARY7F3A";

/// What documents try to reach: a folder with the files canary.txt, canary.xml and canary.dtd, and a port of this
/// machine at which somebody listens.
struct Trap {
    std::string folder;
    int port = 0;
};

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

HostileDocuments EntityDocuments();
HostileDocuments ReachingDocuments(const Trap& trap);
HostileDocuments DepthDocuments();
HostileDocuments FloodDocuments();
HostileDocuments CollisionDocuments();
HostileDocuments HugeDocuments();
HostileDocuments CharacterDocuments();
HostileDocuments MarkupDocuments();

// What the tables are made with. Whatever stands `inside` begins at line 2, column 1.

/// A document of one size.
HostileDocument Fixed(std::string name, std::string refusal, std::string text);

/// Below the root, where no field is.
std::string InRoot(std::string_view inside);
/// In a text that an object holds as a value.
std::string InValue(std::string_view inside);
/// Among the attributes of an element that no field names.
std::string InTag(std::string_view inside);
/// Between the XML declaration and what follows, a document that begins with its root.
std::string InProlog(std::string_view inside, std::string_view rest = InValue("x"));

} // namespace Robustness
