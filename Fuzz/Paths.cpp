#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>

#include "Framework/LoadLimits.h"
#include "Framework/XMLDataWrapper.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/DomBuilder.h"
#include "Framework/XMLSupport/NodePath.h"
#include "Framework/XMLSupport/PathLookup.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XPathFallback.h"
#include "Framework/XMLSupport/XmlRuntime.h"
#include "Target.h"

namespace Fuzz {

namespace {

using namespace Framework;

/// Names that stand once, more than once, below themselves, with prefixes; keys with quotes, brackets and blanks. The
/// first `w` has more children than are looked through one by one.
std::string MakeDocument() {
    std::string text = "<r k='1' p:k='2'><a k='1' l='x'><a k='2'>t</a><b/></a><a k=\"it's\" l='x'/><a k='\"' l=''/>"
                       "<p:q k='a]b/c' \xC3\xA4='1'/><b><a k='1'/><c k=' '><c k='1'><a/></c></c></b><w>";
    for (int i = 0; i < 30; ++i) {
        text +=
            "<a k='" + std::to_string(i % 20) + "' l='" + std::to_string(i % 3) + "'/>" + (i % 4 == 0 ? "<b/>" : "");
    }
    return text + "</w><w/>tail<a k='last'/></r>";
}

struct Trees {
    Trees() : document(Document::Parse(MakeDocument(), "paths", LoadLimits())) {
        EnsureXmlRuntime();
        dom = std::make_unique<DomTree>(BuildDom(*document, [](NodeRef, DOMNode*) {}));
    }

    std::shared_ptr<const Document> document;
    std::unique_ptr<DomTree> dom;
};

std::string Literal(const std::string& value) {
    const char* const quote = value.find('\'') == std::string::npos ? "'" : "\"";
    if (value.find(*quote) == std::string::npos) {
        return quote + value + quote;
    }
    std::string parts = "concat(''";
    for (std::size_t begin = 0; begin <= value.size();) {
        const std::size_t end = std::min(value.find('\'', begin), value.size());
        parts += ",'" + value.substr(begin, end - begin) + "'" + (end < value.size() ? ",\"'\"" : "");
        begin = end + 1;
    }
    return parts + ")";
}

/// The element names of XPath are without prefix, ours are whole: so every name is compared as a text.
std::string ConditionsInXPath(const PathStep& step) {
    std::string text;
    for (const PathCondition& condition : step.conditions) {
        text += "[@*[name()=" + Literal(condition.attribute) + "]=" + Literal(condition.value) + "]";
    }
    return text;
}

/// What a read path means, said in XPath.
std::string InXPath(const QueryPath& path) {
    std::string text;
    bool isHead = path.fromDocument;
    for (const PathStep& step : path.steps) {
        const std::string test = "*[name()=" + Literal(step.name) + "]";
        const std::string conditions = ConditionsInXPath(step);
        const std::string position = "[" + std::to_string(step.position) + "]";
        if (isHead) {
            const std::string all = "(//" + test + (step.position == 0 ? conditions : "") + ")";
            text = all + (step.position == 0 ? "[1]" : position + conditions);
        } else if (step.isAttribute) {
            text += "/@" + test;
        } else if (step.position != 0) {
            text += "/" + test + position + conditions;
        } else {
            text += "/" + test + (conditions.empty() ? "[last()]" : conditions + "[1]");
        }
        isHead = false;
    }
    return path.fromDocument ? text : "." + text;
}

/// The path of the node, "none", or that the query is refused.
std::string Found(const XmlTree& tree, ChildIndex& index, NodeRef context, std::string_view query) {
    try {
        const NodeRef node = FindByPath(tree, index, context, query);
        return node == NodeRef::None ? "none" : NodePath(tree, node);
    } catch (const std::runtime_error& refused) {
        Expect(*refused.what() != '\0', "a refusal says nothing");
        return "refused";
    }
}

void ExpectFoundAsByXPath(const XmlTree& tree, NodeRef context, const QueryPath& path, const std::string& found) {
    const bool countsTooFar = std::any_of(path.steps.begin(), path.steps.end(),
                                          [](const PathStep& step) { return step.position == PathStep::nowhere; });
    const std::string expression = InXPath(path);
    if (countsTooFar || !IsXmlText(expression)) {
        Expect(found == "none", "what cannot be there is found", found);
        return;
    }
    try {
        const NodeRef node = EvaluateXPath(tree, context, expression);
        const std::string expected = node == NodeRef::None ? "none" : NodePath(tree, node);
        Expect(found == expected, "XPath finds something else", found + " instead of " + expected);
    } catch (const std::runtime_error& refused) {
        const std::string_view text = refused.what();
        Expect(text.find("longer than") != text.npos || text.find("more than") != text.npos, "XPath refuses a path",
               text);
    }
}

class Lookups {
public:
    explicit Lookups(const XmlTree& tree) : m_tree(tree), m_index(tree) {
        const NodeRef root = tree.Root();
        m_contexts = {root, m_index.At(root, "w", 1), m_index.At(root, "b", 1)};
    }

    /// The index serves all queries of the input, so that each is answered with what the others left in it.
    std::vector<std::string> Find(std::string_view query, const ParsedPath& parsed) {
        std::vector<std::string> all;
        for (const NodeRef context : m_contexts) {
            const std::string& found = all.emplace_back(Found(m_tree, m_index, context, query));
            if (parsed.kind == PathKind::Simple) {
                ExpectFoundAsByXPath(m_tree, context, parsed.path, found);
            } else if (parsed.kind == PathKind::Ambiguous) {
                Expect(found == "refused", "an ambiguous query finds something", found);
            }
        }
        return all;
    }

private:
    const XmlTree& m_tree;
    ChildIndex m_index;
    std::vector<NodeRef> m_contexts;
};

/// What is made is found, is not made twice, and can be saved; what cannot be made changes nothing.
void ExpectMakes(FullFunctionXMLDataWrapper& output, const zelString& query) {
    const zelString before = output.GetXMLText();
    if (!output.CreateQueryPath(query)) {
        Expect(output.GetLastError().find(query) != zelString::npos, "a refusal does not name the query");
        Expect(output.GetXMLText() == before, "a path that cannot be made changes the document", query);
        return;
    }
    Expect(output.FindOutputNode(query, true, true) != nullptr, "what was made is not found", query);
    const zelString made = output.GetXMLText();
    XMLDataWrapper again;
    Expect(again.LoadXMLText(made, true), "a document with a made path does not load",
           output.GetLastError() + again.GetLastError());
    Expect(output.CreateQueryPath(query), "a path cannot be made twice", output.GetLastError());
    Expect(output.GetXMLText() == made, "a path is made twice", query);
}

} // namespace

void Paths(std::string_view input) {
    static const Trees trees;
    LoadLimits shortTime; // a query may ask XPath for more than it can do in a lifetime
    shortTime.cpuSeconds = 0.05;
    const LoadLimits::Scope scope(shortTime);
    constexpr int kMostQueries = 8;
    Lookups inDocument(*trees.document);
    Lookups inDom(*trees.dom);
    FullFunctionXMLDataWrapper empty;
    Expect(empty.CreateOutputDocument(nullptr), "no output document", empty.GetLastError());
    FullFunctionXMLDataWrapper filled;
    Expect(filled.LoadXMLText(trees.document->Source(), false), "a document does not load", filled.GetLastError());
    Expect(filled.GetOutputDocument() != nullptr, "a document cannot be turned into a DOM", filled.GetLastError());
    for (int number = 0; number < kMostQueries && !input.empty(); ++number) {
        const std::size_t line = std::min(input.find('\n'), input.size());
        const std::string query(input.substr(0, line));
        input.remove_prefix(std::min(line + 1, input.size()));

        const ParsedPath parsed = ParseQueryPath(query);
        const std::vector<std::string> found = inDocument.Find(query, parsed);
        if (parsed.kind == PathKind::Simple) {
            Expect(inDom.Find(query, parsed) == found, "a DOM is searched differently", query);
        }
        ExpectMakes(empty, query);
        ExpectMakes(filled, query);
    }
}

} // namespace Fuzz
