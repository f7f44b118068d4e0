#include <algorithm>
#include <optional>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/FieldNodes.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/ScalarWriter.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

ValueKind KindOf(const FieldRow& row) {
    switch (row.value) {
    case FieldValue::Bool:
        return ValueKind::Bool;
    case FieldValue::Int:
        return ValueKind::Int;
    case FieldValue::Double:
        return ValueKind::Double;
    default:
        return ValueKind::Text; // a word is compared as text: what is none goes
    }
}

/// What a load leaves in the field when its node is not there: the constructor's value, or for attributes, which are
/// read all the same, that of an empty text.
zelString AbsentText(const FieldRow& row) {
    if (row.value == FieldValue::Enumeration) {
        return row.loadText.empty() ? row.enumeration->word(0) : row.enumeration->wordOf(row.loadText.data());
    }
    return row.form == FieldForm::Attribute ? zelString() : DefaultText(row);
}

/// The walk of one class: each field is written where a load reads it. The wrapper stands on the container's node
/// between two fields, and on that of an entry or child while that writes itself.
class UpdateWalk {
public:
    UpdateWalk(TypedDataContainer& object, const FieldTable& table, const FieldTable& all, bool& success)
        : m_object(object), m_table(table), m_all(all),
          m_state(WrapperAccess::State(*ContainerAccess::Wrapper(object))), m_success(success) {}

    void Run() {
        Enter();
        for (const FieldRow& row : m_table.rows) {
            WriteRow(row);
        }
    }

    /// For the write of a single field, which leaves the wrapper's query alone.
    void Stand() {
        m_isDom = m_state.domIsMaster;
        m_node = ContainerAccess::Node(m_object);
        Reposition();
    }

    void WriteRow(const FieldRow& row) {
        FaultPoint("Update");
        switch (row.form) {
        case FieldForm::Attribute:
        case FieldForm::Element:
            m_success = WriteScalar(row);
            break;
        case FieldForm::Child:
            UpdateBelow(row.child->get(m_object));
            break;
        case FieldForm::KeyedList:
        case FieldForm::PlainList:
            WriteList(row);
            break;
        }
        Reposition();
    }

    /// Writes one text of a list; false when it has no node.
    bool WriteEntry(const FieldRow& row, std::size_t position) {
        if (row.form == FieldForm::PlainList) {
            return WritePlainText(row, position);
        }
        return WriteKeyedTexts(row, position, position + 1) == 1;
    }

private:
    const XmlTree& Tree() const { return *m_state.Tree(); }

    void Enter() {
        const zelString name = m_object.GetContainerName();
        const bool goesOn = ContainerAccess::IsNested(m_object) && m_state.current != NodeRef::None;
        m_isDom = m_state.domIsMaster;
        if (goesOn) {
            m_state.query.Append(name);
        } else {
            m_state.query = QueryChain("//" + name);
        }
        m_node = ContainerAccess::Node(m_object);
        if (m_node == NodeRef::None) {
            m_node = goesOn ? m_state.current : m_state.Find("//" + name, true);
        }
        Reposition();
    }

    /// A host's own class may ask for the DOM in its update, which is then what everybody reads and writes.
    void Reposition() {
        if (m_isDom != m_state.domIsMaster) {
            m_isDom = m_state.domIsMaster;
            m_node = m_state.Translate(m_node);
            m_nodes.reset();
        }
        if (m_node != NodeRef::None) {
            m_state.current = m_node;
        }
    }

    /// Found when the first field needs them: many objects are nothing but a list of others.
    const FieldNodes& Nodes() {
        if (!m_nodes.has_value()) {
            m_nodes.emplace(Tree(), m_table, m_state.Here(), ContainerAccess::EarlierNodes(m_object));
        }
        return *m_nodes;
    }

    template <typename Step> bool Try(Step step) {
        try {
            step();
            return true;
        } catch (const std::runtime_error& failure) {
            Report(failure.what());
        } catch (const std::invalid_argument& failure) {
            Report(failure.what());
        }
        return false;
    }

    /// What is worked through over a read-only document is not the wrapper that callers know, so the object tells too.
    void Report(const std::string& what) {
        m_state.SetError(-1, what);
        if (m_state.readOnly) {
            m_object.SetLastError(-1, "%s", what.c_str());
        }
    }

    /// The usual cases, told without a copy: a text that stands there as it is, and what is not there and needs not be.
    bool IsSurelyUnchanged(const FieldRow& row, NodeRef present) const {
        const bool isAttribute = row.form == FieldForm::Attribute;
        if (present != NodeRef::None) {
            std::string room;
            return row.value == FieldValue::String && !row.cdata &&
                   TextIn(Tree(), present, room) == std::string_view(m_object.*row.member.text);
        }
        switch (row.value) {
        case FieldValue::String:
            return std::string_view(m_object.*row.member.text) == (isAttribute ? std::string_view() : row.initial.text);
        case FieldValue::Bool:
            return m_object.*row.member.flag == (!isAttribute && row.initial.flag);
        case FieldValue::Int:
            return m_object.*row.member.number == (isAttribute ? 0 : row.initial.number);
        default:
            return false;
        }
    }

    bool WriteScalar(const FieldRow& row) {
        const NodeRef present = Nodes().Single(row);
        if (IsSurelyUnchanged(row, present)) {
            return true;
        }
        zelString room;
        const std::string_view text = ScalarText(m_object, row, room);
        const zelString absent = AbsentText(row);
        FieldHint hint{.name = row.name,
                       .isAttribute = row.form == FieldForm::Attribute,
                       .form = row.cdata ? TextForm::CData : TextForm::Text,
                       .kind = KindOf(row),
                       .absent = absent};
        std::vector<std::string_view> order;
        if (present == NodeRef::None && !hint.isAttribute) {
            order = ElementOrder(m_all);
            hint.position = static_cast<std::size_t>(std::find(order.begin(), order.end(), row.name) - order.begin());
            hint.order = order;
        }
        return Try([&] { WriteField(m_state, m_state.Here(), present, hint, text); });
    }

    /// Children and entries write themselves at the node they were loaded from, in the document they were loaded from.
    void UpdateBelow(TypedDataContainer* below) {
        XMLDataWrapper* const wrapper = below == nullptr ? nullptr : ContainerAccess::Wrapper(*below);
        const NodeRef node = wrapper == nullptr ? NodeRef::None : ContainerAccess::Node(*below);
        if (node == NodeRef::None) {
            return; // nothing of it stands in a document
        }
        WrapperState& state = WrapperAccess::State(*wrapper);
        state.current = node;
        if (&state != &m_state) {
            state.query = {}; // nobody else would ever shorten it
        }
        below->UpdateContainedData();
    }

    void WriteList(const FieldRow& row) {
        if (row.value == FieldValue::Container) {
            for (TypedDataContainer* const entry : m_object.*row.member.entries) {
                UpdateBelow(entry);
                Reposition();
            }
        } else if (row.form == FieldForm::KeyedList) {
            WriteKeyedTexts(row);
        } else {
            const std::size_t length = row.value == FieldValue::String ? (m_object.*row.member.texts).size()
                                                                       : (m_object.*row.member.words).size();
            for (std::size_t i = 0; i < length && i < Nodes().List(row).size(); ++i) {
                const bool isThere = row.value == FieldValue::String || (m_object.*row.member.words)[i] != nullptr;
                if (isThere) {
                    m_success = WritePlainText(row, i);
                }
            }
        }
    }

    bool WritePlainText(const FieldRow& row, std::size_t position) {
        const std::vector<NodeRef>& nodes = Nodes().List(row);
        if (position >= nodes.size()) {
            Report("cannot write " + std::string(row.name) + "[" + std::to_string(position + 1) +
                   "]: the document has no such entry");
            return false;
        }
        const zelString text = row.value == FieldValue::String ? (m_object.*row.member.texts)[position]
                                                               : (m_object.*row.member.words)[position]->StringOf();
        return Try([&] { WriteNode(m_state, nodes[position], text, TextForm::Text, ValueKind::Text); });
    }

    using TextEntry = ContainerAccess::TextEntry;
    struct TextToWrite {
        TextEntry* entry;
        NodeRef node;
        zelString text;
    };

    /// Writes the entries, or those in a range, whose text is no longer what their node held. All are compared before
    /// the first is written. Returns how many of them stand in the document now.
    std::size_t WriteKeyedTexts(const FieldRow& row, std::size_t begin = 0, std::size_t end = std::string::npos) {
        const TextVector& texts = m_object.*row.member.keyedTexts;
        KeyedTextNodes nodes(m_object, row, Tree(), Nodes().List(row));
        std::vector<TextToWrite> changed;
        std::size_t standing = 0;
        for (std::size_t i = begin; i < std::min(end, texts.size()); ++i) {
            TextEntry* const entry = texts[i];
            bool isOwn = false;
            const NodeRef node = entry == nullptr ? NodeRef::None : nodes.Of(*entry, isOwn);
            if (node == NodeRef::None) {
                continue;
            }
            const zelString text = m_object.GetSimpleTypeData(entry);
            if (isOwn ? text == ContainerAccess::WrittenText(*entry) : text == TextOf(Tree(), node)) {
                ++standing;
            } else {
                changed.push_back({entry, node, text});
            }
        }
        for (const TextToWrite& each : changed) {
            if (Try([&] { WriteNode(m_state, each.node, each.text, TextForm::Text, ValueKind::Text); })) {
                ContainerAccess::AttachText(*each.entry, m_object, each.node, each.text);
                ++standing;
            }
        }
        return standing;
    }

    TypedDataContainer& m_object;
    const FieldTable& m_table;
    const FieldTable& m_all;
    WrapperState& m_state;
    bool& m_success;
    NodeRef m_node = NodeRef::None;
    bool m_isDom = false;
    std::optional<FieldNodes> m_nodes;
};

/// Whether the object must not be written; its error then says so, which cannot fail.
bool IsRefused(TypedDataContainer& object) {
    if (!ContainerAccess::IsReadOnly(object)) {
        return false;
    }
    ContainerAccess::SetFixedError(object, -1, "Update not supported for read only objects");
    return true;
}

bool UpdateClass(TypedDataContainer& object, const FieldTable& table, const FieldTable& all) {
    bool success = true;
    try {
        if (IsRefused(object)) {
            return false;
        }
        if (table.parent != nullptr) {
            success = UpdateClass(object, *table.parent, all);
        }
        if (LoadedState(ContainerAccess::Wrapper(object)) != nullptr) {
            UpdateWalk(object, table, all, success).Run();
        }
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in UpdateContainedData");
    }
    return success;
}

} // namespace

bool Update(TypedDataContainer& object, const FieldTable& table) {
    return UpdateClass(object, table, table);
}

bool UpdateField(TypedDataContainer& object, const FieldRow& row, std::optional<std::size_t> position) {
    if (IsRefused(object)) {
        return false;
    }
    const FieldTable* const all = TableOf(object);
    const FieldTable* table = all;
    while (table != nullptr && (&row < table->rows.data() || &row >= table->rows.data() + table->rows.size())) {
        table = table->parent;
    }
    if (table == nullptr || LoadedState(ContainerAccess::Wrapper(object)) == nullptr) {
        return false;
    }
    bool success = true;
    UpdateWalk walk(object, *table, *all, success);
    walk.Stand();
    if (position.has_value()) {
        return walk.WriteEntry(row, *position);
    }
    walk.WriteRow(row);
    return success;
}

} // namespace Framework
