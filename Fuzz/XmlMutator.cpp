#include "XmlMutator.h"

#include <map>
#include <optional>
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

/// What the catalogue knows of names and words, by the element that a class stands for.
struct Vocabulary {
    Vocabulary() {
        for (const CatalogClass& type : ContainerCatalog::Classes()) {
            classes[std::string(type.ElementName())] = type;
            for (const CatalogField& field : type.Fields()) {
                names.emplace_back(field.Name());
                if (field.GetValue() == CatalogField::Container) {
                    classes.try_emplace(std::string(field.Name()), ContainerCatalog::FindClass(field.ClassName()));
                }
            }
        }
        for (const CatalogEnumeration& enumeration : ContainerCatalog::Enumerations()) {
            for (const CatalogEnumeration::Word& word : enumeration.Words()) {
                words.push_back(word.text);
            }
        }
    }

    std::map<std::string, CatalogClass, std::less<>> classes;
    std::vector<std::string> names;
    std::vector<std::string> words;
};

const Vocabulary& TheVocabulary() {
    static const Vocabulary vocabulary;
    return vocabulary;
}

/// As they stand between tags.
const std::vector<std::string> kTexts{
    "",      "0",     "1",    "-1",   "01",     " 2 ",      "2147483648",  "1e308",         "-0.5",
    "nan",   "true",  "Y",    "it's", "&quot;", "a]b/c",    "' and @k='v", "&lt;&amp;&gt;", "]]&gt;",
    "&#13;", "&#10;", "&#9;", " ",    "\r\n",   "\xC3\xA9", "&#128512;"};
const std::vector<std::string> kMarkup{"<!-- remark -->",  "<?target data?>",           "<![CDATA[]]>",
                                       "<![CDATA[<a>&]]>", "<Stranger><b/></Stranger>", "\n  "};
const std::vector<std::string> kAttributes{"MergeAction", "PlacementOrder", "PlacementIndex", "PlacementFeature",
                                           "FeatureID",   "xml:space",      "Index",          "Name",
                                           "stranger"};
const std::vector<std::string> kControlWords{"Merge", "Add",  "Replace", "Remove", "Clear", "First",
                                             "Last",  "Base", "Before",  "After",  "Night", "preserve"};

class Mutation {
public:
    Mutation(std::string_view document, unsigned seed)
        : m_random(seed), m_document(Document::Parse(std::string(document), "input", LoadLimits())),
          m_text(m_document->Source()) {
        const XmlTree& tree = *m_document;
        for (NodeRef node = tree.Root(); node != NodeRef::None; node = NextInOrder(tree, node, tree.Root())) {
            (tree.Kind(node) == NodeKind::Element ? m_elements : m_others).push_back(node);
            for (NodeRef each = tree.FirstAttribute(node); each != NodeRef::None; each = tree.NextSibling(each)) {
                m_attributes.push_back(each);
            }
        }
    }

    std::string Run() {
        switch (m_random() % 10) {
        case 0:
            Delete();
            break;
        case 1:
        case 2:
            CopyElement();
            break;
        case 3:
            Rename();
            break;
        case 4:
            PutAttribute();
            break;
        case 5:
            PutMarkup();
            break;
        case 6:
            ReplaceText();
            break;
        case 7:
            ReplaceAttribute();
            break;
        default:
            PutField();
            break;
        }
        const std::optional<std::string> bytes =
            EncodeDocument(m_text, m_document->EncodingName(), m_document->HasByteOrderMark());
        return bytes.value_or(m_text);
    }

private:
    template <typename Item> const Item& Pick(const std::vector<Item>& items) {
        return items[m_random() % items.size()];
    }

    const std::string& PickText() { return m_random() % 4 == 0 ? Pick(m_vocabulary.words) : Pick(kTexts); }

    void Replace(ByteRange range, const std::string& text) {
        m_text.replace(range.begin, range.end - range.begin, text);
    }
    void Insert(std::size_t at, const std::string& text) { m_text.insert(at, text); }

    bool IsEmptyTag(NodeRef element) const {
        return m_document->StartTag(element).end == m_document->Range(element).end;
    }

    /// Makes room in `<a/>`: inside of the element, behind its start tag.
    std::size_t Inside(NodeRef element) {
        const std::size_t end = m_document->StartTag(element).end;
        if (IsEmptyTag(element)) {
            const std::string name(m_document->Name(element));
            m_text.replace(end - 2, 2, "></" + name + ">");
            return end - 1;
        }
        return end;
    }

    std::size_t BehindStart(NodeRef element) {
        return m_random() % 2 == 0 || IsEmptyTag(element)
                   ? Inside(element)
                   : m_text.rfind('<', m_document->Range(element).end - 1); // at its end tag
    }

    void Delete() {
        const std::vector<NodeRef>& nodes = m_random() % 3 == 0 && !m_attributes.empty() ? m_attributes
                                            : m_random() % 2 == 0 && !m_others.empty()   ? m_others
                                                                                         : m_elements;
        const NodeRef node = Pick(nodes);
        if (node != m_document->Root()) {
            Replace(m_document->Range(node), "");
        }
    }

    void CopyElement() {
        const ByteRange range = m_document->Range(Pick(m_elements));
        const std::string copy = m_text.substr(range.begin, range.end - range.begin);
        const NodeRef to = Pick(m_elements);
        if (m_random() % 2 == 0 && to != m_document->Root()) {
            Insert(m_document->Range(to).end, copy);
        } else {
            Insert(BehindStart(to), copy);
        }
    }

    void Rename() {
        const NodeRef node = Pick(m_elements);
        const std::string name =
            m_random() % 2 == 0 ? Pick(m_vocabulary.names) : std::string(m_document->Name(Pick(m_elements)));
        const std::size_t length = m_document->Name(node).size();
        if (!IsEmptyTag(node)) {
            m_text.replace(m_text.rfind('<', m_document->Range(node).end - 1) + 2, length, name);
        }
        m_text.replace(m_document->Range(node).begin + 1, length, name);
    }

    void PutAttribute() {
        const NodeRef element = Pick(m_elements);
        std::string name = Pick(kAttributes);
        if (const auto type = m_vocabulary.classes.find(m_document->Name(element));
            type != m_vocabulary.classes.end() && m_random() % 2 == 0) {
            for (const CatalogField& field : type->second.Fields()) {
                if (field.GetForm() == CatalogField::Attribute && m_random() % 2 == 0) {
                    name = field.Name();
                }
            }
        }
        const std::string& text = m_random() % 2 == 0 ? Pick(kControlWords) : PickText();
        const std::size_t behindName = m_document->Range(element).begin + 1 + m_document->Name(element).size();
        if (FindAttribute(*m_document, element, name) == NodeRef::None) {
            Insert(behindName, " " + name + "=\"" + text + "\"");
        }
    }

    void PutMarkup() { Insert(BehindStart(Pick(m_elements)), Pick(kMarkup)); }

    void ReplaceText() {
        std::vector<NodeRef> texts;
        for (const NodeRef node : m_others) {
            if (m_document->Kind(node) == NodeKind::Text) {
                texts.push_back(node);
            }
        }
        if (!texts.empty()) {
            Replace(m_document->Range(Pick(texts)), PickText());
        }
    }

    void ReplaceAttribute() {
        if (m_attributes.empty()) {
            return;
        }
        const NodeRef node = Pick(m_attributes);
        const ByteRange other = m_document->ValueRange(Pick(m_attributes));
        std::string text = m_random() % 2 == 0 ? PickText() : m_text.substr(other.begin, other.end - other.begin);
        const std::size_t quote = m_document->ValueRange(node).end;
        if (text.find(m_text[quote]) == std::string::npos) {
            Replace(m_document->ValueRange(node), text);
        }
    }

    /// A field that the class of the element has.
    void PutField() {
        const NodeRef element = Pick(m_elements);
        const auto type = m_vocabulary.classes.find(m_document->Name(element));
        if (type == m_vocabulary.classes.end()) {
            return;
        }
        const std::vector<CatalogField> fields = type->second.Fields();
        if (fields.empty()) {
            return;
        }
        const CatalogField& field = Pick(fields);
        const std::string name(field.Name());
        const std::string key =
            field.KeyAttribute().empty() ? "" : " " + std::string(field.KeyAttribute()) + "=\"" + PickText() + "\"";
        if (field.GetForm() != CatalogField::Attribute) {
            Insert(BehindStart(element), "<" + name + key + ">" + PickText() + "</" + name + ">");
        }
    }

    const Vocabulary& m_vocabulary = TheVocabulary();
    std::minstd_rand m_random;
    std::shared_ptr<const Document> m_document;
    std::string m_text;
    std::vector<NodeRef> m_elements;
    std::vector<NodeRef> m_others;
    std::vector<NodeRef> m_attributes;
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
