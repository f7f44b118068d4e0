#include "ModelParts.h"

#include <algorithm>
#include <set>

#include "Failure.h"
#include "NearestName.h"
#include "Output.h"

namespace Lanedoc {

namespace {

[[noreturn]] void RefuseName(const std::string& name) {
    std::vector<std::string> known;
    for (const std::string_view root : ContainerCatalog::Roots()) {
        known.emplace_back(root);
    }
    for (const CatalogClass& container : ContainerCatalog::Classes()) {
        known.emplace_back(container.Name());
    }
    for (const CatalogEnumeration& enumeration : ContainerCatalog::Enumerations()) {
        known.emplace_back(enumeration.Name());
    }
    const std::vector<std::string> nearest = NearestNames(name, known);
    throw Failure(ExitCode::AnswerIsNo, "lanedoc: no class, root element or vocabulary " + Quoted(name, 80) + "; " +
                                            (nearest.empty() ? "lanedoc model lists them all" : DidYouMean(nearest)));
}

/// Follows parents and fields; every name is taken up once.
class Closure {
public:
    void Take(CatalogClass container) {
        if (!m_names.insert(container.Name()).second) {
            return;
        }
        m_open.push_back(container);
    }

    void Follow() {
        while (!m_open.empty()) {
            const CatalogClass container = m_open.back();
            m_open.pop_back();
            if (const CatalogClass parent = container.Parent()) {
                Take(parent);
            }
            for (const CatalogField& field : container.OwnFields()) {
                if (field.GetValue() == CatalogField::Container) {
                    Take(ContainerCatalog::FindClass(field.ClassName()));
                } else if (!field.ClassName().empty()) {
                    m_names.insert(field.ClassName());
                }
            }
        }
    }

    bool Holds(std::string_view name) const { return m_names.contains(name); }

private:
    std::set<std::string_view> m_names;
    std::vector<CatalogClass> m_open;
};

} // namespace

ModelParts WholeModel() {
    return {ContainerCatalog::Classes(), ContainerCatalog::Enumerations()};
}

ModelParts FindModelPart(const std::string& name) {
    for (const CatalogClass container : {ContainerCatalog::FindClass(name), ContainerCatalog::FindRoot(name)}) {
        if (container) {
            return {{container}, {}};
        }
    }
    const CatalogEnumeration enumeration = ContainerCatalog::FindEnumeration(name);
    if (!enumeration) {
        RefuseName(name);
    }
    return {{}, {enumeration}};
}

ModelParts WithAllUsed(const ModelParts& parts) {
    Closure used;
    for (const CatalogClass& container : parts.classes) {
        used.Take(container);
    }
    used.Follow();
    ModelParts all;
    for (const CatalogClass& container : ContainerCatalog::Classes()) {
        if (used.Holds(container.Name())) {
            all.classes.push_back(container);
        }
    }
    for (const CatalogEnumeration& enumeration : ContainerCatalog::Enumerations()) {
        const bool isNamed =
            std::any_of(parts.enumerations.begin(), parts.enumerations.end(),
                        [&](const CatalogEnumeration& named) { return named.Name() == enumeration.Name(); });
        if (isNamed || used.Holds(enumeration.Name())) {
            all.enumerations.push_back(enumeration);
        }
    }
    return all;
}

std::vector<ModelField> FieldsOf(CatalogClass container) {
    std::vector<ModelField> fields;
    if (const CatalogClass parent = container.Parent()) {
        fields = FieldsOf(parent);
    }
    for (const CatalogField& field : container.OwnFields()) {
        fields.push_back({container, field});
    }
    return fields;
}

std::vector<ModelField> UsesOf(std::string_view className) {
    std::vector<ModelField> uses;
    for (const CatalogClass& container : ContainerCatalog::Classes()) {
        for (const CatalogField& field : container.OwnFields()) {
            if (field.ClassName() == className) {
                uses.push_back({container, field});
            }
        }
    }
    return uses;
}

std::vector<CatalogClass> DerivedFrom(CatalogClass container) {
    std::vector<CatalogClass> derived;
    for (const CatalogClass& other : ContainerCatalog::Classes()) {
        if (const CatalogClass parent = other.Parent(); parent && parent.Name() == container.Name()) {
            derived.push_back(other);
        }
    }
    return derived;
}

std::string_view BaseOf(CatalogClass container) {
    if (const CatalogClass parent = container.Parent()) {
        return parent.Name();
    }
    return container.IsStructuralConfigLoader() ? "StructuralConfigLoader" : "TypedDataContainer";
}

} // namespace Lanedoc
