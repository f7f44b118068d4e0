#include "XmlMutator.h"

#include <random>
#include <stdexcept>
#include <vector>

#include "Framework/ContainerCatalog.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/TextEncoding.h"
#include "Framework/XMLSupport/TreeReading.h"

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

class Mutation {
public:
    Mutation(std::string_view document, unsigned seed)
        : m_random(seed), m_document(Document::Parse(std::string(document), "input", LoadLimits())),
          m_text(m_document->Source()) {
        const XmlTree& tree = *m_document;
        for (NodeRef node = tree.Root(); node != NodeRef::None; node = NextInOrder(tree, node, tree.Root())) {
            (tree.Kind(node) == NodeKind::Element ? m_elements : m_others).push_back(node);
            for (NodeRef each = tree.FirstAttribute(node); each != NodeRef::None; each = tree.NextSibling(each)) {
                m_others.push_back(each);
            }
        }
    }

    std::string Run() {
        const NodeRef element = Pick(m_elements);
        const ByteRange range = m_document->Range(element);
        const std::vector<std::string> fields = FieldsOf(m_document->Name(element));
        switch (m_random() % 6) {
        case 0: // take away
            if (element != m_document->Root()) {
                m_text.erase(range.begin, range.Size());
            }
            break;
        case 1: // copy, into another or beside itself
            PutInto(Pick(m_elements), m_text.substr(range.begin, range.Size()));
            break;
        case 2: // another attribute
            PutAttribute(element, Pick(kAttributes), Pick(kAttributeTexts));
            break;
        case 3: // a field of its class
            if (!fields.empty()) {
                const std::string name = Pick(fields);
                PutInto(element, "<" + name + ">" + Pick(kTexts) + "</" + name + ">");
            }
            break;
        case 4: // other text
            PutInto(element, Pick(kTexts));
            break;
        default: // another value, or none
            if (!m_others.empty()) {
                Replace(Pick(m_others));
            }
            break;
        }
        return EncodeDocument(m_text, m_document->EncodingName(), m_document->HasByteOrderMark()).value_or(m_text);
    }

private:
    template <typename Item> const Item& Pick(const std::vector<Item>& items) {
        return items[m_random() % items.size()];
    }

    /// Behind the start tag, or in front of the end tag.
    void PutInto(NodeRef element, const std::string& text) {
        const ByteRange range = m_document->Range(element);
        const std::size_t start = m_document->StartTag(element).end;
        if (start == range.end) { // <a/>
            m_text.replace(start - 2, 2, ">" + text + "</" + std::string(m_document->Name(element)) + ">");
        } else {
            m_text.insert(m_random() % 2 == 0 ? start : m_text.rfind('<', range.end - 1), text);
        }
    }

    void PutAttribute(NodeRef element, const std::string& name, const std::string& text) {
        if (FindAttribute(*m_document, element, name) == NodeRef::None) {
            const std::size_t behindName = m_document->Range(element).begin + 1 + m_document->Name(element).size();
            m_text.insert(behindName, " " + name + "=\"" + text + "\"");
        }
    }

    void Replace(NodeRef node) {
        const bool isAttribute = m_document->Kind(node) == NodeKind::Attribute;
        const ByteRange range = isAttribute ? m_document->ValueRange(node) : m_document->Range(node);
        const std::string text = Pick(kTexts);
        if (!isAttribute || text.find_first_of("<'") == std::string::npos) {
            m_text.replace(range.begin, range.Size(), text);
        }
    }

    std::minstd_rand m_random;
    std::shared_ptr<const Document> m_document;
    std::string m_text;
    std::vector<NodeRef> m_elements;
    std::vector<NodeRef> m_others; ///< attributes too
};

} // namespace

std::string MutateXml(std::string_view document, unsigned seed) {
    std::string text(document);
    std::minstd_rand random(seed);
    try {
        for (unsigned steps = static_cast<unsigned>(1 + random() % 3); steps > 0; --steps) {
            text = Mutation(text, static_cast<unsigned>(random())).Run();
        }
    } catch (const std::runtime_error&) {
        return text; // a step made what does not load: the fuzzer may have it
    }
    return text;
}

} // namespace Fuzz
