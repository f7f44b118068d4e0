#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/ListEdit.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/TreeReading.h"

using namespace Framework;

using SimpleDataContainer = TypedDataContainer::SimpleDataContainer;

namespace {

/// One node of an override that stands for an entry of a keyed list.
struct EntryNode {
    TypedDataContainer& parent;
    XMLDataWrapper& wrapper;
    const XmlTree& tree;
    NodeRef node;
    const zelString& feature;
    const zelString& key;
    const zelString& name;

    bool Refuse(const std::string& why, unsigned int line) const {
        ReportOverride(parent, {tree, node, feature, &key}, why, line);
        return false;
    }
};

/// What differs between entries that are containers and those that are texts.
class ContainerEntries {
public:
    ContainerEntries(const EntryNode& node, std::unique_ptr<TypedDataContainer> fresh)
        : m_node(node), m_fresh(std::move(fresh)) {}

    static zelString FeatureOf(TypedDataContainer& entry) { return entry.GetFeatureID(); }

    /// The new entry, loaded; null, with a report, when it cannot be.
    std::unique_ptr<TypedDataContainer> Make() {
        m_fresh->SetContainerName(m_node.name);
        m_fresh->SetFeatureID(m_node.feature);
        ContainerAccess::SetLookup(*m_fresh, ContainerAccess::Lookup(m_node.parent));
        const bool readOnly = ContainerAccess::IsReadOnly(m_node.parent);
        if (!m_fresh->SetContainedDataPtr(&m_node.wrapper, nullptr, readOnly, true)) {
            m_node.Refuse("the entry cannot be loaded: " + m_fresh->GetLastError(), __LINE__);
            return nullptr;
        }
        ContainerAccess::SetMergeFeature(*m_fresh, m_node.feature);
        return std::move(m_fresh);
    }

    bool MergeInto(TypedDataContainer& entry) {
        entry.SetContainerName(m_node.name); // a caller may have handed it over under its class's own name
        return entry.MergeFromDataPacket(ContainerAccess::Lookup(m_node.parent), m_node.feature, &m_node.wrapper, true);
    }

    static void Clear(TypedDataContainer& entry) { ResetButAttributes(entry); }

private:
    const EntryNode& m_node;
    std::unique_ptr<TypedDataContainer> m_fresh;
};

class TextEntries {
public:
    TextEntries(const EntryNode& node, ParameterDataEnum type) : m_node(node), m_type(type) {}

    static zelString FeatureOf(const SimpleDataContainer& entry) { return entry.FeatureID; }

    std::unique_ptr<SimpleDataContainer> Make() {
        auto entry = std::make_unique<SimpleDataContainer>();
        entry->FeatureID = m_node.feature;
        entry->dcType = m_type;
        entry->strValue = m_node.wrapper.GetStringValue("", false);
        entry->ElementName = m_node.key;
        return entry;
    }

    bool MergeInto(SimpleDataContainer& entry) {
        m_node.parent.SetSimpleTypeData(&entry, m_node.wrapper.GetStringValue("", false));
        return true;
    }

    static void Clear(SimpleDataContainer&) {} // its one value is taken next

private:
    const EntryNode& m_node;
    ParameterDataEnum m_type;
};

/// What is wrong with the neighbour that the node wants to stand beside; empty when nothing is.
template <typename Entries, typename Entry>
std::string NeighbourProblem(const MergeControl& control, Entry* neighbour, const Entry* present) {
    const std::string named = std::string(placementIndexAttribute) + "=\"" + control.neighbour + "\"";
    if (neighbour == nullptr) {
        return named + ": there is no such entry to stand beside";
    }
    if (neighbour == present) {
        return named + ": an entry cannot stand beside itself";
    }
    const std::string feature = FeatureOrBase(Entries::FeatureOf(*neighbour));
    if (!control.neighbourFeature.empty() && control.neighbourFeature != feature) {
        return std::string(placementFeatureAttribute) + "=\"" + control.neighbourFeature + "\": the entry " +
               control.neighbour + " belongs to feature \"" + feature + "\"";
    }
    return {};
}

/// Does what the node asks for. All that can be refused is looked at before anything changes.
template <typename Entry, typename Entries>
bool MergeEntry(const EntryNode& node, ListEdit<Entry>& list, Entries entries) {
    const OverridePlace place(&node.tree, node.node, &node.feature);
    const MergeControl control = ReadControl(node.tree, node.node, ControlSite::KeyedEntry);
    Entry* present = list.Find(node.key);
    Entry* neighbour = nullptr;
    std::string problem = control.problem;
    if (problem.empty()) {
        problem = ActionProblem(control.action, present != nullptr, "entry");
    }
    if (problem.empty() && control.NeedsNeighbour()) {
        neighbour = list.Find(control.neighbour);
        problem = NeighbourProblem<Entries>(control, neighbour, present);
    }
    if (!problem.empty()) {
        return node.Refuse(problem, __LINE__);
    }
    if (control.action == MergeAction::Remove) {
        list.Remove(present, node.key);
        return true;
    }
    bool success = true;
    if (present == nullptr || control.action == MergeAction::Replace) {
        std::unique_ptr<Entry> fresh = entries.Make();
        if (fresh == nullptr) {
            return false;
        }
        present = present == nullptr ? list.Append(std::move(fresh), node.key)
                                     : list.Replace(present, std::move(fresh), node.key);
    } else {
        if (control.action == MergeAction::Clear) {
            Entries::Clear(*present);
        }
        success = entries.MergeInto(*present);
    }
    FaultPoint("Placement");
    list.Place(present, control.order, neighbour);
    return success;
}

/// Runs the step on the edit that the walk has open for the list. Without one this is a call by itself: the list is in
/// order when it returns, and no exception leaves it.
template <typename Entry, typename Step>
bool WithEdit(TypedDataContainer& parent, Zelvon::SyncMap<zelString, Entry*>& map, std::vector<Entry*>& entries,
              Step step) {
    if (ListEdit<Entry>* const open = ListEdit<Entry>::Of(entries)) {
        return step(*open);
    }
    return Guarded(parent, [&] {
        ListEdit<Entry> own(map, entries);
        return step(own);
    });
}

bool IsLoaded(TypedDataContainer& parent, XMLDataWrapper* source) {
    if (LoadedState(source) != nullptr) {
        return true;
    }
    parent.SetLastError(-1, "MergeSource Not Loaded");
    LogLastError(parent, __LINE__);
    return false;
}

} // namespace

bool TypedDataContainer::MergeElement(zelString sFeatureID, Zelvon::SyncMap<zelString, TypedDataContainer*>& mapEntries,
                                      std::vector<TypedDataContainer*>& vecEntries, XMLDataWrapper* pMergeData,
                                      TypedDataContainer* pNew, zelString sKey, zelString sKeyName,
                                      zelString sXMLName) {
    std::unique_ptr<TypedDataContainer> entry(pNew);
    return WithEdit(*this, mapEntries, vecEntries, [&](ListEdit<TypedDataContainer>& list) {
        FaultPoint("MergeElement");
        if (!IsLoaded(*this, pMergeData)) {
            return false;
        }
        const WrapperState& source = WrapperAccess::State(*pMergeData);
        const EntryNode node{*this, *pMergeData, *source.Tree(), source.Here(), sFeatureID, sKey, sXMLName};
        if (FindAttribute(node.tree, node.node, sKeyName) == NodeRef::None) {
            return node.Refuse("the entry has no key, expected the attribute " + sKeyName, __LINE__);
        }
        return MergeEntry(node, list, ContainerEntries(node, std::move(entry)));
    });
}

bool TypedDataContainer::MergeElement(zelString sFeatureID,
                                      Zelvon::SyncMap<zelString, SimpleDataContainer*>& mapEntries,
                                      std::vector<SimpleDataContainer*>& vecEntries, XMLDataWrapper* pMergeData,
                                      ParameterDataEnum eType, zelString sKey, zelString sXMLName) {
    return WithEdit(*this, mapEntries, vecEntries, [&](ListEdit<SimpleDataContainer>& list) {
        FaultPoint("MergeElement");
        if (!IsLoaded(*this, pMergeData)) {
            return false;
        }
        const WrapperState& source = WrapperAccess::State(*pMergeData);
        const EntryNode node{*this, *pMergeData, *source.Tree(), source.Here(), sFeatureID, sKey, sXMLName};
        return MergeEntry(node, list, TextEntries(node, eType));
    });
}
