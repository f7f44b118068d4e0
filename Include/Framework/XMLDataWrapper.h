#pragma once

#include <cstddef>
#include <memory>

#include <xalanc/Include/PlatformDefinitions.hpp>
#include <xercesc/util/XercesDefs.hpp>

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMNode;
XERCES_CPP_NAMESPACE_END

namespace XALAN_CPP_NAMESPACE {
class XalanNode;
}

using XALAN_CPP_NAMESPACE::XalanNode;
using XERCES_CPP_NAMESPACE::DOMDocument;
using XERCES_CPP_NAMESPACE::DOMNode;
using XalanDOMChar = XMLCh;

namespace Framework {
struct WrapperState;
struct WrapperAccess;
} // namespace Framework

/// An XML document with a current node and a stored query text.
///
/// **Documents.** Wrappers that were made from one another share the document they were loaded from; it is never
/// changed while shared: a write gives the wrapper a copy of its own. Nodes that a wrapper gives out belong to it and
/// live as long as its document; after a write they stand for the same nodes as before.
///
/// **Names** are relative to the current node: `Name` is a child element, `@Name` an attribute, an empty name the node
/// itself, and `a/b[@k='v']` or `a[2]` a path. After loading no node is current, and names are relative to the root;
/// SetCurrentNode(nullptr) goes back there. Where a name stands more than once, reads and SelectNode take the last,
/// lists take all. Comparison is exact, case and prefix included.
///
/// **Queries** start at the document: `//Name` is the first element of that name, `//Name/Child[@k='v']` a path below
/// it. A predicate compares attributes with texts in quotes, joined by "and", or counts from 1; `[@k=v]` without quotes
/// takes all up to the last bracket as the text. Values are not escaped: of several ways to read a query the
/// one with the most quoted values counts, and a tie finds nothing, with an error. Any other query is given to an XPath
/// engine.
///
/// **DOM.** Whoever calls GetDOMNode on a loaded, not read-only document turns it over to a DOM: from then on reads see
/// the DOM, and the text of the document is written from it; content is kept exactly, formatting is not. On a read-only
/// document the DOM is a copy that nobody reads back. A document with more than 10,000 different names is not turned
/// into a DOM: there is no node, and the last error tells.
///
/// **Threads.** One thread at a time uses a wrapper; different ones may be used by different threads, also those over
/// one document. Through one wrapper over a read-only document any number of threads may at the same time do what moves
/// nothing: NodeExists, GetXalanNode, all reads of texts and values, GetXMLText, SaveXMLFile and the questions about
/// its state; GetLastError may then tell of another thread's question. They may load and merge from it, too
/// (TypedDataContainer). SelectNode, node lists, SetCurrentNode, SetStoredQuery, GetDOMNode, loading and the end of the
/// wrapper are for one thread that has it for itself. Where a DOM is in charge of a document, one thread at a time uses
/// it.
///
/// **Failures.** Operations return false, null, zero or an empty text; those that load, save or write leave number (-1)
/// and text in GetLastErrorNum and GetLastError. A failed load leaves the wrapper as it was. std::bad_alloc may be
/// thrown.
class FRAMEWORK_API XMLDataWrapper {
public:
    XMLDataWrapper();
    virtual ~XMLDataWrapper();
    XMLDataWrapper(const XMLDataWrapper&) = delete;
    XMLDataWrapper& operator=(const XMLDataWrapper&) = delete;

    /// Reads and parses a file; the name is a path, never a URL. `bReadOnly` keeps the document from ever being edited,
    /// so that any number of threads may read it and load from it. A text that is not well-formed, a DOCTYPE, XML other
    /// than 1.0 or a document beyond LoadLimits is refused with "file:line:column: what is wrong"; a file that is too
    /// large before it is read. A pipe or device is read until it ends, and waited for that long.
    bool LoadXMLFile(const char* sPath, bool bReadOnly);
    /// The same from memory: the bytes exactly as a file would hold them, in the document's own encoding.
    bool LoadXMLText(const zelString& sXML, bool bReadOnly);
    /// The document's bytes: those it was loaded from, with only what was changed since written anew, in the document's
    /// own encoding and line ends. Empty, with an error, when nothing is loaded or the content cannot be written as XML
    /// that loads again.
    zelString GetXMLText();
    /// Writes GetXMLText to a file, which is replaced as a whole or not at all, also when the process dies or the power
    /// fails; its owner and mode stay. False, with an error and the file as it was, when that cannot be done; saving
    /// may be tried again. One error leaves the new file in place and says so: it may not survive a power cut.
    bool SaveXMLFile(const char* sPath);
    /// The same; with `bRefuseChanged` no file is replaced unless it is, unchanged, the one that this wrapper loaded or
    /// saved last, so that what others wrote there in the meantime is not lost. Refused, too, are the path of such a
    /// file that is gone, and any other file; where there is none, it is made. Links are followed before files are
    /// compared. Each change counts, also one of mode or times and one while the file was being loaded.
    ///
    /// The file is looked at just before the new one takes its place. A change in the instant between the two is lost,
    /// and so is what a program writes afterwards that has kept the old file open. A file that appears in that instant
    /// is safe wherever the file system can rename without replacing.
    bool SaveXMLFile(const char* sPath, bool bRefuseChanged);

    bool IsDataLoaded() const;
    bool HasCurrentNode() const;
    zelString GetStoredQuery() const;
    void SetStoredQuery(const zelString& sQuery);

    /// The node the wrapper stands on: the root when `bRoot` or when none is current; null when nothing is loaded.
    DOMNode* GetDOMNode(bool bRoot, bool bCreate);
    /// The node that the query finds, or null; with an empty query the current one.
    DOMNode* GetDOMNode(const zelString& sQuery, bool bFromDocument);
    DOMNode* GetDOMNode(const char* sQuery, bool bFromDocument);
    XalanNode* GetXalanNode(const zelString& sQuery, bool bFromDocument);
    /// Makes a node of this wrapper's document the current one. A node of another document leaves no node current.
    void SetCurrentNode(DOMNode* pNode);
    void SetCurrentNode(XalanNode* pNode);
    void SetCurrentNode(std::nullptr_t);

    /// With `bFromDocument` the name is a query.
    bool NodeExists(const zelString& sName, bool bFromDocument);
    /// Makes the child, or what the path selects, the current node; null, and nothing changed, when it is not there.
    XalanNode* SelectNode(const zelString& sName, bool bFromDocument);

    /// Lists the children of that name of the current node and keeps the list under `sQuery`, in place of an earlier
    /// one. False when there are none.
    bool LoadNodeList(const zelString& sName, const zelString& sQuery, int iFlags);
    int GetNodeListLength(const zelString& sQuery) const;
    /// Makes the listed node at a position from 0 the current one; null when there is none.
    XalanNode* SelectNodeListItem(int iPosition, const zelString& sQuery);
    void ReleaseNodeList(const zelString& sQuery);

    /// All text and CDATA directly in the element, joined.
    zelString GetNodeText(XalanNode* pNode);
    /// From the first CDATA section to the last, the text between them included; without a section as GetNodeText.
    zelString GetNodeCData(XalanNode* pNode);
    /// The attribute's value, empty when it is absent.
    zelString GetNodeAttribute(XalanNode* pNode, const zelString& sName);

    zelString GetStringValue(const zelString& sName, bool bFromDocument);
    int GetIntValue(const zelString& sName, bool bFromDocument);
    bool GetBoolValue(const zelString& sName, bool bFromDocument);
    double GetDoubleValue(const zelString& sName, bool bFromDocument);

    /// Writes the text of an element or the value of an attribute: of the child of that name, else of the attribute; of
    /// what a path or, with `bFromDocument`, a query finds; of the current node when the name is empty. Numbers and
    /// bools are written as SupportFunc::GetStrValue gives them. Nothing is written when that value stands there
    /// already, and no node is ever made. False, with an error and nothing changed, when there is no such node, the
    /// document is read only, or XML cannot hold the text. A document shared with other wrappers is copied first: they
    /// do not see it.
    bool SetQueryValue(const zelString& sName, const zelString& sValue, bool bFromDocument);
    bool SetQueryValue(const zelString& sName, const char* sValue, bool bFromDocument);
    bool SetQueryValue(const zelString& sName, int iValue, bool bFromDocument);
    bool SetQueryValue(const zelString& sName, bool bValue, bool bFromDocument);
    bool SetQueryValue(const zelString& sName, double dValue, bool bFromDocument);
    /// The same for a text as CDATA: what stands outside of the sections that are there stays. The flags mean nothing.
    bool SetQueryCData(const zelString& sName, const zelString& sText, int iFlags, int iMode);

    zelString GetLastError() const;
    int GetLastErrorNum() const;

    static zelString zelStringFromXalanDOMChar(const XalanDOMChar* sText);
    static zelString zelStringFromXMLCh(const XMLCh* sText);
    /// New nodes of `pDoc`, which owns them; null when the name is no XML name.
    static DOMNode* CreateNewElement(const zelString& sName, DOMDocument* pDoc);
    static DOMNode* CreateNewAttribute(const zelString& sName, DOMDocument* pDoc);
    /// Sets the value of an attribute node; false when the text cannot stand in XML.
    static bool SetAttributeValue(const zelString& sValue, DOMNode* pAttribute);

protected:
    std::unique_ptr<Framework::WrapperState> m_pState;

private:
    friend struct Framework::WrapperAccess;
};

/// A wrapper over an output document, which is a DOM from the start.
class FRAMEWORK_API FullFunctionXMLDataWrapper : public XMLDataWrapper {
public:
    FullFunctionXMLDataWrapper();
    ~FullFunctionXMLDataWrapper() override;

    /// Starts a new output document with an empty root element of that name, or without a root when the name is null or
    /// empty.
    bool CreateOutputDocument(const char* sRootName);
    /// The document, owned by the wrapper; null when none was created or loaded.
    DOMDocument* GetOutputDocument();

    DOMNode* FindOutputNode(const zelString& sQuery, bool bFromDocument, bool bFirst);
    /// Creates the node that the query names, with the attributes of its predicate, below the root; the root itself
    /// when the document is empty or its root bears the name.
    bool CreateQueryPath(const zelString& sQuery);
    bool AppendElementValue(DOMNode* pParent, const zelString& sName, const zelString& sValue, bool bCreate);
};
