#include "TypeIndex.h"

#include "CppNames.h"

namespace Generator {

namespace {

std::string Spot(const Origin& origin) {
    return origin.file + ":" + std::to_string(origin.place.line);
}

} // namespace

TypeIndex::TypeIndex(const std::vector<SchemaFile>& files) {
    for (const SchemaFile& file : files) {
        for (const ContainerDeclaration& container : file.containers) {
            Declare(container.name, &container);
        }
        for (const TextDeclaration& text : file.texts) {
            Declare(text.name, &text);
        }
        for (const VocabularyDeclaration& vocabulary : file.vocabularies) {
            Declare(vocabulary.name, &vocabulary);
        }
        for (const Written& group : file.attributeGroups) {
            const auto [entry, isNew] = m_groups.try_emplace(group.text, group.origin);
            if (!isNew) {
                Refuse(group.origin, "attribute group '" + group.text + "' stands already at " + Spot(entry->second));
            }
        }
    }
    AddIncludes(files);
}

void TypeIndex::Declare(const Written& name, const TypeDeclaration& declaration) {
    DemandIdentifier(name, "type");
    if (IsReservedClassName(name.text)) {
        Refuse(name.origin, "type '" + name.text + "' bears a name that the library itself uses");
    }
    const auto [entry, isNew] = m_types.try_emplace(name.text, Entry{declaration, name.origin});
    if (!isNew) {
        Refuse(name.origin, "type '" + name.text + "' stands already at " + Spot(entry->second.origin));
    }
}

void TypeIndex::AddIncludes(const std::vector<SchemaFile>& files) {
    std::map<std::string, const SchemaFile*> byName;
    for (const SchemaFile& file : files) {
        byName[file.name] = &file;
    }
    for (const SchemaFile& file : files) {
        std::set<std::string>& visible = m_visible[file.name];
        std::vector<const SchemaFile*> open = {&file};
        while (!open.empty()) {
            const SchemaFile& next = *open.back();
            open.pop_back();
            if (!visible.insert(next.name).second) {
                continue;
            }
            for (const Written& include : next.includes) {
                const auto found = byName.find(include.text);
                if (found == byName.end()) {
                    Refuse(include.origin, "'" + include.text + "' is no file of this schema folder");
                }
                open.push_back(found->second);
            }
        }
    }
}

void TypeIndex::DemandVisible(const Written& reference, const Origin& declared) const {
    if (!m_visible.at(reference.origin.file).contains(declared.file)) {
        Refuse(reference.origin,
               "'" + reference.text + "' is declared at " + Spot(declared) + ", expected an xs:include of that file");
    }
}

const TypeDeclaration& TypeIndex::Find(const Written& reference) const {
    const auto found = m_types.find(reference.text);
    if (found == m_types.end()) {
        Refuse(reference.origin,
               "type '" + reference.text + "' is unknown, expected " +
                   (reference.text.starts_with("xs:") ? "xs:string, xs:boolean, xs:int or xs:double"
                                                      : "one that a file of this schema folder declares"));
    }
    DemandVisible(reference, found->second.origin);
    return found->second.declaration;
}

void TypeIndex::FindGroup(const Written& reference) const {
    const auto found = m_groups.find(reference.text);
    if (found == m_groups.end()) {
        Refuse(reference.origin, "attribute group '" + reference.text + "' is unknown");
    }
    DemandVisible(reference, found->second);
}

} // namespace Generator
