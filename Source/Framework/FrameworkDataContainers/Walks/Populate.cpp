#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/FrameworkDataContainers/Walks/Children.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

/// The walk of one class over one element. It is driven by the child nodes: each is tested against every field of the
/// class, in declared order; what no field names is passed over. Attributes are read afterwards, also when they are
/// absent.
///
/// Below something new that an override brings in, merge control has nothing to act on: an element that asks for more
/// than to be merged or added is left out and reported, as everywhere when a word cannot be obeyed.
class PopulateWalk {
public:
    PopulateWalk(TypedDataContainer& object, const FieldTable& table, const XmlTree& tree, NodeRef node)
        : m_object(object), m_table(table), m_tree(tree), m_node(node), m_feature(OverridePlace::FeatureIn(tree)) {}

    void Run() {
        AssignLoadTexts();
        for (NodeRef child = m_tree.FirstChild(m_node); child != NodeRef::None; child = m_tree.NextSibling(child)) {
            if (m_tree.Kind(child) == NodeKind::Element) {
                TakeElement(child);
            }
        }
        TakeAttributes();
    }

private:
    /// An enumeration with a load text holds it unless the element is there; a new object does not.
    void AssignLoadTexts() {
        for (const FieldRow& row : m_table.rows) {
            if (!row.loadText.empty()) {
                row.enumeration->get(m_object) = row.loadText.data();
            }
        }
    }

    void TakeElement(NodeRef child) {
        const std::string_view name = m_tree.Name(child);
        for (const FieldRow& row : m_table.rows) {
            if (row.form != FieldForm::Attribute && row.name == name) {
                TakeField(row, child);
            }
        }
    }

    void TakeField(const FieldRow& row, NodeRef child) {
        FaultPoint("Populate");
        if (m_feature != nullptr && !IsTaken(row, child)) {
            return;
        }
        switch (row.form) {
        case FieldForm::Element:
            SetScalar(m_object, row, row.cdata ? CDataOf(m_tree, child) : TextOf(m_tree, child));
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
        const std::string problem =
            ReadControl(m_tree, child, isValue ? ControlSite::Value : ControlSite::NewPart).problem;
        if (!problem.empty()) {
            ReportOverride(m_object, {m_tree, child, *m_feature}, problem, __LINE__);
        }
        return isValue || problem.empty();
    }

    /// A child that is there is used again: an element that stands twice fills one object twice.
    void TakeChild(const FieldRow& row, NodeRef node) {
        ChildInPlace(m_object, row)
            .SetContainedDataPtr(Wrapper(), m_tree.View(node), ContainerAccess::IsReadOnly(m_object), true);
    }

    void TakeEntry(const FieldRow& row, NodeRef node) {
        if (row.value == FieldValue::Container) {
            const zelString key =
                row.form == FieldForm::KeyedList ? AttributeOf(m_tree, node, row.keyAttribute) : zelString();
            row.list->addEntry(m_object, Wrapper(), m_tree.View(node), key);
        } else if (row.form == FieldForm::KeyedList) {
            TakeKeyedText(row, node);
        } else {
            row.list->addText(m_object, TextOf(m_tree, node), {});
        }
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
        row.list->addText(m_object, text, TextKey(row, node));
        if (texts.size() > before && ContainerAccess::Wrapper(m_object) != nullptr) {
            ContainerAccess::AttachText(*texts.back(), m_object, node, text);
        }
    }

    zelString TextKey(const FieldRow& row, NodeRef node) {
        if (!row.numberedKeys) {
            return AttributeOf(m_tree, node, row.keyAttribute);
        }
        return SupportFunc::GetStrValue(static_cast<long>((m_object.*row.member.keyedTexts).size() + 1));
    }

    void TakeAttributes() {
        for (const FieldRow& row : m_table.rows) {
            if (row.form == FieldForm::Attribute) {
                FaultPoint("Populate");
                SetScalar(m_object, row, AttributeOf(m_tree, m_node, row.name));
            }
        }
    }

    TypedDataContainer& m_object;
    const FieldTable& m_table;
    const XmlTree& m_tree;
    NodeRef m_node;
    const zelString* m_feature; ///< of the merge that this load is part of, null when it is none
};

} // namespace

bool Populate(TypedDataContainer& object, const FieldTable& table, XalanNode* pNode) {
    bool bSuccess = false;
    try {
        if (table.parent != nullptr) {
            bSuccess = Populate(object, *table.parent, pNode);
        }
        const XmlTree* tree = nullptr;
        const NodeRef node = NodeViews::Find(pNode, tree);
        if (tree != nullptr) {
            PopulateWalk(object, table, *tree, node).Run();
            bSuccess = true;
        }
    } catch (...) {
        ContainerAccess::SetValid(object, false); // it holds a part only
        ContainerAccess::SetFixedError(object, -1, "Unknown Exception occured in PopulateDataMembers");
    }
    return bSuccess;
}

} // namespace Framework
