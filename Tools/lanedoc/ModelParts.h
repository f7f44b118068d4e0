#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

/// A part of the model, or all of it.
struct ModelParts {
    std::vector<CatalogClass> classes;
    std::vector<CatalogEnumeration> enumerations;
};

/// All classes and vocabularies.
ModelParts WholeModel();

/// The class of that name or with that root element, or the vocabulary of that name; throws a Failure that names the
/// nearest ones when there is none.
ModelParts FindModelPart(const std::string& name);

/// The parts, and all that their fields and parents need.
ModelParts WithAllUsed(const ModelParts& parts);

/// A field of a class.
struct ModelField {
    CatalogClass owner;
    CatalogField field;
};

/// The fields of a class as the operations walk them, the parents' first, each with the class that declares it.
std::vector<ModelField> FieldsOf(CatalogClass container);

/// The fields that hold a class or a vocabulary, each once, at the class that declares it.
std::vector<ModelField> UsesOf(std::string_view className);

/// The classes that derive from it directly.
std::vector<CatalogClass> DerivedFrom(CatalogClass container);

/// The parent, or the library's own base class.
std::string_view BaseOf(CatalogClass container);

} // namespace Lanedoc
