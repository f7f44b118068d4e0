#include <memory>

#include <xercesc/dom/DOM.hpp>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/DumpNodes.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/DomLinks.h"
#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/ZelStringToWideChar.h"

namespace Framework {

namespace {

/// What is dumped, and into what.
struct Dump {
    TypedDataContainer& object;
    const FieldTable& ownTable; ///< of the class that was asked to dump, which may be a parent of the object's
    bool overridesNothing;      ///< the object is of exactly that class
    FullFunctionXMLDataWrapper* output;
    bool withMergeAttributes;
};

/// How many objects of classes that hosts derived this thread has dumped. While it stays as it is, none but this file
/// has come to the nodes of a dump.
thread_local constinit unsigned long hostObjects = 0;

/// The walk of one class into one element of the output document. The element is hung below its parent only when all
/// its fields are in it. A step that fails makes the result false; the steps go on. For an object that overrides
/// nothing it does what its virtual operations would come to, without the lists and copies that they take.
class DumpWalk {
public:
    DumpWalk(const Dump& dump, const FieldTable& table)
        : m_dump(dump), m_object(dump.object), m_table(table), m_document(dump.output->GetOutputDocument()) {}

    /// `attributesStand`: the walk over the parent class has set all attributes, and no one else came to the element.
    bool Run(DOMNode* pParentNode, DOMNode* pFromParentClass, bool attributesStand, DOMNode*& pPassedCurrent) {
        bool bAddNodeToParent = false;
        if (pFromParentClass != nullptr) {
            m_current = pPassedCurrent = pFromParentClass;
        } else {
            bAddNodeToParent = TakeElement(pParentNode);
        }
        if (!m_dump.overridesNothing) {
            SetAttributes();
        } else if (!attributesStand || pFromParentClass == nullptr) {
            SetOwnAttributes();
        }
        if (m_current != nullptr) {
            for (const FieldRow& row : m_table.rows) {
                DumpField(row);
            }
        }
        if (bAddNodeToParent && m_current != nullptr) {
            pPassedCurrent = AppendNode(*pParentNode, *m_current);
        }
        return m_success;
    }

private:
    /// Without a parent node the root serves when it bears the container's name. True when the element is new, and not
    /// hung yet.
    bool TakeElement(DOMNode*& pParentNode) {
        const zelString name = m_object.GetContainerName();
        if (pParentNode == nullptr) {
            pParentNode = m_dump.output->GetDOMNode(true, false);
            if (pParentNode == nullptr) {
                pParentNode = m_document; // a document without a root gets one
            } else if (XMLDataWrapper::zelStringFromXMLCh(pParentNode->getNodeName()) == name) {
                m_current = pParentNode;
                return false;
            }
        }
        m_current = XMLDataWrapper::CreateNewElement(name, m_document);
        if (m_current == nullptr) {
            m_object.SetLastError(-1, "\"%s\" is no name of an XML element", name.c_str());
            m_success = false;
        }
        m_isFresh = m_dump.overridesNothing && m_current != nullptr;
        return m_current != nullptr;
    }

    void SetAttributes() {
        const std::unique_ptr<ParameterList> plAttributes(m_object.GetPLAttributeList());
        if (plAttributes == nullptr || m_current == nullptr) {
            return;
        }
        if (m_dump.withMergeAttributes) {
            m_object.GetPLMergeAttributes(plAttributes.get());
        }
        for (std::size_t i = 0; i < plAttributes->size(); ++i) {
            const ParameterList::ParameterDataType* const pdT = plAttributes->ItemData(i);
            if (pdT != nullptr) {
                SetOneAttribute(pdT->ElementName, pdT->strValue);
            }
        }
    }

    /// What the list would hold: no name twice.
    void SetOwnAttributes() {
        if (m_current == nullptr) {
            return;
        }
        SetAttributesOf(m_dump.ownTable);
        const std::string_view feature = ContainerAccess::MergeFeature(m_object);
        if (m_dump.withMergeAttributes && !feature.empty()) {
            SetOneAttribute("FeatureID", feature);
        }
    }

    void SetAttributesOf(const FieldTable& table) {
        if (table.parent != nullptr) {
            SetAttributesOf(*table.parent);
        }
        for (const FieldRow& row : table.rows) {
            if (row.form == FieldForm::Attribute) {
                SetOneAttribute(row.name, ScalarText(m_object, row, m_room));
            }
        }
    }

    void SetOneAttribute(std::string_view name, std::string_view value) {
        FaultPoint("SetAttributeValue");
        try {
            (m_isFresh ? SetNewAttribute : SetAttribute)(*m_current, *m_document, name, value);
        } catch (const std::invalid_argument& failure) {
            m_object.SetLastError(-1, "%s: %s", m_object.GetContainerName().c_str(), failure.what());
            m_success = false;
        }
    }

    void DumpField(const FieldRow& row) {
        FaultPoint("DumpByNode");
        switch (row.form) {
        case FieldForm::Attribute:
            break;
        case FieldForm::Element:
            DumpText(row, ScalarText(m_object, row, m_room));
            break;
        case FieldForm::Child:
            if (TypedDataContainer* const child = row.child->get(m_object)) {
                DumpContainer(*child, row.child->table);
            }
            break;
        case FieldForm::KeyedList:
        case FieldForm::PlainList:
            DumpList(row);
            break;
        }
    }

    void DumpText(const FieldRow& row, std::string_view text) {
        if (m_dump.overridesNothing) {
            Note((row.cdata ? AddCDataNode : AddTextNode)(m_object, *m_current, *m_document, row.name, text));
            return;
        }
        const zelString name(row.name.data());
        Note(row.cdata ? m_object.CreateCDataNode(m_current, m_document, name, zelString(text))
                       : m_object.CreateTextNode(m_current, m_document, name, zelString(text)));
    }

    void DumpKeyedText(const FieldRow& row, TypedDataContainer::SimpleDataContainer& entry) {
        if (m_dump.overridesNothing) {
            Note(AddTextNodeWithAttribute(m_object, *m_current, *m_document, row.name, entry.strValue, row.keyAttribute,
                                          entry.ElementName));
            return;
        }
        Note(m_object.CreateTextNodeWithAttr(m_current, m_document, row.name.data(), m_object.GetSimpleTypeData(&entry),
                                             row.keyAttribute.data(), entry.ElementName));
    }

    void DumpList(const FieldRow& row) {
        if (row.value == FieldValue::Container) {
            DumpEntries(row);
        } else if (row.form == FieldForm::KeyedList) {
            for (TypedDataContainer::SimpleDataContainer* const entry : m_object.*row.member.keyedTexts) {
                if (entry != nullptr) {
                    DumpKeyedText(row, *entry);
                }
            }
        } else if (row.value == FieldValue::String) {
            for (const zelString& text : m_object.*row.member.texts) {
                DumpText(row, text);
            }
        } else {
            for (TypedDataEnumeration* const word : m_object.*row.member.words) {
                if (word != nullptr) {
                    m_room = word->StringOf();
                    DumpText(row, m_room);
                }
            }
        }
    }

    void DumpEntries(const FieldRow& row) {
        for (TypedDataContainer* const entry : m_object.*row.member.entries) {
            if (entry != nullptr) {
                Zelvon::LinuxThreadTools::LinuxYieldThread();
                DumpContainer(*entry, row.list->table);
            }
        }
    }

    void DumpContainer(TypedDataContainer& object, const FieldTable* likely) {
        if (ExactTable(object, likely) == nullptr) {
            ++hostObjects;
        }
        DOMNode* pTestCurrent = nullptr;
        if (!object.DumpMergeContentsII(m_current, m_dump.output, pTestCurrent, m_dump.withMergeAttributes)) {
            m_object.SetLastError(object.GetLastErrorNum(), "%s",
                                  object.GetLastError().c_str()); // so that the caller sees why
            m_success = false;
        }
    }

    void Note(bool success) { m_success = m_success && success; }

    const Dump& m_dump;
    TypedDataContainer& m_object;
    const FieldTable& m_table;
    DOMDocument* m_document;
    DOMNode* m_current = nullptr;
    bool m_isFresh = false; ///< made by this walk, and has no attribute but those set by it, each once
    bool m_success = true;
    zelString m_room; ///< for the text of a scalar that is none in memory
};

/// Parents first, into the same element.
bool DumpClass(const Dump& dump, const FieldTable& table, DOMNode* pParentNode, DOMNode*& pPassedCurrent) {
    try {
        if (dump.output == nullptr || dump.output->GetOutputDocument() == nullptr) {
            dump.object.SetLastError(-1, "there is no output document to dump into");
            return false;
        }
        const unsigned long hostObjectsBefore = hostObjects;
        bool bSuccess = true;
        DOMNode* pTestCurrent = nullptr;
        if (table.parent != nullptr) {
            bSuccess = DumpClass(dump, *table.parent, pParentNode, pTestCurrent);
        }
        const bool attributesStand = bSuccess && hostObjects == hostObjectsBefore;
        return DumpWalk(dump, table).Run(pParentNode, pTestCurrent, attributesStand, pPassedCurrent) && bSuccess;
    } catch (...) {
        ContainerAccess::SetFixedError(dump.object, -1, "Unknown Exception occured in UpdateContainedData");
        return false;
    }
}

} // namespace

bool DumpByNode(TypedDataContainer& object, const FieldTable& table, DOMNode* pParentNode,
                FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return DumpClass({object, table, IsExactly(object, table), pOutput, bIncludeMergeAttributes}, table, pParentNode,
                     pPassedCurrent);
}

} // namespace Framework
