#pragma once

#include <vector>

#include "Framework/ContainerCatalog.h"
#include "Framework/Finding.h"

/// Finds in a document what a load passes over or reads as something else: unknown elements and attributes, texts that
/// no field takes, values that stand more than once, keys that are missing or doubled, words outside a vocabulary,
/// texts that are no number or truth value. Names that point to other parts of the document are not followed.
class FRAMEWORK_API DocumentCheck {
public:
    enum class Kind {
        Document, ///< it will be loaded
        Override, ///< it will be merged: its elements may carry control words, which are checked, as far as that is
                  ///< possible without the document that it will be merged into
    };

    /// All findings of the element that the wrapper stands on, else of the root, read as an element of that class; in
    /// the order of the document. Below an element that no field names nothing is looked for. Nothing is loaded and the
    /// wrapper is not moved; for threads it counts as reading (see XMLDataWrapper). Empty when no document is loaded.
    /// Takes time in proportion to the document. May throw std::bad_alloc.
    static std::vector<Finding> Run(XMLDataWrapper& document, CatalogClass container, Kind kind = Kind::Document);
};
