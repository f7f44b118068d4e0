#include "Framework/ContainerCatalog.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/FrameworkDataContainers/Walks/VocabularyTable.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "FrameworkDataContainers/FieldTableIndex.h"

using namespace Framework;

namespace {

void AppendFields(const FieldTable& table, bool withParents, std::vector<CatalogField>& fields) {
    if (withParents && table.parent != nullptr) {
        AppendFields(*table.parent, true, fields);
    }
    for (const FieldRow& row : table.rows) {
        fields.emplace_back(row);
    }
}

} // namespace

std::string_view CatalogClass::Name() const {
    return m_pTable->className;
}

std::string_view CatalogClass::ElementName() const {
    return m_pTable->elementName;
}

bool CatalogClass::IsRoot() const {
    return m_pTable->isRoot;
}

CatalogClass CatalogClass::Parent() const {
    return CatalogClass(m_pTable->parent);
}

bool CatalogClass::IsStructuralConfigLoader() const {
    return m_pTable->isStructuralConfigLoader;
}

std::vector<CatalogField> CatalogClass::Fields() const {
    std::vector<CatalogField> fields;
    AppendFields(*m_pTable, true, fields);
    return fields;
}

std::vector<CatalogField> CatalogClass::OwnFields() const {
    std::vector<CatalogField> fields;
    AppendFields(*m_pTable, false, fields);
    return fields;
}

std::unique_ptr<TypedDataContainer> CatalogClass::Create(bool bBuildFromScratch) const {
    return std::unique_ptr<TypedDataContainer>(m_pTable->create(bBuildFromScratch));
}

std::string_view CatalogEnumeration::Name() const {
    return m_pTable->className;
}

std::vector<CatalogEnumeration::Word> CatalogEnumeration::Words() const {
    std::vector<zelString> texts;
    m_pTable->words(texts);
    std::vector<Word> words;
    words.reserve(texts.size());
    for (zelString& text : texts) {
        const int number = m_pTable->number(text.c_str());
        words.push_back({std::move(text), number});
    }
    return words;
}

std::vector<CatalogClass> ContainerCatalog::Classes() {
    std::vector<CatalogClass> classes;
    for (const FieldTable* const table : FieldTableIndex::Tables()) {
        classes.emplace_back(table);
    }
    return classes;
}

CatalogClass ContainerCatalog::FindClass(std::string_view className) {
    return CatalogClass(FindTable(className));
}

CatalogClass ContainerCatalog::FindRoot(std::string_view rootElement) {
    const std::span<const FieldTable* const> tables = FieldTableIndex::Tables();
    const auto found = std::find_if(tables.begin(), tables.end(), [rootElement](const FieldTable* table) {
        return table->isRoot && table->elementName == rootElement;
    });
    return CatalogClass(found == tables.end() ? nullptr : *found);
}

CatalogClass ContainerCatalog::ClassOf(TypedDataContainer& object) {
    return CatalogClass(TableOf(object));
}

std::optional<CatalogField> ContainerCatalog::FindField(CatalogClass container, std::string_view name) {
    for (CatalogClass level = container; level; level = level.Parent()) {
        for (const CatalogField& field : level.OwnFields()) {
            if (field.Name() == name) {
                return field;
            }
        }
    }
    return std::nullopt;
}

std::vector<std::string_view> ContainerCatalog::Roots() {
    std::vector<std::string_view> roots;
    for (const FieldTable* const table : FieldTableIndex::Tables()) {
        if (table->isRoot) {
            roots.push_back(table->elementName);
        }
    }
    std::sort(roots.begin(), roots.end());
    return roots;
}

std::vector<CatalogEnumeration> ContainerCatalog::Enumerations() {
    std::vector<CatalogEnumeration> enumerations;
    for (const VocabularyTable& table : FieldTableIndex::Vocabularies()) {
        enumerations.emplace_back(&table);
    }
    return enumerations;
}

CatalogEnumeration ContainerCatalog::FindEnumeration(std::string_view className) {
    const std::span<const VocabularyTable> tables = FieldTableIndex::Vocabularies();
    const auto found =
        std::lower_bound(tables.begin(), tables.end(), className,
                         [](const VocabularyTable& table, std::string_view name) { return table.className < name; });
    return CatalogEnumeration(found == tables.end() || found->className != className ? nullptr : &*found);
}

std::unique_ptr<TypedDataContainer> ContainerCatalog::Create(std::string_view name, bool bBuildFromScratch) {
    const CatalogClass ofRoot = FindRoot(name);
    const CatalogClass found = ofRoot ? ofRoot : FindClass(name);
    return found ? found.Create(bBuildFromScratch) : nullptr;
}

zelString ContainerCatalog::RootElement(XMLDataWrapper& document) {
    const WrapperState* const state = LoadedState(&document);
    const XmlTree* const tree = state == nullptr ? nullptr : state->Tree();
    const NodeRef root = tree == nullptr ? NodeRef::None : tree->Root();
    return root == NodeRef::None ? zelString() : zelString(tree->Name(root));
}
