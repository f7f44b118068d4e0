#include "Snapshot.h"

#include <string_view>
#include <unordered_map>

#include "TreeNode.h"

namespace Lanedoc {

namespace {

class SnapshotMaker {
public:
    Snapshot Take(TypedDataContainer& container) {
        Snapshot snapshot;
        snapshot.document = container.GetContainedDataPtr();
        snapshot.valid = container.Valid();
        for (const Field& field : FieldsOf(container)) {
            if (field.catalog.IsScalar()) {
                snapshot.scalars.push_back(field.catalog.GetText(container));
                snapshot.values += snapshot.scalars.back() != field.defaultText ? 1U : 0U;
            } else {
                snapshot.lists.push_back(TakeEntries(field.catalog, container));
                for (const SnapshotEntry& entry : snapshot.lists.back()) {
                    snapshot.values += entry.container == nullptr ? 1U : entry.container->values;
                }
            }
        }
        return snapshot;
    }

private:
    struct Field {
        CatalogField catalog;
        std::string defaultText;
    };

    /// The fields of a class are asked for once, not for every object.
    const std::vector<Field>& FieldsOf(TypedDataContainer& container) {
        const CatalogClass type = ContainerCatalog::ClassOf(container);
        const auto [known, isNew] = m_fields.try_emplace(type.Name());
        if (isNew) {
            for (const CatalogField& field : type.Fields()) {
                known->second.push_back({field, field.IsScalar() ? std::string(field.DefaultText()) : std::string()});
            }
        }
        return known->second;
    }

    std::vector<SnapshotEntry> TakeEntries(const CatalogField& field, TypedDataContainer& container) {
        std::vector<SnapshotEntry> entries;
        if (!field.IsList()) {
            if (TypedDataContainer* const child = field.GetChild(container)) {
                entries.push_back({{}, {}, std::make_unique<Snapshot>(Take(*child))});
            }
            return entries;
        }
        const std::size_t length = field.Length(container);
        entries.resize(length);
        for (std::size_t i = 0; i < length; ++i) {
            if (field.GetForm() == CatalogField::KeyedList) {
                entries[i].key = field.EntryKey(container, i);
            }
            if (!HoldsContainers(field)) {
                entries[i].text = field.EntryText(container, i);
            } else if (TypedDataContainer* const entry = field.Entry(container, i)) {
                entries[i].container = std::make_unique<Snapshot>(Take(*entry));
            }
        }
        return entries;
    }

    std::unordered_map<std::string_view, std::vector<Field>> m_fields; // by the name of the class
};

} // namespace

Snapshot TakeSnapshot(TypedDataContainer& tree) {
    return SnapshotMaker().Take(tree);
}

} // namespace Lanedoc
