#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Bench {

enum class Kind { Translations, States, Packets };

/// A document that every contender reads, or a handful of packets.
struct Document {
    std::string name; ///< heads its column, as in "W1 10k"
    Kind kind;
    std::string text;         ///< of packets the first
    std::string overrideText; ///< a tenth of the entries with other values, and a few new ones; none for packets
    std::vector<std::string> packets; ///< empty for documents
};

/// A translation document: one long keyed list of small entries.
struct TranslationShape {
    std::size_t entries = 1000;
    std::size_t wordsPerText = 6;  ///< on average
    std::size_t notesPerEntry = 0; ///< beyond the one that every tenth has
};

/// A state table: lists within lists, up to twelve elements deep.
struct StateShape {
    std::size_t bytes = 1'000'000;
    bool hasInputs = false;         ///< values made from inputs, which are as deep as the schema goes
    std::size_t unknownLevels = 0;  ///< elements within elements that no field names, in each state
    std::size_t moreAttributes = 0; ///< on each datum, beyond those of the schema, which it then has all
    std::size_t distinctKeys = 40;  ///< of triggers and data; 0: every key is another one
    std::size_t dataPerItem = 0;    ///< 0: one to three
};

/// All makers give the same bytes on every machine.
Document MakeTranslations(std::string name, const TranslationShape& shape);
Document MakeStates(std::string name, const StateShape& shape);
/// Logging packets of 1.5 KB with 37 scalars each.
Document MakePackets(std::string name, std::size_t count);

/// What is measured by default, or the small ones of it.
std::vector<Document> MakeWorkloads(bool isQuick);
/// Documents that stress one thing each.
std::vector<Document> MakeShapes();

} // namespace Bench
