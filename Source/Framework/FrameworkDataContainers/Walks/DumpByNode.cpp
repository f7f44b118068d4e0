#include <memory>
#include <optional>

#include <xercesc/dom/DOM.hpp>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/ZelStringToWideChar.h"

namespace Framework {

namespace {

/// The walk of one class into one element of the output document. The element is hung below its parent only when all
/// its fields are in it. A step that fails makes the result false; the steps go on.
class DumpWalk {
public:
    DumpWalk(TypedDataContainer& object, const FieldTable& table, FullFunctionXMLDataWrapper* pOutput,
             bool bIncludeMergeAttributes)
        : m_object(object), m_table(table), m_output(pOutput), m_document(pOutput->GetOutputDocument()),
          m_withMergeAttributes(bIncludeMergeAttributes) {}

    bool Run(DOMNode* pParentNode, DOMNode* pFromParentClass, DOMNode*& pPassedCurrent) {
        bool bAddNodeToParent = false;
        if (pFromParentClass != nullptr) {
            m_current = pPassedCurrent = pFromParentClass;
        } else {
            bAddNodeToParent = TakeElement(pParentNode);
        }
        SetAttributes();
        if (m_current != nullptr) {
            for (const FieldRow& row : m_table.rows) {
                DumpField(row);
            }
        }
        if (bAddNodeToParent && m_current != nullptr) {
            pPassedCurrent = pParentNode->appendChild(m_current);
        }
        return m_success;
    }

private:
    /// Without a parent node the root serves when it bears the container's name. True when the element is new, and not
    /// hung yet.
    bool TakeElement(DOMNode*& pParentNode) {
        const zelString name = m_object.GetContainerName();
        if (pParentNode == nullptr) {
            pParentNode = m_output->GetDOMNode(true, false);
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
        return m_current != nullptr;
    }

    void SetAttributes() {
        const std::unique_ptr<ParameterList> plAttributes(m_object.GetPLAttributeList());
        if (plAttributes == nullptr || m_current == nullptr) {
            return;
        }
        if (m_withMergeAttributes) {
            m_object.GetPLMergeAttributes(plAttributes.get());
        }
        for (std::size_t i = 0; i < plAttributes->size(); ++i) {
            const ParameterList::ParameterDataType* const pdT = plAttributes->ItemData(i);
            if (pdT != nullptr) {
                SetOneAttribute(pdT->ElementName, pdT->strValue);
            }
        }
    }

    void SetOneAttribute(const zelString& name, const zelString& value) {
        FaultPoint("SetAttributeValue");
        try {
            SetAttribute(*m_current, *m_document, name, value);
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
            DumpText(row, ScalarText(m_object, row));
            break;
        case FieldForm::Child:
            if (TypedDataContainer* const child = row.child->get(m_object)) {
                DumpContainer(*child);
            }
            break;
        case FieldForm::KeyedList:
        case FieldForm::PlainList:
            DumpList(row);
            break;
        }
    }

    void DumpText(const FieldRow& row, const zelString& text) {
        const zelString name(row.name.data());
        Note(row.cdata ? m_object.CreateCDataNode(m_current, m_document, name, text)
                       : m_object.CreateTextNode(m_current, m_document, name, text));
    }

    void DumpList(const FieldRow& row) {
        if (row.value == FieldValue::Container) {
            DumpEntries(row);
        } else if (row.form == FieldForm::KeyedList) {
            for (TypedDataContainer::SimpleDataContainer* const entry : m_object.*row.member.keyedTexts) {
                if (entry == nullptr) {
                    continue;
                }
                Note(m_object.CreateTextNodeWithAttr(m_current, m_document, row.name.data(),
                                                     m_object.GetSimpleTypeData(entry), row.keyAttribute.data(),
                                                     entry->ElementName));
            }
        } else if (row.value == FieldValue::String) {
            for (const zelString& text : m_object.*row.member.texts) {
                DumpText(row, text);
            }
        } else {
            for (TypedDataEnumeration* const word : m_object.*row.member.words) {
                if (word != nullptr) {
                    DumpText(row, word->StringOf());
                }
            }
        }
    }

    void DumpEntries(const FieldRow& row) {
        for (TypedDataContainer* const entry : m_object.*row.member.entries) {
            if (entry != nullptr) {
                Zelvon::LinuxThreadTools::LinuxYieldThread();
                DumpContainer(*entry);
            }
        }
    }

    void DumpContainer(TypedDataContainer& object) {
        DOMNode* pTestCurrent = nullptr;
        if (!object.DumpMergeContentsII(m_current, m_output, pTestCurrent, m_withMergeAttributes)) {
            m_object.SetLastError(object.GetLastErrorNum(), "%s",
                                  object.GetLastError().c_str()); // so that the caller sees why
            m_success = false;
        }
    }

    void Note(bool success) { m_success = m_success && success; }

    TypedDataContainer& m_object;
    const FieldTable& m_table;
    FullFunctionXMLDataWrapper* m_output;
    DOMDocument* m_document;
    bool m_withMergeAttributes;
    DOMNode* m_current = nullptr;
    bool m_success = true;
};

} // namespace

bool DumpByNode(TypedDataContainer& object, const FieldTable& table, DOMNode* pParentNode,
                FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    try {
        if (pOutput == nullptr || pOutput->GetOutputDocument() == nullptr) {
            object.SetLastError(-1, "there is no output document to dump into");
            return false;
        }
        bool bSuccess = true;
        DOMNode* pTestCurrent = nullptr;
        if (table.parent != nullptr) {
            bSuccess = DumpByNode(object, *table.parent, pParentNode, pOutput, pTestCurrent, bIncludeMergeAttributes);
        }
        DumpWalk walk(object, table, pOutput, bIncludeMergeAttributes);
        return walk.Run(pParentNode, pTestCurrent, pPassedCurrent) && bSuccess;
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in UpdateContainedData");
        return false;
    }
}

} // namespace Framework
