#include "XmlMutator.h"

#include <random>
#include <stdexcept>
#include <vector>

#include "Framework/ContainerCatalog.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/TextEncoding.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Target.h"

namespace Fuzz {

namespace {

using namespace Framework;

/// As they stand between tags.
const std::vector<std::string> kTexts{
    "",     "0",     "-1",       "01",           " 2 ",           "2147483648", "1e308",    "nan",
    "true", "it's",  "a]b/c",    "' and @k='v",  "&lt;&amp;&gt;", "]]&gt;",     "\xC3\xA9", "&#128512;",
    "\r\n", "&#13;", "<!-- -->", "<?target d?>", "<![CDATA[]]>",  "<b/>",       "&quot;",   "<![CDATA[<a>&]]>"};
const std::vector<std::string> kAttributes{"MergeAction", "PlacementOrder", "PlacementIndex", "PlacementFeature",
                                           "FeatureID",   "xml:space",      "Index",          "Name"};
const std::vector<std::string> kAttributeTexts{"Merge", "Add",  "Replace", "Remove", "Clear", "First",   "Last",
                                               "Base",  "Base", "Before",  "After",  "Night", "preserve"};

/// The names of the fields of the class that the element stands for.
std::vector<std::string> FieldsOf(std::string_view element) {
    std::vector<std::string> names;
    for (const CatalogClass& type : ContainerCatalog::Classes()) {
        if (type.ElementName() == element) {
            for (const CatalogField& field : type.Fields()) {
                names.emplace_back(field.Name());
            }
        }
    }
    return names;
}

/// One step.
std::string Changed(std::string_view bytes, std::minstd_rand& random) {
    const auto document = Document::Parse(std::string(bytes), "input", LoadLimits());
    std::vector<NodeRef> elements;
    std::vector<ByteRange> values; // of attributes, and texts, comments and instructions
    const NodeRef root = document->Root();
    for (NodeRef node = root; node != NodeRef::None; node = NextInOrder(*document, node, root)) {
        if (document->Kind(node) == NodeKind::Element) {
            elements.push_back(node);
        } else {
            values.push_back(document->Range(node));
        }
        for (NodeRef each = document->FirstAttribute(node); each != NodeRef::None; each = document->NextSibling(each)) {
            values.push_back(document->ValueRange(each));
        }
    }
    const auto pick = [&random](const auto& items) -> const auto& {
        return items[random() % items.size()];
    };

    std::string text = document->Source();
    const NodeRef element = pick(elements);
    const std::string name(document->Name(element));
    const ByteRange range = document->Range(element);
    const std::size_t inside = document->StartTag(element).end;
    const auto put = [&](const std::string& what) {
        if (inside == range.end) { // <a/>
            text.replace(inside - 2, 2, ">" + what + "</" + name + ">");
        } else { // behind the start tag, or in front of the end tag
            text.insert(random() % 2 == 0 ? inside : text.rfind('<', range.end - 1), what);
        }
    };
    switch (random() % 6) {
    case 0: // take away
        if (element != root) {
            text.erase(range.begin, range.Size());
        }
        break;
    case 1: { // copy another one into it
        const ByteRange other = document->Range(pick(elements));
        put(text.substr(other.begin, other.Size()));
        break;
    }
    case 2: // another attribute
        if (const std::string& attribute = pick(kAttributes);
            FindAttribute(*document, element, attribute) == NodeRef::None) {
            text.insert(range.begin + 1 + name.size(), " " + attribute + "=\"" + pick(kAttributeTexts) + "\"");
        }
        break;
    case 3: // a field of its class
        if (const std::vector<std::string> fields = FieldsOf(name); !fields.empty()) {
            const std::string& field = pick(fields);
            put("<" + field + ">" + pick(kTexts) + "</" + field + ">");
        }
        break;
    case 4: // other text
        put(pick(kTexts));
        break;
    default: // another value
        if (!values.empty()) {
            const ByteRange& value = pick(values);
            text.replace(value.begin, value.Size(), pick(kTexts));
        }
        break;
    }
    return EncodeDocument(text, document->EncodingName(), document->HasByteOrderMark()).value_or(text);
}

} // namespace

std::string MutateDocument(std::string_view input, unsigned seed) {
    const std::vector<std::string_view> documents = DocumentsIn(input);
    const std::string_view document = documents[seed % documents.size()];
    const std::string_view behind = input.substr(static_cast<std::size_t>(document.end() - input.begin()));
    std::string text(document);
    std::minstd_rand random(seed);
    try {
        for (unsigned steps = static_cast<unsigned>(1 + random() % 3); steps > 0; --steps) {
            text = Changed(text, random);
        }
    } catch (const std::runtime_error&) { // a step made what does not load: the fuzzer may have it
    }
    return std::string(input.begin(), document.begin()) + text + std::string(behind);
}

} // namespace Fuzz
