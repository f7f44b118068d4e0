#pragma once

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Framework/ContainerCatalog.h"

/// Made-up content for any class, built from the catalogue alone: what a document says, apart from how it is written
/// and how it is read. Tests write it as XML, let the library load, merge or dump it, and compare what the objects hold
/// with what was made up.
namespace Samples {

struct Sample;

struct EntrySample {
    std::string key;
    std::string text; ///< of a list of strings or enumerations
    std::unique_ptr<Sample> object;
};

struct FieldSample {
    explicit FieldSample(CatalogField which) : field(which) {}
    CatalogField field;
    bool present = false;
    std::string text; ///< of a scalar
    std::unique_ptr<Sample> child;
    std::vector<EntrySample> entries;
};

struct Sample {
    CatalogClass type;
    std::string name; ///< the element
    std::vector<FieldSample> fields;
};

using Random = std::mt19937;

/// Texts hold quotes, markup characters and letters of several scripts. `firstKey` numbers the entries of keyed lists,
/// so that two samples overlap as wanted. With `everything` no field is left out.
Sample Make(CatalogClass type, const std::string& name, Random& random, int firstKey = 1, bool everything = false);

/// What an object holds.
Sample Read(TypedDataContainer& object);

/// What a reset leaves: defaults, no entries, children in place.
void Reset(Sample& sample, bool keepAttributes);

/// What an object holds when `over` was merged into `base`, and the same of one field.
void Merge(Sample& base, const Sample& over);
void MergeField(FieldSample& into, const FieldSample& from);

/// Puts an entry "First", "Last", "Before KEY" or "After KEY". Whether it stands elsewhere now.
bool Move(std::vector<EntrySample>& entries, std::size_t position, const std::string& where);

/// As a document. With `noise` elements come in any order with strangers, comments and instructions between, values
/// partly as CDATA, and numbered lists carry numbers that mean nothing.
std::string ToXml(const Sample& sample, Random& random, bool noise);

/// The same with elements that should stand once standing twice, with other content in the first.
std::string ToXmlWithRepeats(const Sample& sample, Random& random);

/// The step of a path that leads to an entry of a list.
std::string EntryStep(const FieldSample& list, std::size_t position);

/// Every scalar and text with its path, and every object with null for the field and its name for the text.
using Visit = std::function<void(const std::string& path, const FieldSample* field, const std::string& text)>;
void ForEachPart(const Sample& sample, const std::string& path, const Visit& visit);

/// One line for each object and value, in the order of the class's fields: what the sample says a loaded object must
/// hold.
std::vector<std::string> Lines(const Sample& sample);

/// The same lines from an object.
std::vector<std::string> Lines(TypedDataContainer& object);

/// "<" & co. for an attribute in double quotes or a text.
std::string Escaped(const std::string& text);

} // namespace Samples
