#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/JournalData.h"
#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/FrameworkDataContainers/Walks/Children.h"
#include "Framework/FrameworkDataContainers/Walks/ElementFindings.h"
#include "Framework/FrameworkDataContainers/Walks/JournalScalars.h"
#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

template <typename Tree>
bool PopulateClass(TypedDataContainer& object, const FieldTable& table, const Tree& tree, NodeRef node, bool isExact,
                   bool isOutermost = true);

/// The walk of one class over one element. It is driven by the child nodes: each is given to the field of the class
/// that bears its name; what no field names is passed over. Attributes are read afterwards, also when they are absent.
///
/// A part whose class no host has derived from is populated by this walk itself. The others are populated through the
/// virtual operations of their classes, which are handed a view of the node.
///
/// Below something new that an override brings in, merge control has nothing to act on: an element that asks for more
/// than to be merged or added is left out and reported, as everywhere when a word cannot be obeyed.
template <typename Tree> class PopulateWalk {
public:
    /// `isExact`: the object is of a generated class itself, its own or one that inherits the table.
    PopulateWalk(TypedDataContainer& object, const FieldTable& table, const Tree& tree, NodeRef node, bool isExact)
        : m_object(object), m_table(table), m_tree(tree), m_node(node), m_isExact(isExact),
          m_feature(OverridePlace::FeatureIn(tree)),
          m_journal(m_feature == nullptr ? nullptr : JournalData::Current()) {}

    /// `isOutermost`: of the walks over the class and those that it inherits from, the one for the class itself.
    void Run(bool isOutermost) {
        if (isOutermost && m_feature != nullptr && IsMergeWatched()) {
            ReportFindings();
        }
        AssignLoadTexts();
        for (NodeRef child = m_tree.FirstChild(m_node); child != NodeRef::None; child = m_tree.NextSibling(child)) {
            if (m_tree.Kind(child) == NodeKind::Element) {
                TakeElement(child);
            }
        }
        TakeAttributes();
    }

private:
    /// Tells what is wrong with the node of an override beyond what the walk itself tells.
    void ReportFindings() {
        WhileMemoryLasts([this] {
            const auto report = [this](NodeRef node, std::string_view field, const FoundProblem& problem) {
                ReportOverride(m_object, {m_tree, node, *m_feature, nullptr, field}, problem, __LINE__,
                               MergeJournal::Outcome::Skipped);
            };
            FindInElement({m_tree, {&m_node, 1}, m_table}, {ElementReader::Part, m_isExact, false, &NearInMerge},
                          report);
        });
    }

    void Set(const FieldRow& row, NodeRef node, std::string_view text) {
        if (m_journal == nullptr) {
            SetScalar(m_object, row, text);
        } else {
            SetJournalled(*m_journal, m_object, row, {m_tree, node, text}, ScalarIs::New, m_node);
        }
    }

    /// An enumeration with a load text holds it unless the element is there; a new object does not.
    void AssignLoadTexts() {
        for (const FieldRow& row : m_table.rows) {
            if (row.loadText.empty()) {
                continue;
            }
            if (m_journal == nullptr) {
                row.enumeration->get(m_object) = row.loadText.data();
            } else if (LastChildNamed(m_tree, m_node, row.name) == NodeRef::None) {
                Set(row, NodeRef::None, row.loadText);
            } // else its element gives it another one in a moment, and the journal tells of that alone
        }
    }

    /// A document has its elements mostly in the order of the fields, and those of a list in a row: the search goes on
    /// where the last one ended. No two elements of a class bear the same name.
    void TakeElement(NodeRef child) {
        const std::string_view name = m_tree.Name(child);
        const std::size_t count = m_table.rows.size();
        for (std::size_t tried = 0; tried < count; ++tried) {
            const FieldRow& row = m_table.rows[m_next];
            if (row.form != FieldForm::Attribute && row.name == name) {
                TakeField(row, child);
                return;
            }
            m_next = m_next + 1 == count ? 0 : m_next + 1;
        }
    }

    void TakeField(const FieldRow& row, NodeRef child) {
        FaultPoint("Populate");
        if (m_feature != nullptr && !IsTaken(row, child)) {
            return;
        }
        switch (row.form) {
        case FieldForm::Element:
            if (row.cdata) {
                Set(row, child, CDataOf(m_tree, child));
            } else {
                Set(row, child, TextIn(m_tree, child, m_room));
            }
            break;
        case FieldForm::Child:
            TakeChild(row, child);
            break;
        case FieldForm::KeyedList:
        case FieldForm::PlainList:
            TakeEntry(row, child);
            break;
        case FieldForm::Attribute:
            break;
        }
    }

    bool IsTaken(const FieldRow& row, NodeRef child) {
        const bool isValue = row.form == FieldForm::Element;
        const auto problem = ReadControl(m_tree, child, isValue ? ControlSite::Value : ControlSite::NewPart).problem;
        if (problem.has_value()) {
            ReportOverride(m_object, {m_tree, child, *m_feature, nullptr, row.name}, *problem, __LINE__,
                           isValue ? MergeJournal::Outcome::Skipped : MergeJournal::Outcome::Refused);
        }
        return isValue || !problem.has_value();
    }

    /// A child that is there is used again: an element that stands twice fills one object twice.
    void TakeChild(const FieldRow& row, NodeRef node) {
        const JournalStep step(m_journal, row.name, nullptr);
        if (m_journal != nullptr && row.child->get(m_object) == nullptr) {
            WriteAdded(node);
        }
        TypedDataContainer& child = ChildInPlace(m_object, row);
        if (IsExactly(child, *row.child->table) && StandsOnTree()) {
            PopulatePart(child, *row.child->table, node);
        } else {
            child.SetContainedDataPtr(Wrapper(), m_tree.View(node), ContainerAccess::IsReadOnly(m_object), true);
        }
    }

    void TakeEntry(const FieldRow& row, NodeRef node) {
        if (row.value == FieldValue::Container && m_journal != nullptr) {
            TakeJournalled(row, node);
        } else if (row.value == FieldValue::Container) {
            TakeContainer(row, node);
        } else if (row.form == FieldForm::KeyedList) {
            TakeKeyedText(row, node);
        } else {
            const std::size_t before = m_journal == nullptr ? 0 : TextCount(m_object, row);
            row.list->addText(m_object, TextOf(m_tree, node), {});
            if (m_journal != nullptr) {
                WriteAddedText(*m_journal, m_object, row, before, m_tree, node);
            }
        }
    }

    void WriteAdded(NodeRef node, bool isContainer = true, JournalValue after = {}) {
        m_journal->Write(m_tree, node,
                         {.outcome = MergeJournal::Outcome::Added, .after = after, .isContainer = isContainer});
    }

    /// A step into an entry of a list of containers.
    JournalStep EnterEntry(const FieldRow& row, std::string_view key) {
        if (row.form == FieldForm::KeyedList) {
            std::string room;
            return {m_journal, row.name, row.keyAttribute, KeyInPath(key, row.intKey, room), nullptr};
        }
        return {m_journal, row.name, (m_object.*row.member.entries).size() + 1};
    }

    /// Writes that the entry was added, when it was.
    void TakeJournalled(const FieldRow& row, NodeRef node) {
        std::string room;
        const bool isKeyed = row.form == FieldForm::KeyedList;
        const JournalStep step =
            EnterEntry(row, isKeyed ? AttributeIn(m_tree, node, row.keyAttribute, room) : std::string_view());
        JournalTry attempt(m_journal);
        WriteAdded(node);
        const EntryVector& entries = m_object.*row.member.entries;
        const std::size_t before = entries.size();
        TakeContainer(row, node);
        if (entries.size() > before) {
            attempt.Keep();
        }
    }

    /// Of a key that stands twice the virtual operation makes the report.
    void TakeContainer(const FieldRow& row, NodeRef node) {
        const bool isKeyed = row.form == FieldForm::KeyedList;
        std::string room;
        const std::string_view key = isKeyed ? AttributeIn(m_tree, node, row.keyAttribute, room) : std::string_view();
        if (!m_isExact || !StandsOnTree() || (isKeyed && !IsFree(m_object, row, key))) {
            row.list->addEntry(m_object, Wrapper(), m_tree.View(node), zelString(key));
            return;
        }
        if (isKeyed) {
            (m_object.*row.map.entries).makeRoomFor(key);
        }
        std::unique_ptr<TypedDataContainer> entry(row.list->newEntry(ContainerAccess::BuildsFromScratch(m_object)));
        ContainerAccess::SetPlace(*entry, row.name, m_object);
        if (PopulatePart(*entry, *row.list->table, node)) {
            StoreEntry(m_object, row, std::move(entry), key);
        }
    }

    /// What SetContainedDataPtr does with an element of the tree that the object stands on itself.
    bool PopulatePart(TypedDataContainer& part, const FieldTable& table, NodeRef node) {
        return Guarded(part, [&] {
            ContainerAccess::AttachAgain(part, m_attachment, node);
            ContainerAccess::SetReadOnly(part, ContainerAccess::IsReadOnly(m_object));
            ContainerAccess::SetNested(part, true);
            ContainerAccess::SetValid(part, true); // until a walk says otherwise
            const bool success = PopulateClass(part, table, m_tree, node, true) && ContainerAccess::IsValid(part);
            ContainerAccess::SetValid(part, success);
            return success;
        });
    }

    /// Whether parts can stand on nodes of this tree without more ado. A host's code may turn a document over to a DOM
    /// in between.
    bool StandsOnTree() {
        XMLDataWrapper* const wrapper = ContainerAccess::Wrapper(m_object);
        if (wrapper == nullptr || WrapperAccess::State(*wrapper).Tree() != &m_tree) {
            return false;
        }
        if (m_attachment == nullptr) {
            m_attachment = Attachment::Of(*wrapper);
        }
        return true;
    }

    /// What parts stand on. Not the wrapper that callers are shown: another thread may end that one at any time when
    /// the document is read only.
    XMLDataWrapper* Wrapper() {
        XMLDataWrapper* const wrapper = ContainerAccess::Wrapper(m_object);
        return wrapper != nullptr ? wrapper : m_object.GetContainedDataPtr();
    }

    /// The entry remembers its node: its key need not stand there.
    void TakeKeyedText(const FieldRow& row, NodeRef node) {
        const TextVector& texts = m_object.*row.member.keyedTexts;
        const std::size_t before = texts.size();
        const zelString text = TextOf(m_tree, node);
        const OverridePlace place(&m_tree, node, m_feature); // of a key that stands twice
        row.list->addText(m_object, text, TextKey(row, node));
        if (texts.size() > before && ContainerAccess::Wrapper(m_object) != nullptr) {
            ContainerAccess::AttachText(*texts.back(), m_object, node, text);
        }
        if (texts.size() > before && m_journal != nullptr) {
            const JournalStep step(m_journal, row.name, row.keyAttribute, texts.back()->ElementName, nullptr);
            WriteAdded(node, false, m_journal->NodeValue(m_tree, node));
        }
    }

    zelString TextKey(const FieldRow& row, NodeRef node) {
        if (!row.numberedKeys) {
            return zelString(AttributeIn(m_tree, node, row.keyAttribute, m_room));
        }
        return SupportFunc::GetStrValue(static_cast<long>((m_object.*row.member.keyedTexts).size() + 1));
    }

    void TakeAttributes() {
        for (const FieldRow& row : m_table.rows) {
            if (row.form == FieldForm::Attribute) {
                FaultPoint("Populate");
                const NodeRef node = FindAttribute(m_tree, m_node, row.name);
                Set(row, node, node == NodeRef::None ? std::string_view() : m_tree.Value(node, m_room));
            }
        }
    }

    TypedDataContainer& m_object;
    const FieldTable& m_table;
    const Tree& m_tree;
    NodeRef m_node;
    bool m_isExact;
    const zelString* m_feature;               ///< of the merge that this load is part of, null when it is none
    JournalData* m_journal;                   ///< of that merge, null when there is none
    std::size_t m_next = 0;                   ///< the row where the search for the next element begins
    std::shared_ptr<Attachment> m_attachment; ///< of the parts; none before the first
    std::string m_room;
};

/// The walks of a class and of those it inherits from, the base first. An exception ends the walk of its class alone.
template <typename Tree>
bool PopulateClass(TypedDataContainer& object, const FieldTable& table, const Tree& tree, NodeRef node, bool isExact,
                   bool isOutermost) {
    try {
        if (table.parent != nullptr) {
            PopulateClass(object, *table.parent, tree, node, isExact, false);
        }
        PopulateWalk<Tree>(object, table, tree, node, isExact).Run(isOutermost);
        return true;
    } catch (...) {
        ContainerAccess::SetValid(object, false); // it holds a part only
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in PopulateDataMembers");
        return false;
    }
}

} // namespace

bool Populate(TypedDataContainer& object, const FieldTable& table, XalanNode* pNode) {
    const XmlTree* tree = nullptr;
    const NodeRef node = NodeViews::Find(pNode, tree);
    if (tree == nullptr) {
        return false;
    }
    const bool isExact = IsExactly(object, table);
    const auto* const document = dynamic_cast<const Document*>(tree);
    return document != nullptr ? PopulateClass(object, table, *document, node, isExact)
                               : PopulateClass(object, table, *tree, node, isExact);
}

} // namespace Framework
