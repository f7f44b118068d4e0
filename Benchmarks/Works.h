#pragma once

#include <algorithm>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "Documents.h"

namespace Bench {

/// A work that a contender is ready to do on one document.
struct Work {
    std::function<void()>
        prepare;               ///< before each run, not timed: frees what the last one made, sets values; may be empty
    std::function<void()> run; ///< timed
};

/// A work that a contender can do on every document of some kinds.
struct Offer {
    std::string work;
    std::string contender;
    std::vector<Kind> kinds;
    /// Makes ready, which is not timed. The document outlives the work.
    std::function<Work(const Document&)> make;
};

/// The text of all that a contender has read from a document, to be checked before anything is timed.
struct Proof {
    std::string contender;
    std::vector<Kind> kinds;
    std::function<std::string(const Document&)> loaded;
    std::function<std::string(const Document&)> merged; ///< with the override; empty when the contender does not merge
};

struct Works {
    std::vector<Offer> offers;
    std::vector<Proof> proofs;
};

inline const std::vector<Kind> documentKinds = {Kind::Translations, Kind::States};
inline const std::vector<Kind> allKinds = {Kind::Translations, Kind::States, Kind::Packets};

// Names of works, as they stand in the table.
inline const std::string loadWork = "load, later editable";
inline const std::string readOnlyWork = "load, read-only";
inline const std::string lookUpWork = "look every entry up by key";
inline const std::string updateNoneWork = "update, nothing changed";
inline const std::string updateTenthWork = "update, 10 % of the values changed";
inline const std::string saveWork = "save after it, to text";
inline const std::string mergeWork = "merge of a 10 % override, its load included";
inline const std::string dumpWork = "dump by node, to text";
inline const std::string saveContentsWork = "SaveContents";
inline const std::string packetWork = "packets: load, read, write";

inline const std::string ours = "ours";
inline const std::string baseContender = "Xerces DOM";
/// The base of packets: a fresh parser for each.
inline const std::string packetBase = "Xerces DOM, bound by hand, fresh parser";

/// Whether the offer fits the document, and its name holds the filter. The base of all ratios is always wanted.
inline bool IsWanted(const Offer& offer, const Document& document, const std::string& filter) {
    const bool isBase = offer.work == loadWork && offer.contender == baseContender;
    const std::string name = offer.work + '/' + offer.contender + '/' + document.name;
    return std::ranges::count(offer.kinds, document.kind) > 0 && (isBase || name.find(filter) != std::string::npos);
}

void OfferOurs(Works& works);
void OfferXerces(Works& works);
void OfferFloors(Works& works);
void OfferParsersAlone(Works& works);
void OfferLibxml2(Works& works);
void OfferPugixml(Works& works);
void OfferXsdTree(Works& works);
void OfferGsoap(Works& works);

/// Keeps a result from being optimised away, and tells of one that cannot be.
inline void Require(bool holds, const std::string& what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

} // namespace Bench
