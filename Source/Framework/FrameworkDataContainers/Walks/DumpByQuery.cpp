#include <memory>
#include <string>

#include <xercesc/dom/DOMNode.hpp>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/OutputScope.h"

namespace Framework {

namespace {

/// The last step of an object's query.
zelString QueryStep(TypedDataContainer& object, const zelString& sAttributes, int QueryPos,
                    bool bIncludeMergeAttributes) {
    zelString step = object.GetContainerName();
    if (QueryPos >= 0) {
        step += "[" + std::to_string(QueryPos) + "]";
    }
    if (!sAttributes.empty()) {
        step += "[" + sAttributes + (bIncludeMergeAttributes ? object.GetMergeAttributes() : zelString()) + "]";
    }
    return step;
}

/// Values are not escaped in a query, and one with apostrophes may look like two conditions. Whether the step reads as
/// the attributes that the object has; only then does it lead to the object's own node.
bool ReadsAsMeant(TypedDataContainer& object, const zelString& step, bool bIncludeMergeAttributes) {
    const std::unique_ptr<ParameterList> plAttributes(object.GetPLAttributeList());
    if (plAttributes == nullptr) {
        return true;
    }
    if (bIncludeMergeAttributes) {
        object.GetPLMergeAttributes(plAttributes.get());
    }
    std::vector<PathCondition> meant;
    bool hasQuote = false;
    for (std::size_t i = 0; i < plAttributes->size(); ++i) {
        if (const ParameterList::ParameterDataType* const pdT = plAttributes->ItemData(i); pdT != nullptr) {
            meant.push_back({pdT->ElementName, pdT->strValue});
            hasQuote = hasQuote || pdT->strValue.find('\'') != zelString::npos;
        }
    }
    if (!hasQuote) {
        return true;
    }
    const ParsedPath parsed = ParseQueryPath(step);
    return parsed.kind == PathKind::Simple && parsed.path.steps.size() == 1 &&
           parsed.path.steps.front().conditions == meant;
}

/// The walk of one class into the node that its query found. A step that fails makes the result false; the steps go on.
class QueryDumpWalk {
public:
    QueryDumpWalk(TypedDataContainer& object, FullFunctionXMLDataWrapper& output, const zelString& sQuery,
                  DOMNode* pCurrent)
        : m_object(object), m_output(output), m_query(sQuery), m_current(pCurrent) {}

    bool Run(const FieldTable& table) {
        for (const FieldRow& row : table.rows) {
            FaultPoint("DumpByQuery");
            DumpField(row);
        }
        return m_success;
    }

private:
    void DumpField(const FieldRow& row) {
        switch (row.form) {
        case FieldForm::Attribute: // in the query
            break;
        case FieldForm::Element:
            DumpText(row, ScalarText(m_object, row));
            break;
        case FieldForm::Child:
            if (TypedDataContainer* const child = row.child->get(m_object)) {
                DumpContainer(*child, -1);
            }
            break;
        case FieldForm::KeyedList:
            row.value == FieldValue::Container ? DumpEntries(row) : DumpKeyedTexts(row);
            break;
        case FieldForm::PlainList:
            row.value == FieldValue::Container ? DumpEntries(row) : DumpTexts(row);
            break;
        }
    }

    void DumpText(const FieldRow& row, const zelString& text) {
        const zelString name(row.name.data());
        if (row.cdata) {
            m_success = m_object.AppendCDataValue(&m_output, m_current, name, text) && m_success;
        } else if (!m_output.AppendElementValue(m_current, name, text, true)) {
            m_object.SetLastError(-1, "%s: %s", m_object.GetContainerName().c_str(), m_output.GetLastError().c_str());
            m_success = false;
        }
    }

    void DumpTexts(const FieldRow& row) {
        if (row.value == FieldValue::String) {
            for (const zelString& text : m_object.*row.member.texts) {
                DumpText(row, text);
            }
            return;
        }
        for (TypedDataEnumeration* const word : m_object.*row.member.words) {
            if (word != nullptr) {
                DumpText(row, word->StringOf());
            }
        }
    }

    /// A text that is refused does not count as a failure here: the wrapper keeps the reason.
    void DumpKeyedTexts(const FieldRow& row) {
        zelString sStart = m_query;
        sStart.append("/").append(row.name).append("[@").append(row.keyAttribute).append("=");
        for (TypedDataContainer::SimpleDataContainer* const entry : m_object.*row.member.keyedTexts) {
            if (entry == nullptr) {
                continue;
            }
            const zelString sItemQuery = sStart + entry->ElementName + "]";
            if (IsInQuotes(entry->ElementName)) {
                WrapperAccess::State(m_output).SetError(-1, "the key in " + sItemQuery + " cannot stand in a query");
                continue;
            }
            if (!m_output.NodeExists(sItemQuery, true)) {
                m_output.CreateQueryPath(sItemQuery);
            }
            m_output.SetQueryValue(sItemQuery, m_object.GetSimpleTypeData(entry), false);
        }
    }

    /// Keys stand in the query as they are; in quotes of its own the key would be read without them.
    static bool IsInQuotes(const zelString& key) {
        return (key.starts_with('\'') || key.starts_with('"')) && key.find(key.front(), 1) != zelString::npos;
    }

    void DumpEntries(const FieldRow& row) {
        int nNodeListPos = 1;
        for (TypedDataContainer* const entry : m_object.*row.member.entries) {
            if (entry == nullptr) {
                continue;
            }
            Zelvon::LinuxThreadTools::LinuxYieldThread();
            if (DumpContainer(*entry, row.form == FieldForm::PlainList ? nNodeListPos : -1)) {
                ++nNodeListPos;
            }
        }
    }

    bool DumpContainer(TypedDataContainer& object, int QueryPos) {
        if (object.DumpMergeContents(m_query, &m_output, QueryPos, true)) {
            return true;
        }
        m_object.SetLastError(object.GetLastErrorNum(), "%s",
                              object.GetLastError().c_str()); // so that the caller sees why
        m_success = false;
        return false;
    }

    TypedDataContainer& m_object;
    FullFunctionXMLDataWrapper& m_output;
    const zelString& m_query;
    DOMNode* m_current;
    bool m_success = true;
};

/// The object's node in the output, made when the query says enough to make it; null when there is none.
DOMNode* FindOrCreate(FullFunctionXMLDataWrapper& output, const zelString& sQuery, bool mayCreate) {
    DOMNode* node = output.FindOutputNode(sQuery, true, true);
    if (node == nullptr && mayCreate) {
        output.CreateQueryPath(sQuery);
        node = output.FindOutputNode(sQuery, true, true);
    }
    return node;
}

} // namespace

bool DumpByQuery(TypedDataContainer& object, const FieldTable& table, const zelString& sParentQuery,
                 FullFunctionXMLDataWrapper* pOutput, int QueryPos, bool bIncludeMergeAttributes) {
    try {
        if (pOutput == nullptr || pOutput->GetOutputDocument() == nullptr) {
            object.SetLastError(-1, "there is no output document to dump into");
            return false;
        }
        OutputScope scope(*pOutput);
        bool bSuccess = true;
        if (table.parent != nullptr) {
            bSuccess = DumpByQuery(object, *table.parent, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
        }
        const zelString sAttributes = object.GetAttributeList();
        const zelString step =
            QueryStep(object, sAttributes, sParentQuery.empty() ? -1 : QueryPos, bIncludeMergeAttributes);
        const zelString sQuery = sParentQuery.empty() ? zelString("//" + step) : zelString(sParentQuery + "/" + step);
        if (!sAttributes.empty() && !ReadsAsMeant(object, step, bIncludeMergeAttributes)) {
            WrapperAccess::State(*pOutput).SetError(-1, "a value in " + sQuery + " cannot stand in a query");
            return bSuccess;
        }
        DOMNode* const pCurrent = FindOrCreate(*pOutput, sQuery, !sAttributes.empty() || QueryPos > 0);
        if (pCurrent == nullptr) {
            return bSuccess;
        }
        scope.StandOn(sQuery, pCurrent);
        return QueryDumpWalk(object, *pOutput, sQuery, pCurrent).Run(table) && bSuccess;
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in UpdateContainedData");
        return false;
    }
}

} // namespace Framework
