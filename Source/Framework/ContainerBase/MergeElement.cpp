#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/JournalData.h"
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

    bool Refuse(const FoundProblem& problem, unsigned int line) const {
        ReportOverride(parent, {tree, node, feature, &key}, problem, line);
        return false;
    }
};

using Action = MergeJournal::Action;
using Outcome = MergeJournal::Outcome;

/// What differs between entries that are containers and those that are texts.
class ContainerEntries {
public:
    ContainerEntries(const EntryNode& node, std::unique_ptr<TypedDataContainer> fresh)
        : m_node(node), m_fresh(std::move(fresh)) {}

    static constexpr bool areContainers = true;

    static zelString FeatureOf(TypedDataContainer& entry) { return entry.GetFeatureID(); }
    static std::string_view TextOf(TypedDataContainer&) { return {}; }
    static zelString KeyOf(TypedDataContainer& entry, const zelString& keyName) {
        return AttributeTextOf(entry, keyName);
    }

    /// The new entry, loaded; null, with a report, when it cannot be.
    std::unique_ptr<TypedDataContainer> Make() {
        m_fresh->SetContainerName(m_node.name);
        m_fresh->SetFeatureID(m_node.feature);
        ContainerAccess::SetLookup(*m_fresh, ContainerAccess::Lookup(m_node.parent));
        const bool readOnly = ContainerAccess::IsReadOnly(m_node.parent);
        if (!m_fresh->SetContainedDataPtr(&m_node.wrapper, nullptr, readOnly, true)) {
            m_node.Refuse({FindingCode::NotLoaded, "the entry cannot be loaded: " + m_fresh->GetLastError()}, __LINE__);
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

    static constexpr bool areContainers = false;

    static zelString FeatureOf(const SimpleDataContainer& entry) { return entry.FeatureID; }
    static std::string_view TextOf(const SimpleDataContainer& entry) { return entry.strValue; }
    static zelString KeyOf(const SimpleDataContainer& entry, const zelString&) { return entry.ElementName; }

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

/// The keys of a list that are near to one that is not there. Only a merge that is watched asks: it takes the list.
template <typename Entries, typename Entry>
std::vector<std::string> NearKeys(const std::string& key, const std::vector<Entry*>& entries,
                                  const zelString& keyName) {
    constexpr std::size_t longestList = 2000;
    if (!IsMergeWatched() || !MaySearchNear() || entries.size() > longestList) {
        return {};
    }
    std::vector<std::string> keys;
    for (Entry* const entry : entries) {
        if (entry != nullptr) { // one that was removed
            keys.push_back(Entries::KeyOf(*entry, keyName));
        }
    }
    return NearInMerge(key, keys);
}

/// What is wrong with the neighbour that the node wants to stand beside, if anything.
template <typename Entries, typename Entry>
std::optional<FoundProblem> NeighbourProblem(const MergeControl& control, Entry* neighbour, const Entry* present) {
    const std::string named = std::string(placementIndexAttribute) + "=\"" + control.neighbour + "\"";
    if (neighbour == nullptr) {
        return FoundProblem{FindingCode::MissingNeighbour, named + ": there is no such entry to stand beside",
                            control.neighbourAt};
    }
    if (neighbour == present) {
        return FoundProblem{FindingCode::MissingNeighbour, named + ": an entry cannot stand beside itself",
                            control.neighbourAt};
    }
    const std::string feature = FeatureOrBase(Entries::FeatureOf(*neighbour));
    if (!control.neighbourFeature.empty() && control.neighbourFeature != feature) {
        return FoundProblem{FindingCode::MissingNeighbour,
                            std::string(placementFeatureAttribute) + "=\"" + control.neighbourFeature +
                                "\": the entry " + control.neighbour + " belongs to feature \"" + feature + "\"",
                            control.featureAt};
    }
    return {};
}

std::string PlacementText(const MergeControl& control) {
    switch (control.order) {
    case PlacementOrder::First:
        return "First";
    case PlacementOrder::Last:
        return "Last";
    case PlacementOrder::Before:
        return "Before " + control.neighbour;
    case PlacementOrder::After:
        return "After " + control.neighbour;
    case PlacementOrder::Unsaid:
        break;
    }
    return {};
}

/// Does what one node asks for. All that can be refused is looked at before anything changes.
template <typename Entry, typename Entries> class EntryMerge {
public:
    EntryMerge(const EntryNode& node, ListEdit<Entry>& list, Entries entries, const zelString& keyName)
        : m_node(node), m_list(list), m_entries(std::move(entries)), m_keyName(keyName),
          m_journal(JournalData::Current()), m_present(list.Find(node.key)) {}

    bool Run() {
        const OverridePlace place(&m_node.tree, m_node.node, &m_node.feature);
        if (m_journal == nullptr) {
            return Do();
        }
        JournalStep step = EnterEntry();
        if constexpr (!Entries::areContainers) {
            if (m_present != nullptr) {
                step.NoteTextBase(m_node.parent, ContainerAccess::TextNode(*m_present, m_node.parent));
            }
        }
        return Do();
    }

private:
    JournalStep EnterEntry() {
        const std::string_view keyName = m_keyName.empty() ? m_journal->ListKey() : std::string_view(m_keyName);
        if constexpr (Entries::areContainers) {
            const bool isNumber = m_journal->HasNumberKey() && m_journal->ListKey() == keyName;
            std::string room;
            return {m_journal, m_node.name, keyName, KeyInPath(m_node.key, isNumber, room), m_present};
        } else {
            return {m_journal, m_node.name, keyName, m_node.key, nullptr};
        }
    }

    bool Do() {
        const MergeControl control = ReadControl(m_node.tree, m_node.node, ControlSite::KeyedEntry);
        Entry* neighbour = nullptr;
        std::optional<FoundProblem> problem = control.problem;
        if (!problem.has_value()) {
            problem = ActionProblem(control.action, m_present != nullptr, "entry");
            if (problem.has_value() && m_present == nullptr) {
                problem->near = NearKeys<Entries>(m_node.key, m_list.Entries(), m_keyName);
            }
        }
        if (!problem.has_value() && control.NeedsNeighbour()) {
            neighbour = m_list.Find(control.neighbour);
            problem = NeighbourProblem<Entries>(control, neighbour, m_present);
            if (problem.has_value() && neighbour == nullptr) {
                problem->near = NearKeys<Entries>(control.neighbour, m_list.Entries(), m_keyName);
            }
        }
        if (problem.has_value()) {
            return m_node.Refuse(*problem, __LINE__);
        }
        if (control.action == MergeAction::Remove) {
            Write(Action::Remove, Outcome::Removed, TextBefore(), {});
            m_list.Remove(m_present, m_node.key);
            return true;
        }
        const bool isNew = m_present == nullptr;
        const bool success = isNew || control.action == MergeAction::Replace ? Bring(control) : Change(control);
        if (m_present == nullptr) {
            return false;
        }
        FaultPoint("Placement");
        const bool isMoved = m_list.Place(m_present, control.order, neighbour);
        if (m_journal != nullptr && control.order != PlacementOrder::Unsaid && (isMoved || !isNew)) {
            Write(Action::Place, isMoved ? Outcome::Moved : Outcome::Unchanged, {},
                  m_journal->MadeTextValue([&] { return PlacementText(control); }));
        }
        return success;
    }

    /// Puts a new entry in: at the end, or in the place of the one that is there.
    bool Bring(const MergeControl& control) {
        JournalTry attempt(m_journal);
        const bool isAdded = m_present == nullptr;
        const Action action = isAdded && control.action == MergeAction::Merge ? Action::Merge
                              : isAdded                                       ? Action::Add
                                                                              : Action::Replace;
        Write(action, isAdded ? Outcome::Added : Outcome::Replaced, TextBefore(), TextAfter());
        std::unique_ptr<Entry> fresh = m_entries.Make();
        if (fresh == nullptr) {
            m_present = nullptr;
            return false;
        }
        m_present = isAdded ? m_list.Append(std::move(fresh), m_node.key)
                            : m_list.Replace(m_present, std::move(fresh), m_node.key);
        attempt.Keep();
        return true;
    }

    bool Change(const MergeControl& control) {
        if (control.action == MergeAction::Clear) {
            if (Entries::areContainers) {
                Write(Action::Clear, Outcome::Changed, {}, {});
            }
            Entries::Clear(*m_present);
        }
        if constexpr (!Entries::areContainers) {
            if (m_journal != nullptr) {
                const bool isSame = HasText(Entries::TextOf(*m_present));
                Write(control.action == MergeAction::Clear ? Action::Clear : Action::Merge,
                      isSame ? Outcome::Unchanged : Outcome::Changed, isSame ? JournalValue::OfOld() : TextBefore(),
                      TextAfter());
            }
        }
        return m_entries.MergeInto(*m_present);
    }

    bool HasText(std::string_view text) const noexcept {
        try {
            std::string room;
            return TextIn(m_node.tree, m_node.node, room) == text;
        } catch (...) {
            m_journal->MissEntry();
            return false;
        }
    }

    JournalValue TextBefore() const {
        return m_journal == nullptr || Entries::areContainers || m_present == nullptr
                   ? JournalValue()
                   : m_journal->TextValue(Entries::TextOf(*m_present));
    }

    JournalValue TextAfter() const {
        return m_journal == nullptr || Entries::areContainers ? JournalValue()
                                                              : m_journal->NodeValue(m_node.tree, m_node.node);
    }

    void Write(Action action, Outcome outcome, JournalValue before, JournalValue after) const {
        if (m_journal != nullptr) {
            m_journal->Write(m_node.tree, m_node.node,
                             {.action = action,
                              .outcome = outcome,
                              .before = before,
                              .after = after,
                              .isContainer = Entries::areContainers});
        }
    }

    const EntryNode& m_node;
    ListEdit<Entry>& m_list;
    Entries m_entries;
    const zelString& m_keyName;
    JournalData* m_journal;
    Entry* m_present; ///< the entry of that key, null when there is none
};

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

bool RefuseKeyless(const EntryNode& node, const zelString& keyName, unsigned int line) {
    ReportOverride(node.parent, {node.tree, node.node, node.feature, &node.key, node.name},
                   {FindingCode::MissingKey, "the entry has no key, expected the attribute " + keyName}, line);
    return false;
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
        const JournalMerge merge(JournalData::Idle(), *this, source, sFeatureID);
        const EntryNode node{*this, *pMergeData, *source.Tree(), source.Here(), sFeatureID, sKey, sXMLName};
        if (FindAttribute(node.tree, node.node, sKeyName) == NodeRef::None) {
            return RefuseKeyless(node, sKeyName, __LINE__);
        }
        return EntryMerge<TypedDataContainer, ContainerEntries>(node, list, ContainerEntries(node, std::move(entry)),
                                                                sKeyName)
            .Run();
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
        const JournalMerge merge(JournalData::Idle(), *this, source, sFeatureID);
        const EntryNode node{*this, *pMergeData, *source.Tree(), source.Here(), sFeatureID, sKey, sXMLName};
        const zelString keyName;
        return EntryMerge<SimpleDataContainer, TextEntries>(node, list, TextEntries(node, eType), keyName).Run();
    });
}
