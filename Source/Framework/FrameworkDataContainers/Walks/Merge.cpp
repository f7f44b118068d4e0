#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/ListEdit.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/FrameworkDataContainers/Walks/Children.h"
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
          m_tree(*m_source.Tree()), m_featureID(sFeatureID), m_line(line) {}

    ~MergeWalk() {
        if (!m_storedQuery.Empty()) {
            m_source.query = m_storedQuery; // also after a failure: the parent's walk goes on from its own
        }
    }
    MergeWalk(const MergeWalk&) = delete;
    MergeWalk& operator=(const MergeWalk&) = delete;

    void Run() {
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
        for (const FieldRow& row : m_table.rows) {
            TakeField(row);
        }
    }

private:
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
                SetScalar(m_object, row, TextOf(m_tree, node));
            }
            break;
        case FieldForm::Element:
            if (const NodeRef node = LastChildNamed(m_tree, m_here, row.name); node != NodeRef::None) {
                SetScalar(m_object, row,
                          row.cdata ? m_object.GetCDataValue(m_wrapper, row.name.data()) : TextOf(m_tree, node));
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

    /// Merges into a child that holds data; loads one that does not, or that is not there yet.
    void TakeChild(const FieldRow& row, NodeRef node) {
        const OverridePlace place(m_source.Tree(), m_source.current, &m_featureID);
        TypedDataContainer* child = row.child->get(m_object);
        const MergeControl control = ReadControl(m_tree, node, ControlSite::Child);
        if (control.action != MergeAction::Merge || !control.problem.empty()) {
            if (!PrepareChild(row, node, child, control)) {
                return;
            }
        }
        if (child != nullptr && child->Valid() && control.action != MergeAction::Replace) {
            child->SetContainerName(row.name.data());
            child->MergeFromDataPacket(ContainerAccess::Lookup(m_object), m_featureID, m_wrapper, true);
            return;
        }
        TypedDataContainer& loaded = ChildInPlace(m_object, row);
        loaded.SetContainedDataPtr(m_wrapper, m_tree.View(node), ContainerAccess::IsReadOnly(m_object), true);
        ContainerAccess::SetMergeFeature(loaded, m_featureID);
    }

    /// Does what the child's node asks for beyond the usual steps. False when these are not to follow.
    bool PrepareChild(const FieldRow& row, NodeRef node, TypedDataContainer* child, const MergeControl& control) {
        const std::string problem =
            control.problem.empty() ? ActionProblem(control.action, child != nullptr, "child") : control.problem;
        if (!problem.empty()) {
            Report(node, problem);
            return false;
        }
        switch (control.action) {
        case MergeAction::Remove:
            row.child->store(m_object, nullptr);
            DeleteQuietly(child);
            return false;
        case MergeAction::Replace:
            MakeEmpty(*child);
            ContainerAccess::SetValid(*child, false);
            return true;
        case MergeAction::Clear:
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
            AddContainer(row);
        } else {
            row.list->addText(m_object, TextOf(m_tree, node), {});
        }
    }

    void AddContainer(const FieldRow& row) {
        EntryVector& entries = m_object.*row.member.entries;
        const std::size_t before = entries.size();
        row.list->addEntry(m_object, m_wrapper, nullptr, {});
        if (entries.size() > before && entries.back() != nullptr) {
            ContainerAccess::SetMergeFeature(*entries.back(), m_featureID);
        }
    }

    /// Hands the entry to MergeElement, which decides.
    void MergeKeyed(const FieldRow& row, NodeRef node, std::size_t position) {
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
            Report(node, "the entry has no key, expected the attribute " + std::string(row.keyAttribute));
            return;
        }
        m_object.MergeElement(m_featureID, m_object.*row.map.texts, m_object.*row.member.keyedTexts, m_wrapper,
                              dcString, key, name);
    }

    /// Whether what the node asks for can be done at such a site; else that is reported.
    bool IsPossible(NodeRef node, ControlSite site) {
        const MergeControl control = ReadControl(m_tree, node, site);
        if (!control.problem.empty()) {
            Report(node, control.problem);
        }
        return control.problem.empty();
    }

    void Report(NodeRef node, const std::string& what) {
        ReportOverride(m_object, {m_tree, node, m_featureID}, what, m_line);
    }

    TypedDataContainer& m_object;
    const FieldTable& m_table;
    XMLDataWrapper* m_wrapper;
    WrapperState& m_source;
    const XmlTree& m_tree;
    zelString m_featureID;
    unsigned int m_line;
    NodeRef m_node = NodeRef::None; ///< the container's own
    NodeRef m_here = NodeRef::None; ///< what names are relative to
    QueryChain m_storedQuery;       ///< of a nested object, to be put back
};

} // namespace

bool Merge(TypedDataContainer& object, const FieldTable& table, XMLDataWrapper* pMergeData, const zelString& sFeatureID,
           unsigned int line) {
    try {
        if (LoadedState(pMergeData) == nullptr) {
            object.SetLastError(-1, "MergeSource Not Loaded");
            LogLastError(object, line);
            return false;
        }
        if (table.parent != nullptr) {
            Merge(object, *table.parent, pMergeData, sFeatureID, line);
        }
        MergeWalk(object, table, pMergeData, sFeatureID, line).Run();
        return true;
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in MergeDataMembers");
        return false;
    }
}

} // namespace Framework
