#include "Framework/FrameworkDataContainers/Walks/ElementFindings.h"

#include <algorithm>
#include <array>
#include <memory_resource>
#include <typeinfo>
#include <utility>

#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/FieldPath.h"
#include "Framework/FrameworkDataContainers/Walks/ValueProblem.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/TextHash.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

/// Nodes by a key that stands in the document: a flat table that keeps no texts, for there may be as many as a list is
/// long. Of each node it keeps the position in its list, which may be its key.
class KeyedNodes {
public:
    /// Puts the node in the place of the one of the same key, which is returned; None when it is the first.
    template <typename Equals>
    NodeRef AddOrExchange(std::string_view key, NodeRef node, std::size_t position, Equals hasKey) {
        if (2 * (m_used + 1) > m_slots.size()) {
            Grow();
        }
        const std::size_t hash = TextHash()(key);
        std::size_t place = hash & (m_slots.size() - 1);
        while (m_slots[place].node != NodeRef::None) {
            if (m_slots[place].hash == hash && hasKey(m_slots[place].node, m_slots[place].position)) {
                return std::exchange(m_slots[place], {hash, node, position}).node;
            }
            place = (place + 1) & (m_slots.size() - 1);
        }
        m_slots[place] = {hash, node, position};
        ++m_used;
        return NodeRef::None;
    }

private:
    struct Slot {
        std::size_t hash = 0;
        NodeRef node = NodeRef::None;
        std::size_t position = 0;
    };

    void Grow() {
        std::vector<Slot> larger(std::max<std::size_t>(16, 2 * m_slots.size()));
        for (const Slot& slot : m_slots) {
            if (slot.node != NodeRef::None) {
                std::size_t place = slot.hash & (larger.size() - 1);
                while (larger[place].node != NodeRef::None) {
                    place = (place + 1) & (larger.size() - 1);
                }
                larger[place] = slot;
            }
        }
        m_slots.swap(larger);
    }

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
};

/// A field of the class and of those that it inherits from, and what was found for it.
struct SeenField {
    const FieldRow* row;
    NodeRef first = NodeRef::None;
    std::size_t count = 0;
    std::unique_ptr<KeyedNodes> keys{}; ///< the last node of each; none before the second entry
};

void AppendFields(const FieldTable& table, std::pmr::vector<SeenField>& fields, std::size_t count = 0) {
    count += table.rows.size();
    if (table.parent != nullptr) {
        AppendFields(*table.parent, fields, count);
    } else {
        fields.reserve(count);
    }
    for (const FieldRow& row : table.rows) {
        fields.push_back({&row});
    }
}

bool HoldsContainers(const FieldRow& row) {
    return row.value == FieldValue::Container;
}

bool IsControlWord(std::string_view name) {
    constexpr std::array<std::string_view, 4> words = {actionAttribute, placementOrderAttribute,
                                                       placementIndexAttribute, placementFeatureAttribute};
    return std::find(words.begin(), words.end(), name) != words.end();
}

/// What tells other programs about an element, or who made it, and is no field anywhere.
bool IsAside(std::string_view name) {
    return name == featureAttribute || name.starts_with("xmlns") || name.starts_with("xsi:") ||
           name.starts_with("xml:") || name.starts_with("prov:");
}

bool IsBlank(std::string_view text) {
    // No other character below the blank is allowed in XML.
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) <= ' '; });
}

std::string Quoted(std::string_view name) {
    return std::string("\"").append(name).append("\"");
}

/// Every element of an override comes here, so the tree is read as what it is, and the fields of all but the largest
/// classes find room in the finder.
template <typename Tree> class ElementFinder {
public:
    ElementFinder(const Tree& tree, const ReadElement& element, const FindingRules& rules, const FindingReport& report,
                  const FoundChild& child)
        : m_tree(tree), m_nodes(element.nodes), m_rules(rules), m_report(report), m_child(child),
          m_memory(m_fieldRoom.data(), m_fieldRoom.size()), m_fields(&m_memory) {
        AppendFields(element.table, m_fields);
    }
    ElementFinder(const ElementFinder&) = delete;
    ElementFinder& operator=(const ElementFinder&) = delete;

    void Run() {
        for (const NodeRef node : m_nodes) {
            Begin(node);
            LookAt();
        }
    }

private:
    void Begin(NodeRef node) {
        if (m_node != NodeRef::None) {
            for (SeenField& seen : m_fields) { // values may stand once in each
                if (seen.row->form == FieldForm::Element || seen.row->form == FieldForm::Child) {
                    seen.count = 0;
                }
            }
        }
        m_node = node;
        m_owner = m_tree.Name(node);
        m_sawText = false;
    }

    void LookAt() {
        LookAtAttributes();
        for (NodeRef child = m_tree.FirstChild(m_node); child != NodeRef::None; child = m_tree.NextSibling(child)) {
            const NodeKind kind = m_tree.Kind(child);
            if (kind == NodeKind::Element) {
                LookAtElement(child);
            } else if (IsText(kind)) {
                LookAtText(child);
            }
        }
    }

    std::string Owner() const { return std::string(m_owner); }
    void Report(NodeRef node, std::string_view field, FoundProblem problem) { m_report(node, field, problem); }

    // --- the element's own attributes

    void LookAtAttributes() {
        for (NodeRef attribute = m_tree.FirstAttribute(m_node); attribute != NodeRef::None;
             attribute = m_tree.NextSibling(attribute)) {
            const std::string_view name = m_tree.Name(attribute);
            const auto field = std::find_if(m_fields.begin(), m_fields.end(), [name](const SeenField& seen) {
                return seen.row->form == FieldForm::Attribute && seen.row->name == name;
            });
            if (field != m_fields.end()) {
                LookAtValue(*field, attribute, attribute);
            } else if (IsControlWord(name)) {
                LookAtControlWord(attribute);
            } else if (m_rules.knowsAllNames && !IsAside(name)) {
                ReportUnknownAttribute(attribute);
            }
        }
    }

    void LookAtControlWord(NodeRef attribute) {
        if (m_rules.reader == ElementReader::Load) {
            Report(m_node, {},
                   {FindingCode::MisplacedControlWord,
                    std::string(m_tree.Name(attribute)) + " acts in overrides only; a load passes over it", attribute});
        }
    }

    void ReportUnknownAttribute(NodeRef attribute) {
        const std::string_view name = m_tree.Name(attribute);
        const bool isElement = std::any_of(m_fields.begin(), m_fields.end(), [name](const SeenField& seen) {
            return seen.row->form != FieldForm::Attribute && seen.row->name == name;
        });
        FoundProblem problem{
            FindingCode::UnknownAttribute,
            isElement ? std::string(name) + " is an element of " + Owner() + ", not an attribute; it is passed over"
                      : "no attribute of " + Owner() + " is named " + Quoted(name) + "; it is passed over",
            attribute};
        if (!isElement) {
            problem.near = Near(name, true);
        }
        Report(m_node, name, std::move(problem));
    }

    std::vector<std::string> Near(std::string_view name, bool isAttribute) const {
        std::vector<std::string> known;
        for (const SeenField& seen : m_fields) {
            if ((seen.row->form == FieldForm::Attribute) == isAttribute) {
                known.emplace_back(seen.row->name);
            }
        }
        if (isAttribute && m_rules.reader != ElementReader::Load) {
            known.insert(known.end(), {featureAttribute, actionAttribute, placementOrderAttribute,
                                       placementIndexAttribute, placementFeatureAttribute});
        }
        return m_rules.near(name, known);
    }

    // --- its text

    void LookAtText(NodeRef text) {
        std::string room;
        if (!m_sawText && !IsBlank(m_tree.Value(text, room))) {
            m_sawText = true;
            Report(m_node, {},
                   {FindingCode::StrayText,
                    "text stands directly in " + Owner() + ", which holds elements only; it is passed over", text});
        }
    }

    // --- its elements

    /// The entries of a list stand in a row, and a document numbers its names.
    SeenField* FieldOf(NodeRef child) {
        if constexpr (std::is_same_v<Tree, Document>) {
            if (const std::uint32_t number = m_tree.NameNumber(child); number != m_lastName) {
                m_lastName = number;
                m_lastField = FieldNamed(m_tree.Name(child));
            }
            return m_lastField;
        } else {
            return FieldNamed(m_tree.Name(child));
        }
    }

    /// A document has its elements mostly in the order of the fields, and those of a list in a row.
    SeenField* FieldNamed(std::string_view name) {
        for (std::size_t tried = 0; tried < m_fields.size(); ++tried) {
            SeenField& seen = m_fields[m_next];
            if (seen.row->form != FieldForm::Attribute && seen.row->name == name) {
                return &seen;
            }
            m_next = m_next + 1 == m_fields.size() ? 0 : m_next + 1;
        }
        return nullptr;
    }

    void LookAtElement(NodeRef child) {
        SeenField* const seen = FieldOf(child);
        if (seen == nullptr) {
            if (m_rules.knowsAllNames) {
                ReportUnknownElement(child);
            }
            return;
        }
        if (!IsLeftOut(*seen->row, child)) {
            ++seen->count;
            LookAtField(*seen, child);
        }
        if (m_child) {
            m_child(child, *seen->row, seen->count);
        }
    }

    void ReportUnknownElement(NodeRef child) {
        const std::string_view name = m_tree.Name(child);
        const bool isAttribute = std::any_of(m_fields.begin(), m_fields.end(), [name](const SeenField& seen) {
            return seen.row->form == FieldForm::Attribute && seen.row->name == name;
        });
        FoundProblem problem{
            FindingCode::UnknownElement,
            isAttribute ? std::string(name) + " is an attribute of " + Owner() + ", not an element; it is passed over"
                        : "no element of " + Owner() + " is named " + Quoted(name) + "; it is passed over"};
        if (!isAttribute) {
            problem.near = Near(name, false);
        }
        Report(child, name, std::move(problem));
    }

    /// The step to a child that a field names.
    std::string StepTo(const SeenField& seen, NodeRef child) const {
        const FieldRow& row = *seen.row;
        const NodeRef key = row.keyAttribute.empty() ? NodeRef::None : FindAttribute(m_tree, child, row.keyAttribute);
        return key != NodeRef::None               ? FieldPath::KeyStep(row.name, row.keyAttribute, TextOf(m_tree, key))
               : row.form == FieldForm::PlainList ? FieldPath::PositionStep(row.name, seen.count)
                                                  : std::string(row.name);
    }

    void LookAtField(SeenField& seen, NodeRef child) {
        const FieldRow& row = *seen.row;
        switch (row.form) {
        case FieldForm::Element:
        case FieldForm::Child:
            LookAtRepetition(seen, child);
            break;
        case FieldForm::KeyedList:
            LookAtKey(seen, child);
            break;
        case FieldForm::PlainList:
        case FieldForm::Attribute:
            break;
        }
        if (!HoldsContainers(row)) {
            LookAtInside(seen, child);
            LookAtValue(seen, child, NodeRef::None);
        }
    }

    /// Something new leaves out what asks for more than to be added. That is told elsewhere.
    bool IsLeftOut(const FieldRow& row, NodeRef child) const {
        return m_rules.reader == ElementReader::Part && row.form != FieldForm::Element &&
               ReadControl(m_tree, child, ControlSite::NewPart).problem.has_value();
    }

    /// Told once for a field, where it stands for the second time.
    void LookAtRepetition(SeenField& seen, NodeRef child) {
        if (seen.count == 1) {
            seen.first = child;
        } else if (seen.count == 2) {
            const bool isRead = HoldsContainers(*seen.row) && m_rules.reader != ElementReader::Merge;
            Report(child, seen.row->name,
                   {FindingCode::RepeatedValue,
                    std::string(seen.row->name) + " stands more than once in " + Owner() +
                        (isRead ? ", all are read into one object" : ", only the last counts"),
                    NodeRef::None,
                    {},
                    seen.first,
                    "the first one is here"});
        }
    }

    void LookAtKey(SeenField& seen, NodeRef child) {
        const FieldRow& row = *seen.row;
        const NodeRef attribute = FindAttribute(m_tree, child, row.keyAttribute);
        if (attribute == NodeRef::None && !row.numberedKeys) {
            if (m_rules.reader != ElementReader::Merge) {
                Report(child, row.name,
                       {FindingCode::MissingKey, std::string(row.name) + " has no key, expected the attribute " +
                                                     std::string(row.keyAttribute)});
            }
            return;
        }
        if (!m_rules.findsSecondKeys || (row.numberedKeys && m_rules.reader != ElementReader::Merge)) {
            return; // keys that are numbered on load are so whatever stands there
        }
        if (seen.first == NodeRef::None) {
            seen.first = child;
            return;
        }
        if (seen.keys == nullptr) {
            seen.keys = std::make_unique<KeyedNodes>();
            NoteKey(seen, seen.first, 1);
        }
        if (const NodeRef first = NoteKey(seen, child, seen.count); first != NodeRef::None) {
            ReportSecond(row, first, child, seen.count);
        }
    }

    /// The node before it that has the same key, None when there is none.
    NodeRef NoteKey(SeenField& seen, NodeRef child, std::size_t position) {
        const std::string_view key = KeyIn(*seen.row, child, position, m_room);
        return seen.keys->AddOrExchange(key, child, position, [&](NodeRef other, std::size_t otherPosition) {
            std::string room;
            return KeyIn(*seen.row, other, otherPosition, room) == key;
        });
    }

    /// The key of an entry, which may be its position among its namesakes.
    std::string_view KeyIn(const FieldRow& row, NodeRef child, std::size_t position, std::string& room) const {
        const NodeRef attribute = FindAttribute(m_tree, child, row.keyAttribute);
        if (attribute != NodeRef::None || !row.numberedKeys) {
            return attribute == NodeRef::None ? std::string_view() : m_tree.Value(attribute, room);
        }
        room = std::to_string(position);
        return room;
    }

    void ReportSecond(const FieldRow& row, NodeRef first, NodeRef child, std::size_t position) {
        const bool isMerge = m_rules.reader == ElementReader::Merge;
        if (isMerge && AttributeOf(m_tree, first, actionAttribute) == "Remove") {
            return; // taken out, and brought anew
        }
        std::string room;
        const std::string key(KeyIn(row, child, position, room));
        Report(child, FieldPath::KeyStep(row.name, row.keyAttribute, key),
               {FindingCode::DuplicateKey,
                "a second " + std::string(row.name) + " with " + std::string(row.keyAttribute) + "=" + Quoted(key) +
                    (isMerge ? ", merged after the first" : "; it is dropped"),
                NodeRef::None,
                {},
                first,
                "the first one is here"});
    }

    /// An element with one value has no elements, and no attributes but the key.
    void LookAtInside(const SeenField& seen, NodeRef child) {
        const FieldRow& row = *seen.row;
        for (NodeRef attribute = m_tree.FirstAttribute(child); attribute != NodeRef::None;
             attribute = m_tree.NextSibling(attribute)) {
            const std::string_view name = m_tree.Name(attribute);
            if (IsAside(name) || (!row.keyAttribute.empty() && name == row.keyAttribute)) {
                continue;
            }
            if (!IsControlWord(name)) {
                Report(child, StepTo(seen, child),
                       {FindingCode::UnknownAttribute,
                        std::string(row.name) + " holds one value and has no attribute " + Quoted(name) +
                            "; it is passed over",
                        attribute});
            } else if (m_rules.reader == ElementReader::Load) {
                Report(child, StepTo(seen, child),
                       {FindingCode::MisplacedControlWord,
                        std::string(name) + " acts in overrides only; a load passes over it", attribute});
            }
        }
        for (NodeRef inner = m_tree.FirstChild(child); inner != NodeRef::None; inner = m_tree.NextSibling(inner)) {
            if (m_tree.Kind(inner) == NodeKind::Element) {
                Report(inner, StepTo(seen, child),
                       {FindingCode::UnknownElement, std::string(row.name) + " holds one value and no element " +
                                                         Quoted(m_tree.Name(inner)) + "; it is passed over"});
            }
        }
    }

    /// `attribute` is the node itself when it is one.
    void LookAtValue(const SeenField& seen, NodeRef node, NodeRef attribute) {
        const FieldRow& row = *seen.row;
        if (row.value == FieldValue::String) {
            return;
        }
        const std::string_view text = TextIn(m_tree, node, m_room);
        std::optional<FoundProblem> problem = ValueProblem(row, text, m_rules.near);
        if (problem.has_value()) {
            problem->where = attribute;
            if (attribute == NodeRef::None) {
                Report(node, StepTo(seen, node), std::move(*problem));
            } else {
                Report(m_node, row.name, std::move(*problem));
            }
        }
    }

    const Tree& m_tree;
    std::span<const NodeRef> m_nodes;
    NodeRef m_node = NodeRef::None; ///< that is looked at
    const FindingRules& m_rules;
    const FindingReport& m_report;
    const FoundChild& m_child;
    std::string_view m_owner;
    std::array<std::byte, 2048> m_fieldRoom; ///< for the fields
    std::pmr::monotonic_buffer_resource m_memory;
    std::pmr::vector<SeenField> m_fields;
    std::size_t m_next = 0;       ///< the field where the search for the next element begins
    std::uint32_t m_lastName = 0; ///< the number of the name that was looked at last
    SeenField* m_lastField = nullptr;
    bool m_sawText = false;
    std::string m_room;
};

} // namespace

void FindInElement(const ReadElement& element, const FindingRules& rules, const FindingReport& report,
                   const FoundChild& child) {
    if (typeid(element.tree) == typeid(Document)) {
        ElementFinder(static_cast<const Document&>(element.tree), element, rules, report, child).Run();
    } else {
        ElementFinder(element.tree, element, rules, report, child).Run();
    }
}

} // namespace Framework
