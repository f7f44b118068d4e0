#include "Framework/ContainerBase/Sources.h"

#include <xercesc/dom/DOM.hpp>

#include "Framework/ContainerBase/Templates.h"
#include "Framework/XMLSupport/DocumentParser.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/NodePlace.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/XmlWriter.h"

namespace Framework {

namespace {

std::unique_ptr<XMLDataWrapper> Loaded(TypedDataContainer& object, std::unique_ptr<XMLDataWrapper> wrapper,
                                       bool success) {
    if (!success) {
        object.SetLastError(-1, "%s", wrapper->GetLastError().c_str());
        wrapper.reset();
    }
    return wrapper;
}

std::unique_ptr<XMLDataWrapper> OpenText(TypedDataContainer& object, const std::optional<zelString>& text,
                                         const char* kind, const char* store, const char* xmlName, bool readOnly) {
    if (!text.has_value()) {
        object.SetLastError(-1, "no %s \"%s\" is registered for the element %s", kind, store, xmlName);
        return nullptr;
    }
    auto wrapper = std::make_unique<XMLDataWrapper>();
    const bool success = wrapper->LoadXMLText(*text, readOnly);
    return Loaded(object, std::move(wrapper), success);
}

const char* OrEmpty(const char* text) {
    return text == nullptr ? "" : text;
}

} // namespace

std::unique_ptr<XMLDataWrapper> OpenFile(TypedDataContainer& object, const char* path, bool readOnly) {
    auto wrapper = std::make_unique<XMLDataWrapper>();
    const bool success = wrapper->LoadXMLFile(path, readOnly);
    return Loaded(object, std::move(wrapper), success);
}

std::unique_ptr<XMLDataWrapper> OpenDomNode(TypedDataContainer& object, DOMNode* node, bool readOnly) {
    if (node != nullptr && node->getNodeType() == DOMNode::DOCUMENT_NODE) {
        node = static_cast<DOMDocument*>(node)->getDocumentElement();
    }
    if (node == nullptr || node->getNodeType() != DOMNode::ELEMENT_NODE) {
        object.SetLastError(-1, "the DOM node is no element");
        return nullptr;
    }
    const DomTree tree(node->getOwnerDocument());
    std::string text = WriteXml(tree, tree.Ref(node), {.declaration = false, .indent = false});
    FaultPoint("LoadXMLText");
    const LoadLimits limits = LoadLimits::Current();
    CheckDocumentSize(text.size(), writtenDomName, limits);
    auto wrapper = std::make_unique<XMLDataWrapper>();
    WrapperAccess::State(*wrapper).Load(Document::Parse(std::move(text), writtenDomName, limits), readOnly);
    return wrapper;
}

std::unique_ptr<XMLDataWrapper> OpenTemplate(TypedDataContainer& object, const char* store, const char* xmlName,
                                             bool readOnly) {
    store = OrEmpty(store);
    xmlName = OrEmpty(xmlName);
    return OpenText(object, Templates().Find(store, xmlName), "template store", store, xmlName, readOnly);
}

std::unique_ptr<XMLDataWrapper> OpenModel(TypedDataContainer& object, const char* model, const char* xmlName,
                                          bool readOnly) {
    model = OrEmpty(model);
    xmlName = OrEmpty(xmlName);
    return OpenText(object, Models().Find(model, xmlName), "model", model, xmlName, readOnly);
}

NodeRef StartNode(const WrapperState& state, NodeRef standing, const zelString& name) {
    const XmlTree& tree = *state.Tree();
    if (standing != NodeRef::None && tree.Kind(standing) == NodeKind::Element &&
        tree.Name(standing) == std::string_view(name)) {
        return standing;
    }
    return FirstDescendantNamed(tree, tree.Root(), name);
}

void SetNoElementError(TypedDataContainer& object, const WrapperState& state, const zelString& name) {
    const XmlTree& tree = *state.Tree();
    const NodeRef root = tree.Root();
    const std::string rootName(root == NodeRef::None ? "nothing" : tree.Name(root));
    if (state.document != nullptr && !state.domIsMaster) {
        const Place place = state.document->PlaceOf(root);
        object.SetLastError(-1, "%s:%zu:%zu: no element %s in this document, whose root is %s",
                            state.document->SourceName().c_str(), place.line, place.column, name.c_str(),
                            rootName.c_str());
    } else {
        object.SetLastError(-1, "no element %s in this document, whose root is %s", name.c_str(), rootName.c_str());
    }
}

zelString FeatureOf(const XMLDataWrapper& source, const zelString& otherwise) {
    const WrapperState& state = WrapperAccess::State(source);
    const zelString feature = AttributeOf(*state.Tree(), state.Tree()->Root(), "FeatureID");
    return feature.empty() ? otherwise : feature;
}

} // namespace Framework
