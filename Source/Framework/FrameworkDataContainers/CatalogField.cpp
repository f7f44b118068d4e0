#include <algorithm>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/ContainerCatalog.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/Utf.h"

using namespace Framework;

namespace {

/// The elements that an object was filled from: more than one when its element stands more than once.
struct LoadedFrom {
    explicit LoadedFrom(TypedDataContainer& object) {
        const WrapperState* const state = LoadedState(ContainerAccess::Wrapper(object));
        const NodeRef own = state == nullptr ? NodeRef::None : ContainerAccess::Node(object);
        if (own != NodeRef::None) {
            tree = state->Tree();
            elements = ContainerAccess::EarlierNodes(object);
            std::erase(elements, NodeRef::None);
            elements.push_back(own);
        }
    }

    const XmlTree* tree = nullptr; ///< null when the object stands on no document
    std::vector<NodeRef> elements;
};

std::vector<NodeRef> ElementsOf(const LoadedFrom& from, std::string_view name) {
    std::vector<NodeRef> nodes;
    for (const NodeRef element : from.elements) {
        for (NodeRef child = from.tree->FirstChild(element); child != NodeRef::None;
             child = from.tree->NextSibling(child)) {
            if (from.tree->Kind(child) == NodeKind::Element && from.tree->Name(child) == name) {
                nodes.push_back(child);
            }
        }
    }
    return nodes;
}

/// The node that a scalar has its value from. Attributes and load texts are assigned anew by every element.
NodeRef ScalarNode(const LoadedFrom& from, const FieldRow& row) {
    if (row.form == FieldForm::Attribute) {
        return FindAttribute(*from.tree, from.elements.back(), row.name);
    }
    if (!row.loadText.empty()) {
        return LastChildNamed(*from.tree, from.elements.back(), row.name);
    }
    for (auto element = from.elements.rbegin(); element != from.elements.rend(); ++element) {
        if (const NodeRef node = LastChildNamed(*from.tree, *element, row.name); node != NodeRef::None) {
            return node;
        }
    }
    return NodeRef::None;
}

} // namespace

std::string_view CatalogField::Name() const {
    return m_pRow->name;
}

CatalogField::Form CatalogField::GetForm() const {
    switch (m_pRow->form) {
    case FieldForm::Attribute:
        return Attribute;
    case FieldForm::Element:
        return Element;
    case FieldForm::Child:
        return Child;
    case FieldForm::KeyedList:
        return KeyedList;
    case FieldForm::PlainList:
        break;
    }
    return PlainList;
}

CatalogField::Value CatalogField::GetValue() const {
    switch (m_pRow->value) {
    case FieldValue::String:
        return String;
    case FieldValue::Bool:
        return Bool;
    case FieldValue::Int:
        return Int;
    case FieldValue::Double:
        return Double;
    case FieldValue::Enumeration:
        return Enumeration;
    case FieldValue::Container:
        break;
    }
    return Container;
}

std::string_view CatalogField::ClassName() const {
    return m_pRow->className;
}

std::string_view CatalogField::KeyAttribute() const {
    return m_pRow->keyAttribute;
}

bool CatalogField::HasNumberedKeys() const {
    return m_pRow->numberedKeys;
}

bool CatalogField::IsCData() const {
    return m_pRow->cdata;
}

bool CatalogField::IsProperty() const {
    return Framework::IsProperty(*m_pRow);
}

bool CatalogField::IsScalar() const {
    return m_pRow->form == FieldForm::Attribute || m_pRow->form == FieldForm::Element;
}

bool CatalogField::IsList() const {
    return m_pRow->list != nullptr;
}

zelString CatalogField::DefaultText() const {
    return Framework::DefaultText(*m_pRow);
}

std::string_view CatalogField::LoadText() const {
    return m_pRow->loadText;
}

std::vector<zelString> CatalogField::Words() const {
    std::vector<zelString> words;
    if (m_pRow->value == FieldValue::Enumeration) {
        (m_pRow->enumeration != nullptr ? m_pRow->enumeration->words : m_pRow->list->words)(words);
    }
    return words;
}

zelString CatalogField::GetText(TypedDataContainer& object) const {
    return IsScalar() ? ScalarText(object, *m_pRow) : zelString();
}

bool CatalogField::SetText(TypedDataContainer& object, const zelString& sText) const {
    if (!IsScalar() || !IsLegalText(*m_pRow, sText)) {
        return false;
    }
    SetScalar(object, *m_pRow, sText);
    return true;
}

bool CatalogField::SetEntryText(TypedDataContainer& object, std::size_t position, const zelString& sText) const {
    if (m_pRow->value == FieldValue::Container || position >= Length(object)) {
        return false;
    }
    if (m_pRow->value == FieldValue::Enumeration) {
        const std::vector<zelString> words = Words();
        TypedDataEnumeration* const word = (object.*m_pRow->member.words)[position];
        if (word == nullptr || std::find(words.begin(), words.end(), sText) == words.end()) {
            return false;
        }
        *word = sText.c_str();
        return true;
    }
    if (!IsXmlText(sText)) {
        return false;
    }
    if (m_pRow->form == FieldForm::KeyedList) {
        object.SetSimpleTypeData((object.*m_pRow->member.keyedTexts)[position], sText);
    } else {
        (object.*m_pRow->member.texts)[position] = sText;
    }
    return true;
}

bool CatalogField::WriteBack(TypedDataContainer& object) const {
    return IsScalar() && UpdateField(object, *m_pRow, std::nullopt);
}

bool CatalogField::WriteBack(TypedDataContainer& object, std::size_t position) const {
    return IsList() && m_pRow->value != FieldValue::Container && position < Length(object) &&
           UpdateField(object, *m_pRow, position);
}

TypedDataContainer* CatalogField::GetChild(TypedDataContainer& object) const {
    return m_pRow->child == nullptr ? nullptr : m_pRow->child->get(object);
}

std::size_t CatalogField::Length(TypedDataContainer& object) const {
    if (m_pRow->list == nullptr) {
        return 0;
    }
    if (m_pRow->value == FieldValue::Container) {
        return (object.*m_pRow->member.entries).size();
    }
    if (m_pRow->form == FieldForm::KeyedList) {
        return (object.*m_pRow->member.keyedTexts).size();
    }
    return m_pRow->value == FieldValue::String ? (object.*m_pRow->member.texts).size()
                                               : (object.*m_pRow->member.words).size();
}

TypedDataContainer* CatalogField::Entry(TypedDataContainer& object, std::size_t position) const {
    if (m_pRow->list == nullptr || m_pRow->value != FieldValue::Container || position >= Length(object)) {
        return nullptr;
    }
    return (object.*m_pRow->member.entries)[position];
}

zelString CatalogField::EntryText(TypedDataContainer& object, std::size_t position) const {
    if (m_pRow->list == nullptr || m_pRow->value == FieldValue::Container || position >= Length(object)) {
        return {};
    }
    if (m_pRow->form == FieldForm::KeyedList) {
        return object.GetSimpleTypeData((object.*m_pRow->member.keyedTexts)[position]);
    }
    if (m_pRow->value == FieldValue::String) {
        return (object.*m_pRow->member.texts)[position];
    }
    TypedDataEnumeration* const word = (object.*m_pRow->member.words)[position];
    return word == nullptr ? zelString() : word->StringOf();
}

zelString CatalogField::EntryKey(TypedDataContainer& object, std::size_t position) const {
    if (m_pRow->form != FieldForm::KeyedList || position >= Length(object)) {
        return {};
    }
    if (m_pRow->value != FieldValue::Container) {
        return (object.*m_pRow->member.keyedTexts)[position]->ElementName;
    }
    TypedDataContainer* const entry = Entry(object, position);
    if (entry == nullptr) {
        return {};
    }
    const auto key = ContainerCatalog::FindField(ContainerCatalog::FindClass(m_pRow->className), m_pRow->keyAttribute);
    return key.has_value() ? key->GetText(*entry) : zelString();
}

bool CatalogField::StandsInDocument(TypedDataContainer& object) const {
    const LoadedFrom from(object);
    return from.tree != nullptr && ScalarNode(from, *m_pRow) != NodeRef::None;
}

std::vector<zelString> CatalogField::DocumentTexts(TypedDataContainer& object) const {
    const LoadedFrom from(object);
    std::vector<NodeRef> nodes;
    if (from.tree != nullptr && IsList() && m_pRow->value != FieldValue::Container) {
        nodes = ElementsOf(from, m_pRow->name);
    } else if (from.tree != nullptr && IsScalar()) {
        nodes = {ScalarNode(from, *m_pRow)};
    }
    std::vector<zelString> texts;
    texts.reserve(nodes.size());
    for (const NodeRef node : nodes) {
        if (node != NodeRef::None) {
            texts.emplace_back(TextOf(*from.tree, node));
        }
    }
    return texts;
}
