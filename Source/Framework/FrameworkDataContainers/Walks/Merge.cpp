#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/JournalData.h"
#include "Framework/ContainerBase/ListEdit.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/FrameworkDataContainers/Walks/Children.h"
#include "Framework/FrameworkDataContainers/Walks/ElementFindings.h"
#include "Framework/FrameworkDataContainers/Walks/JournalScalars.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

/// The walk of one class over the merge source. It is driven by the fields: what the source holds is taken over, what
/// it does not hold keeps its value. The wrapper stands on the container's node between two fields, and on the entry or
/// child while that is merged.
///
/// A host's MergeElement may ask the source for a DOM, and so make that the wrapper's master in mid-walk. The walk goes
/// on reading the tree it began with, and translates where it stands the wrapper.
class MergeWalk {
public:
    MergeWalk(TypedDataContainer& object, const FieldTable& table, XMLDataWrapper* pMergeData,
              const zelString& sFeatureID, unsigned int line)
        : m_object(object), m_table(table), m_wrapper(pMergeData), m_source(WrapperAccess::State(*pMergeData)),
          m_tree(*m_source.Tree()), m_featureID(sFeatureID), m_line(line), m_journal(JournalData::Current()) {}

    ~MergeWalk() {
        if (!m_storedQuery.Empty()) {
            m_source.query = m_storedQuery; // also after a failure: the parent's walk goes on from its own
        }
    }
    MergeWalk(const MergeWalk&) = delete;
    MergeWalk& operator=(const MergeWalk&) = delete;

    /// `isOutermost`: of the walks over the class and those that it inherits from, the one for the class itself.
    void Run(bool isOutermost) {
        if (ContainerAccess::IsNested(m_object) && m_source.current != NodeRef::None) {
            m_storedQuery = m_source.query;
            m_source.query = m_storedQuery.Below(m_object.GetContainerName());
            m_node = m_source.current;
        } else {
            const zelString query = "//" + m_object.GetContainerName();
            m_source.query = QueryChain(query);
            m_node = m_source.Find(query, true);
        }
        Reposition();
        m_here = m_source.Here();
        if (isOutermost && IsMergeWatched()) {
            ReportFindings();
        }
        for (const FieldRow& row : m_table.rows) {
            TakeField(row);
        }
    }

private:
    /// Tells what else is wrong with the node: all that the walk passes over, or reads as something else.
    void ReportFindings() {
        WhileMemoryLasts([this] {
            const auto report = [this](NodeRef node, std::string_view field, const FoundProblem& problem) {
                ReportOverride(m_object, {m_tree, node, m_featureID, nullptr, field}, problem, m_line,
                               MergeJournal::Outcome::Skipped);
            };
            FindInElement({m_tree, {&m_here, 1}, m_table},
                          {ElementReader::Merge, IsExactly(m_object, m_table), true, &NearInMerge}, report);
        });
    }

    void Stand(NodeRef node) {
        const bool isTranslated = m_source.domIsMaster && m_source.document.get() == &m_tree;
        m_source.current = isTranslated ? m_source.Translate(node) : node;
    }

    void Reposition() {
        if (m_node != NodeRef::None) {
            Stand(m_node);
        }
    }

    void TakeField(const FieldRow& row) {
        FaultPoint("Merge");
        switch (row.form) {
        case FieldForm::Attribute:
            if (const NodeRef node = FindAttribute(m_tree, m_here, row.name); node != NodeRef::None) {
                Take(row, node, TextOf(m_tree, node));
            }
            break;
        case FieldForm::Element:
            if (const NodeRef node = LastChildNamed(m_tree, m_here, row.name); node != NodeRef::None) {
                Take(row, node, row.cdata ? m_object.GetCDataValue(m_wrapper, row.name.data()) : TextOf(m_tree, node));
                IsPossible(node, ControlSite::Value); // else reported; the value is taken as always
            }
            break;
        case FieldForm::Child:
            if (const NodeRef node = LastChildNamed(m_tree, m_here, row.name); node != NodeRef::None) {
                Stand(node);
                TakeChild(row, node);
                m_here = m_node == NodeRef::None ? node : m_node; // a container that is not found stays where it is
                Reposition();
            }
            break;
        case FieldForm::KeyedList:
        case FieldForm::PlainList:
            TakeList(row);
            break;
        }
    }

    void Take(const FieldRow& row, NodeRef node, std::string_view text) {
        if (m_journal == nullptr) {
            SetScalar(m_object, row, text);
        } else {
            SetJournalled(*m_journal, m_object, row, {m_tree, node, text}, ScalarIs::Merged);
        }
    }

    void Write(NodeRef node, const JournalData::Edit& edit) {
        if (m_journal != nullptr) {
            m_journal->Write(m_tree, node, edit);
        }
    }

    /// Merges into a child that holds data; loads one that does not, or that is not there yet.
    void TakeChild(const FieldRow& row, NodeRef node) {
        const OverridePlace place(m_source.Tree(), m_source.current, &m_featureID);
        TypedDataContainer* child = row.child->get(m_object);
        const JournalStep step(m_journal, row.name, child);
        const MergeControl control = ReadControl(m_tree, node, ControlSite::Child);
        if (control.action != MergeAction::Merge || control.problem.has_value()) {
            if (!PrepareChild(row, node, child, control)) {
                return;
            }
        }
        if (child != nullptr && child->Valid() && control.action != MergeAction::Replace) {
            child->SetContainerName(row.name.data());
            child->MergeFromDataPacket(ContainerAccess::Lookup(m_object), m_featureID, m_wrapper, true);
            return;
        }
        if (child == nullptr) {
            Write(node, {.outcome = MergeJournal::Outcome::Added, .isContainer = true});
        }
        TypedDataContainer& loaded = ChildInPlace(m_object, row);
        loaded.SetContainedDataPtr(m_wrapper, m_tree.View(node), ContainerAccess::IsReadOnly(m_object), true);
        ContainerAccess::SetMergeFeature(loaded, m_featureID);
    }

    /// Does what the child's node asks for beyond the usual steps. False when these are not to follow.
    bool PrepareChild(const FieldRow& row, NodeRef node, TypedDataContainer* child, const MergeControl& control) {
        const std::optional<FoundProblem> problem =
            control.problem.has_value() ? control.problem : ActionProblem(control.action, child != nullptr, "child");
        if (problem.has_value()) {
            Report(node, *problem);
            return false;
        }
        using Action = MergeJournal::Action;
        using Outcome = MergeJournal::Outcome;
        switch (control.action) {
        case MergeAction::Remove:
            Write(node, {.action = Action::Remove, .outcome = Outcome::Removed, .isContainer = true});
            row.child->store(m_object, nullptr);
            DeleteQuietly(child);
            return false;
        case MergeAction::Replace:
            Write(node, {.action = Action::Replace, .outcome = Outcome::Replaced, .isContainer = true});
            MakeEmpty(*child);
            ContainerAccess::SetValid(*child, false);
            return true;
        case MergeAction::Clear:
            Write(node, {.action = Action::Clear, .outcome = Outcome::Changed, .isContainer = true});
            ResetButAttributes(*child);
            return true;
        case MergeAction::Merge:
        case MergeAction::Add:
            break;
        }
        return true;
    }

    /// What MergeElement changes in the order of a keyed list is put in place once, behind the last entry.
    void TakeList(const FieldRow& row) {
        if (row.form == FieldForm::PlainList) {
            TakeEntries(row);
        } else if (row.value == FieldValue::Container) {
            const ListEdit<TypedDataContainer> edit(m_object.*row.map.entries, m_object.*row.member.entries);
            TakeEntries(row);
        } else {
            const ListEdit<TypedDataContainer::SimpleDataContainer> edit(m_object.*row.map.texts,
                                                                         m_object.*row.member.keyedTexts);
            TakeEntries(row);
        }
    }

    void TakeEntries(const FieldRow& row) {
        std::vector<NodeRef> nodes;
        for (NodeRef child = m_tree.FirstChild(m_here); child != NodeRef::None; child = m_tree.NextSibling(child)) {
            if (m_tree.Kind(child) == NodeKind::Element && m_tree.Name(child) == row.name) {
                nodes.push_back(child);
            }
        }
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            Stand(nodes[i]);
            TakeEntry(row, nodes[i], i + 1);
            Stand(m_here);
        }
        Reposition();
        if (!m_source.lists.empty()) { // a list that someone keeps under the query of this one goes with the merge
            m_source.lists.erase(m_source.query.Text() + "/" + row.name.data());
        }
    }

    void TakeEntry(const FieldRow& row, NodeRef node, std::size_t position) {
        FaultPoint("MergeEntry");
        const OverridePlace place(m_source.Tree(), m_source.current, &m_featureID);
        if (row.form == FieldForm::KeyedList) {
            MergeKeyed(row, node, position);
        } else if (!IsPossible(node, ControlSite::PlainEntry)) {
            return;
        } else if (row.value == FieldValue::Container) {
            AddContainer(row, node);
        } else {
            AddText(row, node);
        }
    }

    void AddContainer(const FieldRow& row, NodeRef node) {
        EntryVector& entries = m_object.*row.member.entries;
        const std::size_t before = entries.size();
        const JournalStep step(m_journal, row.name, before + 1);
        JournalTry attempt(m_journal);
        Write(node, {.outcome = MergeJournal::Outcome::Added, .isContainer = true});
        row.list->addEntry(m_object, m_wrapper, nullptr, {});
        if (entries.size() > before && entries.back() != nullptr) {
            ContainerAccess::SetMergeFeature(*entries.back(), m_featureID);
            attempt.Keep();
        } else if (m_journal != nullptr) {
            WhileMemoryLasts([&] { Report(node, {FindingCode::NotLoaded, "the entry cannot be loaded"}); });
        }
    }

    void AddText(const FieldRow& row, NodeRef node) {
        const std::size_t before = m_journal == nullptr ? 0 : TextCount(m_object, row);
        row.list->addText(m_object, TextOf(m_tree, node), {});
        if (m_journal != nullptr) {
            WriteAddedText(*m_journal, m_object, row, before, m_tree, node);
        }
    }

    /// Hands the entry to MergeElement, which decides.
    void MergeKeyed(const FieldRow& row, NodeRef node, std::size_t position) {
        if (m_journal != nullptr) {
            m_journal->SetListKey(row.keyAttribute, row.intKey);
        }
        zelString name(row.name.data());
        zelString key = AttributeOf(m_tree, node, row.keyAttribute);
        if (row.value == FieldValue::Container) {
            zelString feature = m_featureID;
            zelString keyName(row.keyAttribute.data());
            std::unique_ptr<TypedDataContainer> entry(row.list->newEntry(false));
            // Every text is made by now: nothing can fail while the entry is nobody's.
            m_object.MergeElement(std::move(feature), m_object.*row.map.entries, m_object.*row.member.entries,
                                  m_wrapper, entry.release(), std::move(key), std::move(keyName), std::move(name));
            return;
        }
        if (row.numberedKeys && key.empty()) {
            key = SupportFunc::GetStrValue(static_cast<long>(position));
        } else if (FindAttribute(m_tree, node, row.keyAttribute) == NodeRef::None) {
            Report(node,
                   {FindingCode::MissingKey,
                    "the entry has no key, expected the attribute " + std::string(row.keyAttribute)},
                   row.name);
            return;
        }
        m_object.MergeElement(m_featureID, m_object.*row.map.texts, m_object.*row.member.keyedTexts, m_wrapper,
                              dcString, key, name);
    }

    /// Whether what the node asks for can be done at such a site; else that is reported.
    bool IsPossible(NodeRef node, ControlSite site) {
        const MergeControl control = ReadControl(m_tree, node, site);
        if (control.problem.has_value()) {
            Report(node, *control.problem, m_tree.Name(node),
                   site == ControlSite::Value ? MergeJournal::Outcome::Skipped : MergeJournal::Outcome::Refused);
        }
        return !control.problem.has_value();
    }

    void Report(NodeRef node, const FoundProblem& problem, std::string_view field = {},
                MergeJournal::Outcome outcome = MergeJournal::Outcome::Refused) {
        ReportOverride(m_object, {m_tree, node, m_featureID, nullptr, field}, problem, m_line, outcome);
    }

    TypedDataContainer& m_object;
    const FieldTable& m_table;
    XMLDataWrapper* m_wrapper;
    WrapperState& m_source;
    const XmlTree& m_tree;
    zelString m_featureID;
    unsigned int m_line;
    JournalData* m_journal;         ///< null when there is none
    NodeRef m_node = NodeRef::None; ///< the container's own
    NodeRef m_here = NodeRef::None; ///< what names are relative to
    QueryChain m_storedQuery;       ///< of a nested object, to be put back
};

/// The walks of a class and of those it inherits from, the base first. An exception ends the walk of its class alone.
bool MergeClass(TypedDataContainer& object, const FieldTable& table, XMLDataWrapper* pMergeData,
                const zelString& sFeatureID, unsigned int line, bool isOutermost) {
    try {
        if (table.parent != nullptr) {
            MergeClass(object, *table.parent, pMergeData, sFeatureID, line, false);
        }
        MergeWalk(object, table, pMergeData, sFeatureID, line).Run(isOutermost);
        return true;
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in MergeDataMembers");
        return false;
    }
}

} // namespace

bool Merge(TypedDataContainer& object, const FieldTable& table, XMLDataWrapper* pMergeData, const zelString& sFeatureID,
           unsigned int line) {
    try {
        if (LoadedState(pMergeData) == nullptr) {
            object.SetLastError(-1, "MergeSource Not Loaded");
            LogLastError(object, line);
            return false;
        }
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in MergeDataMembers");
        return false;
    }
    const JournalMerge merge(JournalData::Idle(), object, WrapperAccess::State(*pMergeData), sFeatureID);
    return MergeClass(object, table, pMergeData, sFeatureID, line, true);
}

} // namespace Framework
