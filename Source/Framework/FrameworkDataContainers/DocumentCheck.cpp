#include "Framework/DocumentCheck.h"

#include <algorithm>
#include <span>
#include <unordered_map>
#include <utility>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerBase/MergeControl.h"
#include "Framework/ContainerBase/OverrideLog.h"
#include "Framework/FieldPath.h"
#include "Framework/FrameworkDataContainers/Walks/ElementFindings.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/XMLSupport/NodePlace.h"
#include "Framework/XMLSupport/TreeReading.h"

using namespace Framework;

namespace {

/// The check of one document. Containers are looked at one by one, without recursion, each with the way back to the
/// container that it stands in.
class CheckRun {
public:
    CheckRun(const XmlTree& tree, DocumentCheck::Kind kind)
        : m_tree(tree), m_isOverride(kind == DocumentCheck::Kind::Override) {}

    std::vector<Finding> Run(NodeRef node, const FieldTable& table) {
        BeginNearSearches();
        m_elements.push_back({node, &table, nullptr, 0, 0, false});
        if (m_isOverride) {
            LookAtControl(node, {}, ControlSite::Root);
        }
        for (m_at = 0; m_at < m_elements.size(); ++m_at) {
            LookAt();
        }
        std::stable_sort(m_findings.begin(), m_findings.end(), [](const Finding& left, const Finding& right) {
            return left.Place.Line != right.Place.Line ? left.Place.Line < right.Place.Line
                                                       : left.Place.Column < right.Place.Column;
        });
        return std::move(m_findings);
    }

private:
    struct Element {
        NodeRef node;
        const FieldTable* table;
        const FieldRow* row;  ///< by which its parent names it; null at the start
        std::size_t parent;   ///< among the elements
        std::size_t position; ///< from 1, in a list
        bool isNewPart;       ///< loaded as a whole by a merge: what stands below it has nothing to act on
    };

    void LookAt() {
        const Element element = m_elements[m_at]; // the list grows meanwhile
        const auto repeated = m_repeated.find(m_at);
        const std::span<const NodeRef> nodes =
            repeated == m_repeated.end() ? std::span(&element.node, 1) : std::span(std::as_const(repeated->second));
        m_children.clear();
        const ElementReader reader = !m_isOverride       ? ElementReader::Load
                                     : element.isNewPart ? ElementReader::Part
                                                         : ElementReader::Merge;
        FindInElement(
            {m_tree, nodes, *element.table}, {reader, true, true, &NearInMerge},
            [this](NodeRef node, std::string_view field, const FoundProblem& problem) { Take(node, field, problem); },
            [&](NodeRef child, const FieldRow& row, std::size_t position) {
                TakeChild(element, child, row, position);
            });
    }

    void TakeChild(const Element& element, NodeRef child, const FieldRow& row, std::size_t position) {
        bool isNewPart = element.isNewPart;
        bool isLeftOut = false;
        if (m_isOverride) {
            const MergeControl control =
                LookAtControl(child, StepOf({child, nullptr, &row, m_at, position, false}), SiteOf(element, row));
            isLeftOut = control.problem.has_value();
            isNewPart = control.action == MergeAction::Add || control.action == MergeAction::Replace ||
                        row.form == FieldForm::PlainList || isNewPart;
            if (!element.isNewPart && row.form == FieldForm::KeyedList && !row.numberedKeys &&
                FindAttribute(m_tree, child, row.keyAttribute) == NodeRef::None) {
                Take(child, row.name,
                     {FindingCode::MissingKey,
                      "the entry has no key, expected the attribute " + std::string(row.keyAttribute)});
            }
        }
        const bool isPartOfOne = row.form == FieldForm::Child && !isLeftOut && (!m_isOverride || element.isNewPart);
        if (row.value == FieldValue::Container && !(isPartOfOne && IsRepeated(child, row))) {
            const FieldTable* const table = row.child != nullptr ? row.child->table : row.list->table;
            m_elements.push_back({child, table, &row, m_at, position, isNewPart});
        }
    }

    static ControlSite SiteOf(const Element& element, const FieldRow& row) {
        if (row.form == FieldForm::Element) {
            return ControlSite::Value;
        }
        if (element.isNewPart) {
            return ControlSite::NewPart;
        }
        return row.form == FieldForm::KeyedList   ? ControlSite::KeyedEntry
               : row.form == FieldForm::PlainList ? ControlSite::PlainEntry
                                                  : ControlSite::Child;
    }

    /// Whether a load reads the child into the same object as one before it, which then stands for both.
    bool IsRepeated(NodeRef child, const FieldRow& row) {
        const auto known =
            std::find_if(m_children.begin(), m_children.end(), [&row](const auto& each) { return each.first == &row; });
        if (known == m_children.end()) {
            m_children.emplace_back(&row, m_elements.size());
            return false;
        }
        std::vector<NodeRef>& nodes = m_repeated[known->second];
        if (nodes.empty()) {
            nodes.push_back(m_elements[known->second].node);
        }
        nodes.push_back(child);
        return true;
    }

    MergeControl LookAtControl(NodeRef node, std::string_view field, ControlSite site) {
        const MergeControl control = ReadControl(m_tree, node, site);
        if (control.problem.has_value()) {
            Take(node, field, *control.problem);
        }
        return control;
    }

    void Take(NodeRef node, std::string_view field, const FoundProblem& problem) {
        Finding finding;
        finding.Code = problem.code;
        finding.Place = PlaceOfNode(m_tree, problem.where == NodeRef::None ? node : problem.where);
        finding.Path = FieldPath::Join(PathOf(m_at), field);
        finding.Text = problem.text;
        finding.Near.assign(problem.near.begin(), problem.near.end());
        if (problem.noteAt != NodeRef::None) {
            finding.Notes.push_back({PlaceOfNode(m_tree, problem.noteAt), problem.note});
        }
        m_findings.push_back(std::move(finding));
    }

    std::string PathOf(std::size_t position) const {
        std::vector<std::size_t> chain;
        for (; m_elements[position].row != nullptr; position = m_elements[position].parent) {
            chain.push_back(position);
        }
        std::string path;
        for (auto at = chain.rbegin(); at != chain.rend(); ++at) {
            path = FieldPath::Join(path, StepOf(m_elements[*at]));
        }
        return path;
    }

    std::string StepOf(const Element& element) const {
        const FieldRow& row = *element.row;
        if (row.form == FieldForm::KeyedList &&
            FindAttribute(m_tree, element.node, row.keyAttribute) != NodeRef::None) {
            return FieldPath::KeyStep(row.name, row.keyAttribute, AttributeOf(m_tree, element.node, row.keyAttribute));
        }
        return row.form == FieldForm::PlainList ? FieldPath::PositionStep(row.name, element.position)
                                                : std::string(row.name);
    }

    const XmlTree& m_tree;
    bool m_isOverride;
    std::vector<Element> m_elements;
    std::size_t m_at = 0;
    std::vector<std::pair<const FieldRow*, std::size_t>> m_children;  ///< of the element that is looked at
    std::unordered_map<std::size_t, std::vector<NodeRef>> m_repeated; ///< all nodes of an element, by its number
    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> DocumentCheck::Run(XMLDataWrapper& document, CatalogClass container, Kind kind) {
    const WrapperState* const state = LoadedState(&document);
    const FieldTable* const table = container ? FindTable(container.Name()) : nullptr;
    if (state == nullptr || table == nullptr || state->Here() == NodeRef::None) {
        return {};
    }
    return CheckRun(*state->Tree(), kind).Run(state->Here(), *table);
}
