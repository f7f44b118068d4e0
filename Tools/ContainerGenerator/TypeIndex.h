#pragma once

#include "Schema.h"

#include <map>
#include <set>
#include <variant>

namespace Generator {

using TypeDeclaration = std::variant<const ContainerDeclaration*, const TextDeclaration*, const VocabularyDeclaration*>;

/// Every type of all schema files under its name, and which file sees which other through xs:include.
class TypeIndex {
public:
    /// Refuses names that stand twice or that C++ or the library cannot take, and includes of files that are not there.
    /// The files must outlive the index.
    explicit TypeIndex(const std::vector<SchemaFile>& files);

    /// The declaration that a reference means; refused when there is none, or none that its file includes.
    const TypeDeclaration& Find(const Written& reference) const;
    /// The same for an attribute group.
    void FindGroup(const Written& reference) const;

private:
    void Declare(const Written& name, const TypeDeclaration& declaration);
    void AddIncludes(const std::vector<SchemaFile>& files);
    void DemandVisible(const Written& reference, const Origin& declared) const;

    struct Entry {
        TypeDeclaration declaration;
        Origin origin;
    };
    std::map<std::string, Entry> m_types;
    std::map<std::string, Origin> m_groups;
    std::map<std::string, std::set<std::string>> m_visible; ///< by file: the files it includes, itself among them
};

} // namespace Generator
