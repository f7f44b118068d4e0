#include "TreeValues.h"

#include <unordered_map>
#include <vector>

#include "TreeNode.h"

namespace Lanedoc {

namespace {

class ValueWalk {
public:
    explicit ValueWalk(const std::function<void(const TreeValue&)>& visit) : m_visit(visit) {}

    void Walk(TypedDataContainer& object, const std::string& path) {
        for (const CatalogField& field : FieldsOf(object)) {
            if (field.IsScalar()) {
                m_visit({field, object, FieldPath::Join(path, field.Name()), field.GetText(object)});
            } else if (field.IsList()) {
                WalkList(field, object, path);
            } else if (TypedDataContainer* const child = field.GetChild(object)) {
                Walk(*child, FieldPath::Join(path, field.Name()));
            }
        }
    }

private:
    void WalkList(const CatalogField& list, TypedDataContainer& object, const std::string& path) {
        const std::size_t length = list.Length(object);
        for (std::size_t i = 0; i < length; ++i) {
            const std::string entryPath = FieldPath::Join(path, EntryStep(list, object, i));
            if (!HoldsContainers(list)) {
                m_visit({list, object, entryPath, list.EntryText(object, i)});
            } else if (TypedDataContainer* const entry = list.Entry(object, i)) {
                Walk(*entry, entryPath);
            }
        }
    }

    /// The fields of a class are asked for once, not for every object.
    const std::vector<CatalogField>& FieldsOf(TypedDataContainer& object) {
        const CatalogClass container = ContainerCatalog::ClassOf(object);
        const auto [known, isNew] = m_fields.try_emplace(container.Name());
        if (isNew) {
            known->second = container.Fields();
        }
        return known->second;
    }

    const std::function<void(const TreeValue&)>& m_visit;
    std::unordered_map<std::string_view, std::vector<CatalogField>> m_fields; // by class; references stay good
};

} // namespace

void ForEachValue(TypedDataContainer& tree, const std::function<void(const TreeValue&)>& visit) {
    ValueWalk(visit).Walk(tree, {});
}

} // namespace Lanedoc
