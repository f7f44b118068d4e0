#include "Framework/XMLSupport/XPathFallback.h"

#include "Framework/LoadLimits.h"
#include "Framework/SupportFunc.h"
#include "Framework/XMLSupport/LimitMessages.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/PathError.h"
#include "Framework/XMLSupport/ThreadTime.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XPathCheck.h"
#include "Framework/XMLSupport/XPathMemory.h"
#include "Framework/XMLSupport/XmlMemory.h"
#include "Framework/XMLSupport/XmlRuntime.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <string>

#include <xalanc/DOMSupport/DOMSupport.hpp>
#include <xalanc/PlatformSupport/PrefixResolver.hpp>
#include <xalanc/PlatformSupport/XSLException.hpp>
#include <xalanc/XPath/NodeRefListBase.hpp>
#include <xalanc/XPath/XObject.hpp>
#include <xalanc/XPath/XObjectFactoryDefault.hpp>
#include <xalanc/XPath/XPath.hpp>
#include <xalanc/XPath/XPathConstructionContextDefault.hpp>
#include <xalanc/XPath/XPathEnvSupportDefault.hpp>
#include <xalanc/XPath/XPathExecutionContextDefault.hpp>
#include <xalanc/XPath/XPathProcessorImpl.hpp>
#include <xalanc/XalanDOM/XalanDOMException.hpp>
#include <xalanc/XalanDOM/XalanNode.hpp>
#include <xercesc/util/XMLException.hpp>

namespace Framework {

namespace xalan = XALAN_CPP_NAMESPACE;

namespace {

[[noreturn]] void Refuse(std::string_view expression, const std::string& what) {
    constexpr std::size_t kShown = 200;
    std::string shown(expression.substr(0, kShown));
    throw PathError("XPath \"" + shown + (expression.size() > kShown ? "...\": " : "\": ") + what);
}

std::string ToUtf8(const xalan::XalanDOMString& message) {
    std::string text;
    AppendUtf8(text, message.c_str(), message.size());
    return text;
}

/// Throws what Xalan finds wrong. The stock contexts print it on standard error, which is the host's.
template <class Base> class QuietContext : public Base {
public:
    using Source = typename Base::eSource;
    using Classification = typename Base::eClassification;
    using Base::Base;

    void problem(Source source, Classification classification, const xalan::XalanDOMString& message,
                 const xercesc::Locator*, const xalan::XalanNode* node) override {
        problem(source, classification, message, node);
    }
    void problem(Source, Classification classification, const xalan::XalanDOMString& message,
                 const xalan::XalanNode*) override {
        if (classification == Base::eError) {
            throw XPathProblem(ToUtf8(message));
        }
    }
};

class Support final : public xalan::DOMSupport {
public:
    explicit Support(xalan::MemoryManager& memory) : m_empty(memory) {}
    void reset() override {}
    const xalan::XalanDOMString& getUnparsedEntityURI(const xalan::XalanDOMString&,
                                                      const xalan::XalanDocument&) const override {
        return m_empty;
    }
    bool isNodeAfter(const xalan::XalanNode& node1, const xalan::XalanNode& node2) const override {
        return node1.getIndex() > node2.getIndex();
    }

private:
    xalan::XalanDOMString m_empty;
};

class NoPrefixes final : public xalan::PrefixResolver {
public:
    explicit NoPrefixes(xalan::MemoryManager& memory) : m_empty(memory) {}
    const xalan::XalanDOMString* getNamespaceForPrefix(const xalan::XalanDOMString&) const override { return nullptr; }
    const xalan::XalanDOMString& getURI() const override { return m_empty; }

private:
    xalan::XalanDOMString m_empty;
};

/// Xalan's lists grow by one node at a time, copying all they hold: a list of many must have its room from the start.
class RoomyContext final : public xalan::XPathExecutionContextDefault {
public:
    RoomyContext(xalan::MemoryManager& memory, xalan::XPathEnvSupport& environment, xalan::DOMSupport& support,
                 xalan::XObjectFactory& objects, std::size_t room)
        : XPathExecutionContextDefault(memory), m_room(room) {
        setXPathEnvSupport(&environment);
        setDOMSupport(&support);
        setXObjectFactory(&objects);
    }

    xalan::MutableNodeRefList* borrowMutableNodeRefList() override {
        xalan::MutableNodeRefList* const list = XPathExecutionContextDefault::borrowMutableNodeRefList();
        list->reserve(static_cast<xalan::MutableNodeRefList::size_type>(m_room));
        return list;
    }

private:
    std::size_t m_room;
};

NodeRef Evaluate(xalan::XalanNode& start, std::string_view expression, XPathMemory& memory, std::size_t room) {
    const NoPrefixes prefixes(memory);
    QuietContext<xalan::XPathConstructionContextDefault> construction(memory);
    xalan::XPath path(memory);
    const xalan::XalanDOMString text(ToUtf16(expression).c_str(), memory);
    xalan::XPathProcessorImpl(memory).initXPath(path, construction, text, prefixes, nullptr, false, false);

    Support support(memory);
    QuietContext<xalan::XPathEnvSupportDefault> environment(memory);
    xalan::XObjectFactoryDefault objects(memory);
    RoomyContext execution(memory, environment, support, objects, room);
    const xalan::XObjectPtr result = path.execute(&start, prefixes, execution);
    if (result.null() || result->getType() != xalan::XObject::eTypeNodeSet) {
        throw XPathProblem("it does not select nodes");
    }
    // Sets come in document order, those of a reverse axis too.
    const xalan::NodeRefListBase& nodes = result->nodeset();
    const XmlTree* tree = nullptr;
    return NodeViews::Find(nodes.getLength() == 0 ? nullptr : nodes.item(0), tree);
}

/// What looks at few nodes shall not pay for the size of the tree. What looks at many begins anew, knowing how many
/// there are.
NodeRef EvaluateTwice(NodeViews& views, NodeRef context, std::string_view expression, XPathMemory& memory) {
    constexpr std::size_t kFew = 4096;
    xalan::XalanNode* const start = views.View(context);
    if (start == nullptr) {
        throw XPathProblem("there is no node to start from");
    }
    views.Limit(kFew);
    try {
        return Evaluate(*start, expression, memory, 0);
    } catch (const TooManyViews&) {
        if (memory.IsShort()) {
            throw std::bad_alloc();
        }
    }
    views.Limit(std::numeric_limits<std::size_t>::max());
    return Evaluate(*start, expression, memory, views.CountNodes());
}

/// Predicates in predicates cost as much as there are nodes, to the power of their number.
void LimitTime(NodeViews& views) {
    const double limit = LoadLimits::Current().cpuSeconds;
    views.Watch([limit, start = ThreadSeconds()] {
        if (ThreadSeconds() - start > limit) {
            throw XPathProblem(
                LimitPassed("it takes too much processor time", SupportFunc::GetStrValue(limit) + " s", "cpuSeconds"));
        }
    });
}

/// Xalan repeats the whole expression, token by token.
std::string Shortened(std::string message) {
    constexpr std::size_t kLongest = 200;
    message.resize(std::min({message.size(), message.find('\n'), kLongest}));
    return message;
}

} // namespace

NodeRef EvaluateXPath(const XmlTree& tree, NodeRef context, std::string_view expression) {
    try {
        CheckXPath(expression);
        EnsureXPathRuntime();
    } catch (const std::runtime_error& failure) {
        Refuse(expression, failure.what());
    }
    // Views of its own: they go when it is done, no other thread waits for them, and they know the order of any tree.
    NodeViews views(tree, NodeOrder::ForXPath);
    XPathMemory memory(views); // outlives what is thrown, which may hold texts from it
    LimitTime(views);
    try {
        return WithBadAlloc([&] { return EvaluateTwice(views, context, expression, memory); });
    } catch (const TooManyViews&) { // no number of them is too large the second time: they were closed
        throw std::bad_alloc();
    } catch (const XPathProblem& problem) {
        Refuse(expression, Shortened(problem.what()));
    } catch (const xalan::XSLException& error) {
        Refuse(expression, Shortened(ToUtf8(error.getMessage())));
    } catch (const xercesc::XMLException& error) {
        Refuse(expression, Shortened(ToUtf8(xalan::XalanDOMString(error.getMessage()))));
    } catch (const xalan::XalanDOMException& error) {
        Refuse(expression, "error " + std::to_string(error.getExceptionCode()) + " of the node interface");
    }
}

} // namespace Framework
