#include <algorithm>
#include <unordered_map>
#include <vector>

#include <sys/single_threaded.h>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XmlEscapes.h"

namespace Framework {

namespace {

/// The yield of the dumps, for the other threads of the process. Where there never were any, it would be half of the
/// time that a dump takes.
void YieldToThreads() {
    if (__libc_single_threaded == 0) {
        Zelvon::LinuxThreadTools::LinuxYieldThread();
    }
}

/// Writes what DumpByNode builds, as XmlWriter lays it out. Every step is false when the dump has to take the DOM.
class TextWalk {
public:
    TextWalk(std::string& xml, bool withMergeAttributes) : m_xml(xml), m_withMergeAttributes(withMergeAttributes) {}

    bool WriteDocument(TypedDataContainer& root) {
        m_xml.append(R"(<?xml version="1.0" encoding="UTF-8"?>)");
        const bool isWritten = WriteObject(root, nullptr, {});
        m_xml.push_back('\n');
        return isWritten;
    }

private:
    /// `likelyTable` and `likelyName` are what an object has that the library itself put there.
    bool WriteObject(TypedDataContainer& object, const FieldTable* likelyTable, std::string_view likelyName) {
        const FieldTable* const table = ExactTable(object, likelyTable);
        if (table == nullptr) {
            return false;
        }
        try {
            const std::string_view name = ContainerAccess::ContainerName(object);
            const bool isKnown = !likelyName.empty() && name == likelyName;
            if (!isKnown && !IsXmlName(name)) {
                return false;
            }
            BeginLine();
            m_xml.append(1, '<').append(name);
            if (!WriteAttributes(object, *table)) {
                return false;
            }
            m_isTagOpen = true;
            ++m_depth;
            if (!WriteFields(object, *table)) {
                return false;
            }
            --m_depth;
            EndElement(name);
            return true;
        } catch (...) { // as the dump into a DOM says it, for all above as well
            ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in UpdateContainedData");
            throw;
        }
    }

    void BeginLine() {
        if (m_isTagOpen) {
            m_xml.push_back('>');
            m_isTagOpen = false;
        }
        m_xml.push_back('\n');
        m_xml.append(2 * m_depth, ' ');
    }

    void EndElement(std::string_view name) {
        if (m_isTagOpen) {
            m_xml.append("/>");
            m_isTagOpen = false;
            return;
        }
        BeginLine();
        CloseTag(name);
    }

    void CloseTag(std::string_view name) { m_xml.append("</").append(name).push_back('>'); }

    bool WriteAttributes(TypedDataContainer& object, const FieldTable& table) {
        constexpr std::string_view kFeatureName = "FeatureID";
        std::string_view feature; // until it is written
        if (m_withMergeAttributes) {
            feature = ContainerAccess::MergeFeature(object);
        }
        zelString room;
        for (const FieldRow* row : AttributesOf(table)) {
            FaultPoint("SetAttributeValue");
            if (!feature.empty() && kFeatureName < row->name) {
                if (!WriteAttribute(kFeatureName, feature)) {
                    return false;
                }
                feature = {};
            }
            if (!WriteAttribute(row->name, ScalarText(object, *row, room))) {
                return false;
            }
        }
        return feature.empty() || WriteAttribute(kFeatureName, feature);
    }

    /// False when the text cannot stand in XML.
    bool WriteAttribute(std::string_view name, std::string_view text) {
        m_xml.append(1, ' ').append(name).append("=\"");
        if (NeedsNoEscape(text)) {
            m_xml.append(text);
        } else if (IsXmlText(text)) {
            AppendEscapedAttribute(m_xml, text);
        } else {
            return false;
        }
        m_xml.push_back('"');
        return true;
    }

    /// The attributes of a class and its parents by name, as a DOM keeps them. No name stands there twice, and none is
    /// that of the merge attribute: the generator refuses both.
    const std::vector<const FieldRow*>& AttributesOf(const FieldTable& table) {
        const auto [found, isNew] = m_attributes.try_emplace(&table);
        std::vector<const FieldRow*>& rows = found->second;
        if (isNew) {
            for (const FieldTable* each = &table; each != nullptr; each = each->parent) {
                for (const FieldRow& row : each->rows) {
                    if (row.form == FieldForm::Attribute) {
                        rows.push_back(&row);
                    }
                }
            }
            std::sort(rows.begin(), rows.end(), [](const auto* a, const auto* b) { return a->name < b->name; });
        }
        return rows;
    }

    bool WriteFields(TypedDataContainer& object, const FieldTable& table) {
        if (table.parent != nullptr && !WriteFields(object, *table.parent)) {
            return false;
        }
        for (const FieldRow& row : table.rows) {
            FaultPoint("DumpByNode");
            if (!WriteField(object, row)) {
                return false;
            }
        }
        return true;
    }

    bool WriteField(TypedDataContainer& object, const FieldRow& row) {
        switch (row.form) {
        case FieldForm::Attribute:
            return true;
        case FieldForm::Element: {
            zelString room;
            return WriteText(row, ScalarText(object, row, room));
        }
        case FieldForm::Child: {
            TypedDataContainer* const child = row.child->get(object);
            return child == nullptr || WriteObject(*child, row.child->table, row.name);
        }
        case FieldForm::KeyedList:
        case FieldForm::PlainList:
            return WriteList(object, row);
        }
        return false;
    }

    bool WriteList(TypedDataContainer& object, const FieldRow& row) {
        const auto writeAll = [](const auto& list, auto write) {
            for (const auto& entry : list) {
                if (!write(entry)) {
                    return false;
                }
            }
            return true;
        };
        if (row.value == FieldValue::Container) {
            return writeAll(object.*row.member.entries, [&](TypedDataContainer* entry) {
                if (entry == nullptr) {
                    return true;
                }
                YieldToThreads();
                return WriteObject(*entry, row.list->table, row.name);
            });
        }
        if (row.form == FieldForm::KeyedList) {
            return writeAll(object.*row.member.keyedTexts, [&](const TypedDataContainer::SimpleDataContainer* entry) {
                return entry == nullptr || WriteKeyedText(row, entry->ElementName, entry->strValue);
            });
        }
        if (row.value == FieldValue::String) {
            return writeAll(object.*row.member.texts, [&](const zelString& text) { return WriteText(row, text); });
        }
        return writeAll(object.*row.member.words, [&](const TypedDataEnumeration* word) {
            return word == nullptr || WriteText(row, word->StringOf());
        });
    }

    bool WriteText(const FieldRow& row, std::string_view text) {
        FaultPoint(row.cdata ? "CreateCDataNode" : "CreateTextNode");
        BeginLine();
        m_xml.append(1, '<').append(row.name);
        return WriteContent(row, text);
    }

    bool WriteKeyedText(const FieldRow& row, std::string_view key, std::string_view text) {
        FaultPoint("CreateTextNodeWithAttr");
        BeginLine();
        m_xml.append(1, '<').append(row.name);
        return WriteAttribute(row.keyAttribute, key) && WriteContent(row, text);
    }

    /// What follows the attributes of an element that holds a text.
    bool WriteContent(const FieldRow& row, std::string_view text) {
        if (text.empty()) {
            m_xml.append("/>");
            return true;
        }
        m_xml.push_back('>');
        const bool isPlain = NeedsNoEscape(text);
        if (!isPlain && !IsXmlText(text)) {
            return false;
        }
        if (row.cdata) {
            AppendCData(m_xml, text);
        } else if (isPlain) {
            m_xml.append(text);
        } else {
            AppendEscapedText(m_xml, text);
        }
        CloseTag(row.name);
        return true;
    }

    std::string& m_xml;
    bool m_withMergeAttributes;
    std::size_t m_depth = 0;
    bool m_isTagOpen = false; ///< the last start tag has all but its end
    std::unordered_map<const FieldTable*, std::vector<const FieldRow*>> m_attributes;
};

} // namespace

DumpedText DumpAsText(TypedDataContainer& object, bool withMergeAttributes, std::string& xml) {
    try {
        return TextWalk(xml, withMergeAttributes).WriteDocument(object) ? DumpedText::Whole : DumpedText::NeedsDom;
    } catch (...) { // the object says so by now
        return DumpedText::Failed;
    }
}

} // namespace Framework
