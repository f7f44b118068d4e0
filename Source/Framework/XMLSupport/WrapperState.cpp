#include "Framework/XMLSupport/WrapperState.h"

#include "Framework/XMLSupport/Attachment.h"
#include "Framework/XMLSupport/DocumentEditor.h"
#include "Framework/XMLSupport/DomEditor.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/OutputScope.h"
#include "Framework/XMLSupport/PathLookup.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/XmlWriter.h"

#include <algorithm>

namespace Framework {

thread_local constinit FaultFunction faultFunction = nullptr;

namespace {

/// Whether others have a share of the document. Where they have not, one in another thread may just have let go of it,
/// and what that read comes before what is written now: taking a share orders the two, which asking for the count alone
/// does not.
bool IsShared(const std::shared_ptr<const Document>& document) {
    const std::shared_ptr<const Document> another = document;
    return another.use_count() > 2;
}

} // namespace

NodeRef WrapperState::Here() const {
    if (current != NodeRef::None || !IsLoaded()) {
        return current;
    }
    return Tree()->Root();
}

bool WrapperState::HeldDocument(const XmlTree* tree) const {
    return tree != nullptr &&
           (tree == document.get() ||
            std::any_of(left.begin(), left.end(), [tree](const auto& each) { return each.get() == tree; }));
}

NodeRef WrapperState::Translate(NodeRef documentNode) const {
    if (!domIsMaster) {
        return documentNode;
    }
    const auto found = dom->nodeOf.find(documentNode);
    return found == dom->nodeOf.end() ? NodeRef::None : dom->tree->Ref(found->second);
}

NodeRef WrapperState::Find(std::string_view path, bool fromDocument) {
    FaultPoint("Find");
    if (!IsLoaded()) {
        return NodeRef::None;
    }
    const PathStart start = StartOf(path, fromDocument);
    const std::unique_lock<std::mutex> lock = LockReading();
    return FindByPath(*Tree(), Index(), start.node, start.rest);
}

NodeRef WrapperState::FindOrNone(std::string_view path, bool fromDocument) {
    try {
        return Find(path, fromDocument);
    } catch (const PathError& failure) {
        SetError(-1, failure.what());
        return NodeRef::None;
    }
}

WrapperState::PathStart WrapperState::StartOf(std::string_view path, bool fromDocument) const {
    if (output != nullptr && output->IsAbove(path)) {
        return {output->Node(), path.substr(std::min(path.size(), output->Query().size() + 1))};
    }
    return {fromDocument ? Tree()->Root() : Here(), path};
}

ChildIndex& WrapperState::Index() {
    // Others may change a DOM between two calls without our knowing, so nothing about it is remembered, except while
    // only we write to it.
    if (!m_index.has_value() || (domIsMaster && output == nullptr)) {
        m_index.emplace(*Tree());
    } else if (domIsMaster) {
        m_index->ForgetDocument();
    }
    return *m_index;
}

void WrapperState::ForgetAttribute(NodeRef element, std::string_view name) {
    if (m_index.has_value()) {
        m_index->ForgetAttribute(Tree()->Parent(element), name);
    }
}

void WrapperState::BuildDom() {
    // A DOM keeps its names in lists that it looks through for every node. No document in use comes near this.
    constexpr std::size_t mostNames = 10'000;
    if (document->NameCount() > mostNames) {
        throw std::runtime_error(document->SourceName() + " has " + std::to_string(document->NameCount()) +
                                 " different names; with more than " + std::to_string(mostNames) +
                                 " a document is not turned into a DOM");
    }
    auto side = std::make_shared<DomSide>();
    side->document = Framework::BuildDom(*document, [&side](NodeRef node, DOMNode* image) {
        side->nodeOf.emplace(node, image);
        side->refOf.emplace(image, node);
    });
    side->tree = std::make_unique<DomTree>(side->document.get());
    dom = std::move(side);
}

DOMNode* WrapperState::DomNode(NodeRef node) {
    if (node == NodeRef::None) {
        return nullptr;
    }
    if (domIsMaster) {
        return DomTree::Node(node);
    }
    if (dom == nullptr) {
        BuildDom();
    }
    DOMNode* const image = dom->nodeOf.at(node);
    if (!readOnly) {
        domIsMaster = true;
        current = Translate(current);
        for (auto& [key, list] : lists) {
            for (NodeRef& listed : list) {
                listed = Translate(listed);
            }
        }
        m_index.reset();
    }
    return image;
}

DOMNode* WrapperState::DomNodeOrNull(NodeRef node) {
    try {
        return DomNode(node);
    } catch (const std::runtime_error& failure) {
        SetError(-1, failure.what());
        return nullptr;
    }
}

TreeEditor& WrapperState::Edit() {
    if (readOnly) {
        throw WriteError("the document is read only");
    }
    if (domIsMaster) {
        m_editor = std::make_unique<DomEditor>(*dom->document);
        return *m_editor;
    }
    if (IsShared(document)) {
        std::shared_ptr<const Document> copy = document->Copy();
        m_index.reset();
        left.push_back(document);
        document = std::move(copy);
    }
    // No other wrapper has it, and it was made as one that can change.
    m_editor = std::make_unique<DocumentEditor>(const_cast<Document&>(*document));
    return *m_editor;
}

void WrapperState::Load(std::shared_ptr<const Document> loaded, bool isReadOnly,
                        std::shared_ptr<const KnownFiles> loadedFiles) {
    WrapperState fresh;
    fresh.m_files = std::move(loadedFiles);
    fresh.document = std::move(loaded);
    fresh.readOnly = isReadOnly;
    if (isReadOnly) {
        fresh.reading = std::make_shared<SharedReading>();
    }
    if (const std::shared_ptr<Attachment> attached = attachment.lock()) {
        if (attached->IsPrivate()) {
            throw std::runtime_error(
                "this wrapper belongs to the objects that stand on its document; load into one of your own");
        }
        attached->MoveToPrivateWrapper(); // whoever stands on the old document stays there
    }
    *this = std::move(fresh);
}

void WrapperState::Share(WrapperState& other) const noexcept {
    other.document = document;
    other.m_files = Files();
    if (domIsMaster) {
        other.dom = dom;
    }
    other.domIsMaster = domIsMaster;
    other.isOutput = isOutput;
    other.readOnly = readOnly;
}

void WrapperState::SetError(int number, std::string_view text) noexcept {
    const std::unique_lock<std::mutex> lock = LockReading();
    m_errorNumber = number;
    try {
        m_error.assign(text);
    } catch (const std::bad_alloc&) {
        m_error.assign("out of memory"); // short enough to stand in the string itself
    }
}

std::shared_ptr<const KnownFiles> WrapperState::Files() const {
    const std::unique_lock<std::mutex> lock = LockReading();
    return m_files;
}

void WrapperState::SetFiles(std::shared_ptr<const KnownFiles> files) {
    const std::unique_lock<std::mutex> lock = LockReading();
    m_files = std::move(files);
}

std::string WrapperState::Error() const {
    const std::unique_lock<std::mutex> lock = LockReading();
    return m_error;
}

int WrapperState::ErrorNumber() const {
    const std::unique_lock<std::mutex> lock = LockReading();
    return m_errorNumber;
}

} // namespace Framework
