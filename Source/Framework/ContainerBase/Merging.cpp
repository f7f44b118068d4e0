#include "Framework/ContainerBase/Guarded.h"
#include "Framework/ContainerBase/JournalData.h"
#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/ContainerBase/Sources.h"
#include "Framework/XMLSupport/TreeReading.h"

#include <filesystem>
#include <optional>

using namespace Framework;

namespace {

/// Sets the nested flag for the length of a merge: it decides whether the walk starts where the source stands.
class NestedScope {
public:
    NestedScope(TypedDataContainer& object, bool nested)
        : m_object(object), m_before(ContainerAccess::IsNested(object)) {
        ContainerAccess::SetNested(object, nested);
    }
    ~NestedScope() { ContainerAccess::SetNested(m_object, m_before); }
    NestedScope(const NestedScope&) = delete;
    NestedScope& operator=(const NestedScope&) = delete;

private:
    TypedDataContainer& m_object;
    bool m_before;
};

/// The wrapper that a merge moves over its source. It is the caller's, except over a read-only document: that may be
/// the source of many threads at once, so the merge gets a wrapper of its own there.
class SourceWrapper {
public:
    SourceWrapper(XMLDataWrapper& given, bool nested) : m_wrapper(&given) {
        const WrapperState& source = WrapperAccess::State(given);
        if (!source.readOnly) {
            if (!nested) {
                m_scope.emplace(given);
            }
        } else if (!source.isMergeSource) {
            m_own = nested ? Attachment::ForTree(given) : Attachment::Owning(Attachment::AnotherWrapper(given));
            m_wrapper = m_own->Wrapper();
            WrapperState& own = WrapperAccess::State(*m_wrapper);
            own.isMergeSource = true;
            own.current = source.current;
            own.query = QueryChain(source.query.Text()); // not shared: a chain counts for one thread at a time
        }
    }
    ~SourceWrapper() {
        if (m_own != nullptr) { // what was taken over may stand on it from now on
            WrapperState& own = WrapperAccess::State(*m_wrapper);
            own.isMergeSource = false;
            own.current = NodeRef::None;
            own.query = {};
            own.lists.clear();
        }
    }
    SourceWrapper(const SourceWrapper&) = delete;
    SourceWrapper& operator=(const SourceWrapper&) = delete;

    XMLDataWrapper* Get() const { return m_wrapper; }

private:
    XMLDataWrapper* m_wrapper;
    std::shared_ptr<Attachment> m_own;
    std::optional<AttachmentScope> m_scope;
};

/// The node of the source that an outer merge starts from; None, with an error, when there is none.
NodeRef StartOfMerge(TypedDataContainer& object, const WrapperState& source, bool nested) {
    if (nested) {
        return source.Here();
    }
    const XmlTree& tree = *source.Tree();
    const NodeRef node = FirstDescendantNamed(tree, tree.Root(), object.GetContainerName());
    if (node == NodeRef::None) {
        SetNoElementError(object, source, object.GetContainerName());
    }
    return node;
}

/// Empties the object as far as the action asks for it. What stays is merged into: an object keeps its own wrapper.
void Prepare(TypedDataContainer& object, MergeAction action, const XmlTree& tree, NodeRef node) {
    using Action = MergeJournal::Action;
    using Outcome = MergeJournal::Outcome;
    if (action != MergeAction::Replace && action != MergeAction::Clear) {
        return;
    }
    const bool isReplace = action == MergeAction::Replace;
    if (JournalData* const journal = JournalData::Current()) {
        journal->Write(tree, node,
                       {.action = isReplace ? Action::Replace : Action::Clear,
                        .outcome = isReplace ? Outcome::Replaced : Outcome::Changed,
                        .isContainer = true});
    }
    if (isReplace) {
        MakeEmpty(object);
    } else {
        ResetButAttributes(object);
    }
}

/// Runs an outer operation. `feature` gives the one that the override is of when nothing can be read.
template <typename Feature, typename Step>
bool RunMerge(TypedDataContainer& object, Feature feature, unsigned int line, Step step) noexcept {
    if (!IsMergeWatched() || OverridePlace::IsMerging()) {
        return Guarded(object, step);
    }
    const ToldIssues before = ToldIssues::SoFar();
    const bool success = Guarded(object, step);
    if (!success) {
        Guarded(object, [&] {
            WhileMemoryLasts([&] { ReportFailedMerge(object, feature(), before, line); });
            return false;
        });
    }
    return success;
}

bool MergeOwn(TypedDataContainer& object, ValueLookupBase* lookup, const std::unique_ptr<XMLDataWrapper>& source,
              const zelString& featureOtherwise) {
    return source != nullptr &&
           object.MergeFromDataPacket(lookup, FeatureOf(*source, featureOtherwise), source.get(), false);
}

} // namespace

bool TypedDataContainer::MergeFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName,
                                           const char*) {
    return MergeFromTemplate(pLookup, sStore, sXMLName);
}

bool TypedDataContainer::MergeFromTemplate(ValueLookupBase* pLookup, const char* sStore, const char* sXMLName) {
    return RunMerge(
        *this, [&] { return zelString(sStore); }, __LINE__,
        [&] { return MergeOwn(*this, pLookup, OpenTemplate(*this, sStore, sXMLName, true), sStore); });
}

bool TypedDataContainer::MergeFromModel(ValueLookupBase* pLookup, const char* sModel, const char* sXMLName) {
    return RunMerge(
        *this, [&] { return zelString(sModel); }, __LINE__,
        [&] { return MergeOwn(*this, pLookup, OpenModel(*this, sModel, sXMLName, true), sModel); });
}

bool TypedDataContainer::MergeFromFile(ValueLookupBase* pLookup, const char* sPath) {
    const auto feature = [&] {
        return zelString(sPath == nullptr ? "" : std::filesystem::path(sPath).stem().string());
    };
    return RunMerge(*this, feature, __LINE__, [&] {
        const std::unique_ptr<XMLDataWrapper> source = OpenFile(*this, sPath, false);
        return source != nullptr && MergeOwn(*this, pLookup, source, feature());
    });
}

bool TypedDataContainer::MergeFromDOMNode(ValueLookupBase* pLookup, zelString sFeatureID, DOMNode* pNode) {
    return RunMerge(
        *this, [&] { return sFeatureID; }, __LINE__,
        [&] {
            const std::unique_ptr<XMLDataWrapper> source = OpenDomNode(*this, pNode, false);
            return source != nullptr && MergeFromDataPacket(pLookup, sFeatureID, source.get(), false);
        });
}

bool TypedDataContainer::MergeFromDataPacket(ValueLookupBase* pLookup, zelString sFeatureID, XMLDataWrapper* pMergeData,
                                             bool bNested) {
    return RunMerge(
        *this, [&] { return sFeatureID; }, __LINE__,
        [&] {
            const WrapperState* const source = LoadedState(pMergeData);
            if (source == nullptr) {
                return MergeDataMembers(pMergeData, sFeatureID); // which says so
            }
            const XmlTree& tree = *source->Tree();
            const NodeRef node = StartOfMerge(*this, *source, bNested);
            if (node == NodeRef::None && !bNested) {
                return false;
            }
            // The words of a node that a walk hands down were obeyed by that walk.
            const bool isRoot = node != NodeRef::None && (!bNested || !OverridePlace::IsAt(tree, node));
            const OverridePlace place(&tree, node, &sFeatureID);
            const JournalMerge journal(isRoot ? JournalData::Current() : nullptr, *this, *source, sFeatureID);
            if (!bNested) {
                BeginNearSearches();
            }
            const MergeControl control = isRoot ? ReadControl(tree, node, ControlSite::Root) : MergeControl();
            if (control.problem.has_value()) {
                ReportOverride(*this, {tree, node, sFeatureID}, *control.problem, __LINE__);
                return false;
            }
            const NestedScope nested(*this, bNested);
            const SourceWrapper wrapper(*pMergeData, bNested);
            if (pLookup != nullptr) {
                ContainerAccess::SetLookup(*this, pLookup);
            }
            ContainerAccess::SetMergeFeature(*this, sFeatureID);
            Prepare(*this, control.action, tree, node);
            const bool success = MergeDataMembers(wrapper.Get(), sFeatureID);
            ContainerAccess::SetValid(*this, success || m_bValid);
            return success;
        });
}

bool TypedDataContainer::MergeDataMembers(XMLDataWrapper*, zelString) {
    return true;
}
