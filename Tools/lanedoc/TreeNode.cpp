#include "TreeNode.h"

#include <vector>

#include "Failure.h"
#include "NearestName.h"
#include "Output.h"

namespace Lanedoc {

namespace {

Failure Wrong(const std::string& text) {
    return {ExitCode::WrongUse, "lanedoc: error: " + text};
}

Failure Absent(const std::string& text) {
    return {ExitCode::AnswerIsNo, "lanedoc: " + text};
}

std::vector<PathStep> Parse(const std::string& path) {
    try {
        return ParsePath(path);
    } catch (const PathError& error) {
        // The caret stands below the character at which the path went wrong.
        const std::string shown = Printable(path);
        const std::size_t column = Width(Printable(path.substr(0, error.Offset())));
        throw Wrong(std::string("in the path: ") + error.what() + "\n  " + shown + "\n  " + std::string(column, ' ') +
                    "^");
    }
}

std::string Below(const std::string& path, const std::string& what) {
    return what + (path.empty() ? " below the root" : " in " + Printable(path));
}

CatalogField FindField(TypedDataContainer& object, const PathStep& step, const std::string& path) {
    const CatalogClass container = ContainerCatalog::ClassOf(object);
    const std::optional<CatalogField> field = ContainerCatalog::FindField(container, step.name);
    if (!field) {
        std::vector<std::string> names;
        for (const CatalogField& known : container.Fields()) {
            names.emplace_back(known.Name());
        }
        const std::vector<std::string> nearest = NearestNames(step.name, names);
        throw Wrong(Below(path, "no field " + Printable(step.name)) + " (" + std::string(container.Name()) + "); " +
                    (nearest.empty() ? "its fields are " + JoinNames(names) : DidYouMean(nearest)));
    }
    if (step.isAttribute && field->GetForm() != CatalogField::Attribute) {
        throw Wrong(Below(path, step.name) + " is no attribute; write it without '@'");
    }
    return *field;
}

/// Position of the entry that a step selects.
std::size_t FindEntry(TypedDataContainer& object, const CatalogField& list, const PathStep& step,
                      const std::string& path) {
    const std::size_t length = list.Length(object);
    if (step.selector == PathStep::Selector::Position) {
        if (step.position > length) {
            throw Absent(Below(path, "no entry " + FormatStep(step)) + ": the list has " + std::to_string(length));
        }
        return step.position - 1;
    }
    if (list.GetForm() != CatalogField::KeyedList) {
        throw Wrong(Below(path, step.name) + " has no keys; name an entry by its position, as in " + step.name + "[1]");
    }
    if (step.keyAttribute != list.KeyAttribute()) {
        throw Wrong(Below(path, step.name) + " has the key " + std::string(list.KeyAttribute()) + "; write " +
                    Printable(FieldPath::KeyStep(step.name, list.KeyAttribute(), step.key)));
    }
    std::vector<std::string> keys;
    keys.reserve(length);
    for (std::size_t i = 0; i < length; ++i) {
        keys.push_back(list.EntryKey(object, i));
        if (keys.back() == step.key) {
            return i;
        }
    }
    const std::vector<std::string> nearest = NearestNames(step.key, keys);
    const std::string others = keys.empty() ? "the list is empty" : "its keys are " + JoinNames(keys);
    throw Absent(Below(path, "no entry " + Printable(FormatStep(step))) + "; " +
                 (nearest.empty() ? others : DidYouMean(nearest)));
}

TreeNode Descend(const TreeNode& from, const PathStep& step) {
    TypedDataContainer& object = *from.object;
    const CatalogField field = FindField(object, step, from.path);
    TreeNode node{TreeNode::Kind::Scalar, &object, field, 0, FieldPath::Join(from.path, step.name)};
    if (step.selector != PathStep::Selector::None && !field.IsList()) {
        throw Wrong(Below(from.path, step.name) + " is no list; write it without [ ]");
    }
    if (field.IsList()) {
        node.kind = TreeNode::Kind::List;
        if (step.selector != PathStep::Selector::None) {
            node.position = FindEntry(object, field, step, from.path);
            node.path = FieldPath::Join(from.path, EntryStep(field, object, node.position));
            node.kind = TreeNode::Kind::Text;
        }
        if (node.kind == TreeNode::Kind::Text && HoldsContainers(field)) {
            node.kind = TreeNode::Kind::Container;
            node.object = field.Entry(object, node.position);
        }
    } else if (!field.IsScalar()) {
        node.kind = TreeNode::Kind::Container;
        node.object = field.GetChild(object);
        if (node.object == nullptr) {
            throw Absent(Below(from.path, "no " + step.name));
        }
    }
    return node;
}

} // namespace

TreeNode FindNode(TypedDataContainer& root, const std::string& path) {
    TreeNode node{TreeNode::Kind::Container, &root, std::nullopt, 0, {}};
    for (const PathStep& step : Parse(path)) {
        if (node.kind == TreeNode::Kind::List) {
            throw Wrong(Printable(node.path) + " is a list; name an entry, as in " + Printable(node.path) + "[1]");
        }
        if (node.kind != TreeNode::Kind::Container) {
            throw Wrong(Printable(node.path) + " is a value and has nothing below it");
        }
        node = Descend(node, step);
    }
    return node;
}

std::string EntryStep(const CatalogField& list, TypedDataContainer& object, std::size_t position) {
    if (list.GetForm() == CatalogField::KeyedList) {
        return FieldPath::KeyStep(list.Name(), list.KeyAttribute(), list.EntryKey(object, position));
    }
    return FieldPath::PositionStep(list.Name(), position + 1);
}

void RefuseContainer(const TreeNode& node) {
    const CatalogClass container = ContainerCatalog::ClassOf(*node.object);
    std::vector<std::string> names;
    for (const CatalogField& field : container.Fields()) {
        if (field.IsScalar()) {
            names.push_back(FieldPath::Join(node.path, field.Name()));
        }
    }
    throw Wrong((node.path.empty() ? "the root" : Printable(node.path)) + " is a " + std::string(container.Name()) +
                ", not a value; " + (names.empty() ? "lanedoc show prints it" : "name a field: " + JoinNames(names)));
}

void RefuseContainerList(const TreeNode& node) {
    throw Wrong(Printable(node.path) + " is a list of " + std::string(node.field->ClassName()) +
                "; name a field of an entry, as in " + Printable(FirstEntryPath(node)) + "/...");
}

std::string FirstEntryPath(const TreeNode& list) {
    const std::string parent = list.path.substr(0, list.path.size() - list.field->Name().size());
    return parent + EntryStep(*list.field, *list.object, 0);
}

bool HoldsContainers(const CatalogField& field) {
    return field.GetValue() == CatalogField::Container;
}

} // namespace Lanedoc
