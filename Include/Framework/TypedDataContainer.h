#pragma once

#include <memory>
#include <vector>

#include "Framework/FrameworkExport.h"
#include "Framework/ParameterList.h"
#include "Framework/SharedText.h"
#include "Framework/SupportFunc.h"
#include "Framework/SyncContainers.h"
#include "Framework/XMLDataWrapper.h"
#include "Framework/ZelString.h"

/// Something a host looks values up in. The library only hands the pointer on.
class ValueLookupBase;

namespace Framework {
class Attachment;
struct ContainerAccess;
struct FieldRow;
struct FieldTable;
struct FieldTableIndex;
} // namespace Framework

/// What the override log is told: a part of an override, or of a document being loaded, that could not be taken over.
struct OverrideIssue {
    zelString FeatureID;         ///< feature of the object that reports
    zelString ContainerName;     ///< element name of the object that reports
    zelString ErrorText;         ///< what is wrong
    unsigned int SourceLine = 0; ///< line of the report in the source of the class
    zelString File;              ///< document in which the entry stands; empty when not known
    unsigned int Line = 0;       ///< line of the entry in that document, of the very word where a merge is watched (see
                                 ///< MergeJournal), from 1; 0 when not known
    unsigned int Column = 0;     ///< column of the entry in code points, from 1; 0 when not known
};

/// Base of every container: an object that stands for one XML element, with its typed fields, its children and its
/// lists.
///
/// **Life.** The caller owns what it creates, what Clone, GetPLAttributeList and BuildAndReturnDataContent return, and
/// nothing else that a Get returns. An object owns its children and list entries. The XML behind an object is counted:
/// a wrapper, packet or merge source may be deleted as soon as the call that took it has returned; the object then goes
/// on with a private wrapper over the same document.
///
/// **Threads.** One thread at a time uses an object and all that hangs below it. Different trees may be used in
/// different threads, the very first use of the library included. For trees that came from one document this holds:
///
/// - Through one wrapper that was loaded read only any number of threads may load and merge at the same time, each into
///   an object of its own: the wrapper is read, and nothing of it moved. What they loaded they use, copy and destroy as
///   they like, also while the wrapper ends in another thread.
/// - Through any other wrapper one thread at a time loads and merges. The trees loaded from it may then be read,
///   cloned, dumped, merged into and destroyed in different threads. But an update writes into the document of all of
///   them: while one is updated, or the wrapper is used or ends, no other tree is used.
/// - A document that is a DOM, from the start or because GetDOMNode made it one (see XMLDataWrapper), is used by one
///   thread at a time, with all trees that were loaded or merged from it: a DOM must not even be read by two threads
///   at once.
///
/// Beside the one thread that adds entries to a keyed list, takes them out or clears it, others may look keys up by
/// Get<Name>(key). A container that was found may be used until it is taken out. Lengths and positions are for the one
/// thread alone. Static operations: from any thread.
///
/// **Failures.** Operations return false, null or an empty text and leave number and text in GetLastErrorNum and
/// GetLastError: -1, or -2 for a duplicate key. No exception leaves a load, update, merge or dump. A load or merge
/// whose source cannot be read changes nothing. Setters, list operations and Clone may throw std::bad_alloc and leave a
/// whole object; AddNew<Name> has then destroyed what it was given. Whatever failed, the object can be reset, loaded,
/// merged, dumped and destroyed.
class FRAMEWORK_API TypedDataContainer {
public:
    /// Entry of a keyed list of strings: its key is ElementName, its text strValue. Owned by the list.
    class FRAMEWORK_API SimpleDataContainer : public ParameterList::ParameterDataType {
    public:
        zelString FeatureID{"Base"}; ///< the feature that added the entry

    private:
        friend struct Framework::ContainerAccess;
        std::weak_ptr<Framework::Attachment> m_pContainedData; // the document of the entry's node
        std::uintptr_t m_uNode = 0;
        zelString m_sWritten; // what was loaded from that node or written there last
    };

    /// The template store that always answers: an XML name that is not registered in it gives an empty element of that
    /// name.
    static const char* const TDC_BASE_DATA_TEMPLATE;

    /// `bBuildFromScratch`: whether Add<Name> may make an entry that has no XML behind it.
    explicit TypedDataContainer(bool bBuildFromScratch);
    TypedDataContainer(const TypedDataContainer&) = delete;
    TypedDataContainer& operator=(const TypedDataContainer&) = delete;

    // The virtual operations stand in the order of the table that hosts and derived classes are built against.

    virtual ~TypedDataContainer();

    /// True when the object holds loaded data.
    virtual bool Valid();
    /// Resets the members, lets go of the object's own share of its wrapper, and makes the object invalid.
    virtual void Clear();
    /// Name of the object's own class.
    virtual zelString GetBaseType();
    /// Appends one text entry for each attribute and each element with a text, bool or number of the class's own
    /// fields.
    virtual void GetProperties(ParameterList& pList);
    /// The wrapper over the XML that the object stands on, null when there is none: the one it was loaded through, as
    /// long as that lives and holds the document, else a private one. Lent; lives until the object is loaded anew,
    /// merged, cleared or destroyed, or the caller deletes the wrapper that it handed in. Over a read-only document
    /// operations on the object never move it: they work through a private one.
    virtual XMLDataWrapper* GetContainedDataPtr();

    // Loading. Each returns true when the object was populated. On false the error tells why: a text that is not
    // well-formed as "file:line:column: ...". The object is then as it was, unless the failure came after the source
    // was read, for want of memory: an object that was valid and is not any more holds what was read so far. A load
    // empties the object first (defaults, lists cleared, children deleted), then populates it. `pLookup` is kept and
    // handed on, never used; it may be null. `bReadOnly` makes the object refuse Clone and UpdateContainedData.

    /// From the XML text registered for `sXMLName` in the store `sStore`; `sClassName` names the class for hosts that
    /// override.
    virtual bool LoadFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName,
                                  const char* sClassName, bool bReadOnly);
    virtual bool LoadFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName, bool bReadOnly);
    /// From the XML text registered for `sXMLName` in the model `sModel`.
    virtual bool LoadFromModel(ValueLookupBase* pLookup, const char* sModel, const char* sXMLName, bool bReadOnly);
    /// From a file, read and parsed as a whole. The root's FeatureID attribute, when there is one, becomes the feature
    /// ID.
    virtual bool LoadFromFile(ValueLookupBase* pLookup, const char* sPath, bool bReadOnly);
    /// From a loaded wrapper: from its current node when that bears the container's name, else from the root or the
    /// first element in document order that does. The wrapper stays the caller's, where it stands, and may be deleted
    /// afterwards.
    virtual bool LoadFromDataPacket(ValueLookupBase* pLookup, XMLDataWrapper* pData, bool bReadOnly);
    /// From a DOM element, which is copied; the node stays the caller's.
    virtual bool LoadFromDOMNode(ValueLookupBase* pLookup, DOMNode* pNode, bool bReadOnly);
    /// Writes the tree to a file as a new document, without merge attributes; the file is replaced as a whole or not at
    /// all. Comments and unknown elements of the loaded document are not in it.
    virtual bool SaveContents(const char* sPath);

    // Merging. Each returns true when the source was read and walked; what could not be taken over from it goes to the
    // override log. On false nothing was taken over, unless the walk met an exception. The feature is the root's
    // FeatureID attribute, else the store, the model or the file's stem, except where it is given.

    virtual bool MergeFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName,
                                   const char* sClassName);
    virtual bool MergeFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName);
    virtual bool MergeFromModel(ValueLookupBase* pLookup, const char* sModel, const char* sXMLName);
    virtual bool MergeFromFile(ValueLookupBase* pLookup, const char* sPath);
    /// `bNested`: true merges from the node the wrapper stands on; false from the first element that bears the
    /// container's name. The wrapper stays the caller's and may be deleted afterwards. The walk moves it, but for a
    /// read-only one, which MergeDataMembers gets another wrapper for.
    virtual bool MergeFromDataPacket(ValueLookupBase* pLookup, zelString sFeatureID, XMLDataWrapper* pMergeData,
                                     bool bNested);
    virtual bool MergeFromDOMNode(ValueLookupBase* pLookup, zelString sFeatureID, DOMNode* pNode);
    /// The walk of a merge over the class's fields; outer operations end in it. False with "MergeSource Not Loaded"
    /// when there is no source; after an exception what was taken over stays.
    virtual bool MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID);
    /// Like SaveContents, with merge attributes.
    virtual bool DumpMergeResults(const char* sPath);
    /// What a dump adds to the predicate of a merged object: " and @FeatureID='X' ", empty when no merge touched it.
    virtual zelString GetMergeAttributes();
    /// Adds the same attribute to `plAttributes`.
    virtual void GetPLMergeAttributes(ParameterList* plAttributes);
    /// The attributes of the object as the inside of an XPath predicate. Values are not escaped.
    virtual zelString GetAttributeList();
    /// The attributes of the object as a new list, which the caller owns.
    virtual ParameterList* GetPLAttributeList();
    /// The query of an entry relative to this object's node: `Name[identity attributes]` when that finds the entry's
    /// own node, else `Name[n]` by its position; the former also for an entry that has no node here.
    virtual zelString BuildUpdateQuery(zelString sXMLName, TypedDataContainer* pEntry);
    /// CDATA text of the child `sXMLName` of the node that the wrapper stands on.
    virtual zelString GetCDataValue(XMLDataWrapper* pData, zelString sXMLName);

    // Building blocks of the dumps. Each appends to a DOM node and returns false, with an error that names the element,
    // when the text cannot stand in XML. Nodes belong to the document.

    virtual bool AppendCDataValue(FullFunctionXMLDataWrapper* pOutput, DOMNode* pParent, const zelString& sName,
                                  zelString sValue);
    virtual bool CreateTextNode(DOMNode* pParent, DOMDocument* pDoc, zelString sName, zelString sValue);
    virtual bool CreateCDataNode(DOMNode* pParent, DOMDocument* pDoc, zelString sName, zelString sValue);
    virtual bool CreateTextNodeWithAttr(DOMNode* pParent, DOMDocument* pDoc, zelString sName, zelString sValue,
                                        zelString sAttrName, zelString sAttrValue);

    /// Merges one entry of a keyed list of containers; `pMergeData` stands on it. Takes over `pNew`, a fresh entry. An
    /// entry of that key is merged into; else `pNew` is loaded and appended; the node's MergeAction (Merge, Add,
    /// Replace, Remove, Clear) and PlacementOrder (First, Last, Before, After) may ask for something else. Called by
    /// itself it is complete when it returns; within a merge the vector gets its order at the end of the list, and
    /// holds null for a removed entry until then. False when the entry was refused, which is logged.
    virtual bool MergeElement(zelString sFeatureID, Zelvon::SyncMap<zelString, TypedDataContainer*>& mapEntries,
                              std::vector<TypedDataContainer*>& vecEntries, XMLDataWrapper* pMergeData,
                              TypedDataContainer* pNew, zelString sKey, zelString sKeyName, zelString sXMLName);
    /// The same for a keyed list of strings.
    virtual bool MergeElement(zelString sFeatureID, Zelvon::SyncMap<zelString, SimpleDataContainer*>& mapEntries,
                              std::vector<SimpleDataContainer*>& vecEntries, XMLDataWrapper* pMergeData,
                              ParameterDataEnum eType, zelString sKey, zelString sXMLName);
    virtual zelString GetSimpleTypeData(SimpleDataContainer* pEntry);
    virtual void SetSimpleTypeData(SimpleDataContainer* pEntry, zelString sValue);

    /// A new object with the content of the XML that this one stands on, or of this one when it stands on none. The
    /// caller owns it. Null for a read-only object.
    virtual TypedDataContainer* Clone();
    virtual zelString GetContainerName();
    virtual void SetContainerName(const char* sName);
    /// A new wrapper with the object's content as XML, which the caller owns; null, with an error, when it cannot be
    /// written.
    virtual XMLDataWrapper* BuildAndReturnDataContent();
    /// Dumps by query: finds the object's element in the output as `sParentQuery`/Name, with its position from 1 when
    /// `QueryPos` is not negative and its attributes when it has any; makes it when it has attributes or a position;
    /// and appends the fields. Without an element nothing is dumped, and the result is true. False, with the error,
    /// when a part could not be written; the rest is there.
    virtual bool DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                   bool bIncludeMergeAttributes);
    /// Dumps by node: builds the object's element, with its attributes and fields, and hangs it below `pParentNode`,
    /// else below the root, or fills the root when that bears the name. `pPassedCurrent` receives the element when it
    /// was hung. Nodes belong to the output document. False as above.
    virtual bool DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                     DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes);
    /// Writes the members of the object and of all that hangs below it back into the XML that each stands on: only what
    /// reads otherwise there, and exactly where a load reads it. An absent element or attribute is made only for a
    /// value that its absence does not give. Children and entries without a node are passed over. The result is that of
    /// the last single value or text of a plain list; the wrapper's GetLastError, over a read-only document the
    /// object's, tells why one could not be written. False, with "Update not supported for read only objects", for a
    /// read-only object; true when it stands on no document.
    virtual bool UpdateContainedData();
    /// The walk of a load over the child nodes of `pNode`, not null. Adds to what the object holds.
    virtual bool PopulateDataMembers(XalanNode* pNode);
    virtual void ResetDataMembers();
    /// Stands the object on a node of a wrapper that it shares, the one the wrapper stands on when `spNode` is null,
    /// and populates it. The wrapper stays its owner's.
    virtual bool SetContainedDataPtr(XMLDataWrapper* pData, XalanNode* spNode, bool bReadOnly, bool bNested);

    // Merge control of the node that a wrapper stands on, as the words stand there; empty when absent.
    virtual zelString GetFeatureID(XMLDataWrapper* pData);
    virtual zelString GetMergeAction(XMLDataWrapper* pData);
    virtual zelString GetPlacementFeature(XMLDataWrapper* pData);
    virtual zelString GetPlacementIndex(XMLDataWrapper* pData);
    virtual zelString GetPlacementOrder(XMLDataWrapper* pData);

    virtual void SetFeatureID(const zelString& sFeatureID);
    virtual zelString GetFeatureID();
    /// Keeps number and text, printf-style.
    virtual void SetLastError(int iNumber, const char* sFormat, ...);
    virtual zelString GetLastError();
    virtual int GetLastErrorNum();

    // --- not virtual
    // ---------------------------------------------------------------------------------------------------------

    /// Tells the override log of an issue. Goes to the handler that the host installed, else as one line to standard
    /// error.
    static void LogFeatureOverrideIssue(zelString sFeatureID, zelString sContainerName, zelString sError,
                                        unsigned int uLine);

    using OverrideIssueHandler = void (*)(void* pContext, const OverrideIssue& issue);
    /// Installs the handler of the override log for the whole process; null restores the default. The handler may be
    /// called from any thread that loads or merges, from several at the same time, and must not throw. `pContext` is
    /// handed to it and stays the caller's; loads and merges that run while the handler changes may still use the
    /// earlier one.
    static void SetOverrideIssueHandler(OverrideIssueHandler pHandler, void* pContext);

    /// Registers the XML text that LoadFromTemplate and MergeFromTemplate find under a store and an XML name, in place
    /// of an earlier one. False, and nothing registered, when the text is not well-formed.
    static bool RegisterTemplate(const char* sStore, const char* sXMLName, const zelString& sXML);
    /// The same for models.
    static bool RegisterModel(const char* sModel, const char* sXMLName, const zelString& sXML);

private:
    friend struct Framework::ContainerAccess;

    // There are as many of these as a document has elements with a class: what few of them hold takes one pointer.
    Framework::SharedText m_FeatureID;
    Framework::SharedText m_ContainerName;
    Framework::SharedText m_MergeFeature; // the feature of the last merge that touched the object
    ValueLookupBase* m_pValueLookup = nullptr;
    std::shared_ptr<Framework::Attachment> m_pContainedData;
    std::uintptr_t m_uNode = 0; // the node of the wrapper's document that the object stands on
    std::unique_ptr<std::vector<std::uintptr_t>> m_pEarlierNodes; // it was populated from these before, and not reset
    std::unique_ptr<zelString> m_pLastError;
    const char* m_pFixedError = nullptr; // a literal that stands for m_pLastError: reporting a failure cannot fail
    int m_iLastError = 0;
    bool m_bReadOnly = false;
    bool m_bBuildFromScratch;
    bool m_bNested = false;
    bool m_bValid = false;
    bool m_bHoldsNode = false; // populated from m_uNode and not reset since
};

/// Base of most document roots.
class FRAMEWORK_API StructuralConfigLoader : public TypedDataContainer {
public:
    explicit StructuralConfigLoader(bool bBuildFromScratch);
    ~StructuralConfigLoader() override;

    /// Loads the document from a file, read only: LoadFromFile(pLookup, sPath, true).
    virtual bool InitializeConfig(const char* sPath, ValueLookupBase* pLookup);
};
