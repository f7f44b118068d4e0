#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "Framework/XMLDataWrapper.h"
#include "Framework/XMLSupport/ChildIndex.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/DomBuilder.h"
#include "Framework/XMLSupport/DomTree.h"
#include "Framework/XMLSupport/NodePath.h"
#include "Framework/XMLSupport/QueryChain.h"
#include "Framework/XMLSupport/TextHash.h"
#include "Framework/XMLSupport/TreeEditor.h"

namespace Framework {

class Attachment;
class OutputScope;
struct KnownFiles;

/// A DOM beside or instead of the reading tree, with the way from the nodes of the tree it was built from, and back.
struct DomSide {
    DomDocumentPtr document;
    std::unique_ptr<DomTree> tree;
    std::unordered_map<NodeRef, DOMNode*> nodeOf;
    std::unordered_map<const DOMNode*, NodeRef> refOf;
};

/// What the threads share that read through one wrapper over a read-only document. It ends when the wrapper does, or
/// takes another document.
struct SharedReading {
    std::mutex mutex; ///< guards the wrapper's index and its last error
};

/// Everything an XMLDataWrapper is. Private wrappers are made by copying the parts that say which document it is.
struct WrapperState {
    std::shared_ptr<const Document> document; ///< the reading tree; null in an output document
    std::shared_ptr<DomSide> dom;
    bool domIsMaster = false; ///< reads go to the DOM
    bool isOutput = false;    ///< made by us: written with line breaks and indentation
    bool readOnly = false;
    std::shared_ptr<SharedReading> reading; ///< null unless it is read only
    bool isMergeSource = false;             ///< made for a merge that is going on, which moves it
    NodeRef current = NodeRef::None;
    QueryChain query;
    HashedMap<std::string, std::vector<NodeRef>> lists;
    std::weak_ptr<Attachment> attachment;
    /// Documents that were left behind for a copy of their own when they had to be changed while shared: callers may
    /// still hold nodes of them, which have the same numbers in the copy.
    std::vector<std::shared_ptr<const Document>> left;
    const OutputScope* output = nullptr; ///< the innermost walk that writes into the DOM at this moment

    /// The tree that reads go to, null when nothing is loaded.
    const XmlTree* Tree() const {
        return domIsMaster ? static_cast<const XmlTree*>(dom->tree.get()) : static_cast<const XmlTree*>(document.get());
    }
    bool IsLoaded() const { return Tree() != nullptr; }
    /// Whether the tree is the reading tree, now or before it was changed.
    bool HeldDocument(const XmlTree* tree) const;
    /// The node that names are relative to: the current one, else the root.
    NodeRef Here() const;
    /// A node of the reading tree as a node of Tree(): itself, or its image in the DOM.
    NodeRef Translate(NodeRef documentNode) const;
    /// The node that a query or name finds; None when there is none. Throws PathError.
    NodeRef Find(std::string_view path, bool fromDocument);
    /// The same; a query that cannot be answered finds nothing, and the error tells why.
    NodeRef FindOrNone(std::string_view path, bool fromDocument);
    /// Where a path starts, and what of it is left from there.
    struct PathStart {
        NodeRef node;
        std::string_view rest;
    };
    PathStart StartOf(std::string_view path, bool fromDocument) const;
    /// The index over Tree(), fit for one query.
    ChildIndex& Index();
    /// The DOM node that stands for a node of Tree(). Builds the DOM when there is none.
    DOMNode* DomNode(NodeRef node);
    /// The same; null, and the error tells why, when the document cannot be turned over to a DOM.
    DOMNode* DomNodeOrNull(NodeRef node);
    /// Write access to Tree(), good until the next call of anything else here. A document that is shared is copied
    /// first, so nobody else sees the change; numbers of nodes stay. Throws WriteError on a read-only document.
    TreeEditor& Edit();
    /// To be called when an element came or went: the index is made anew.
    void ForgetIndex() {
        m_index.reset();
        m_positions.byParent.clear();
    }
    /// Where a node of Tree() stands, for messages.
    std::string PathOf(NodeRef node) { return NodePath(*Tree(), node, domIsMaster ? nullptr : &m_positions); }
    /// To be called when an attribute got a value, came or went.
    void ForgetAttribute(NodeRef element, std::string_view name);
    /// A document that was loaded becomes this wrapper's, which starts afresh. Throws std::runtime_error on a private
    /// wrapper, whose objects have nowhere to go.
    void Load(std::shared_ptr<const Document> loaded, bool isReadOnly,
              std::shared_ptr<const KnownFiles> loadedFiles = nullptr);
    /// Puts another state, a new one, over the same document, which knows the same files, with nothing of the current
    /// node, queries and lists. The copy of a read-only document that callers read as a DOM stays with this one.
    void Share(WrapperState& other) const noexcept;
    /// Never fails: where there is no memory for the text, the error is that.
    void SetError(int number, std::string_view text) noexcept;
    std::string Error() const;
    int ErrorNumber() const;
    /// The files that the document was loaded from and saved to; shared by the wrappers that go on with it, until one
    /// of them saves. Null when there are none.
    std::shared_ptr<const KnownFiles> Files() const;
    void SetFiles(std::shared_ptr<const KnownFiles> files);

private:
    /// Holds the lock that threads need which read through one wrapper; nothing where only one may.
    std::unique_lock<std::mutex> LockReading() const {
        return reading == nullptr ? std::unique_lock<std::mutex>() : std::unique_lock(reading->mutex);
    }

    std::shared_ptr<const KnownFiles> m_files;
    std::string m_error;
    int m_errorNumber = 0;
    std::optional<ChildIndex> m_index;
    CountedPositions m_positions;
    std::unique_ptr<TreeEditor> m_editor;
    void BuildDom();
};

/// Access of the library's own code to a wrapper's state.
struct WrapperAccess {
    static WrapperState& State(const XMLDataWrapper& wrapper) { return *wrapper.m_pState; }
    static std::unique_ptr<WrapperState>& Pointer(XMLDataWrapper& wrapper) { return wrapper.m_pState; }
};

} // namespace Framework
