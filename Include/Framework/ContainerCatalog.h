#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Framework/FrameworkExport.h"
#include "Framework/TypedDataContainer.h"

namespace Framework {
struct FieldRow;
struct FieldTable;
struct VocabularyTable;
} // namespace Framework

/// A field of a class, and access to it in any object of that class. A value of a few words, copied freely; the texts
/// it returns live as long as the library. Objects must be of the class the field was asked from, or derived from it.
class FRAMEWORK_API CatalogField {
public:
    enum Form { Attribute, Element, Child, KeyedList, PlainList };
    enum Value { String, Bool, Int, Double, Enumeration, Container };

    explicit CatalogField(const Framework::FieldRow& row) : m_pRow(&row) {}

    std::string_view Name() const;
    Form GetForm() const;
    Value GetValue() const;
    /// Class of the child, of the entries, or of the vocabulary; empty for the rest.
    std::string_view ClassName() const;
    /// Key attribute of a keyed list, without "@"; empty for the rest.
    std::string_view KeyAttribute() const;
    /// A keyed list of strings whose entries are numbered when they are loaded.
    bool HasNumberedKeys() const;
    /// An element whose text is read and written as CDATA.
    bool IsCData() const;
    /// GetProperties reports it.
    bool IsProperty() const;
    /// An attribute or an element: one value, read and written by GetText and SetText.
    bool IsScalar() const;
    bool IsList() const;
    /// What a new object holds, as text.
    zelString DefaultText() const;
    /// What a load assigns before it looks at the elements; empty when nothing.
    std::string_view LoadText() const;
    /// The words of an enumeration field, in order; empty for the rest.
    std::vector<zelString> Words() const;

    /// A scalar as text: bools "true" and "false", enumerations their word.
    zelString GetText(TypedDataContainer& object) const;
    /// Sets a scalar from text by the rules of a load. False, and nothing changed, when the text is none of that kind
    /// (a number, a bool, a word of the vocabulary) or the field is no scalar.
    bool SetText(TypedDataContainer& object, const zelString& sText) const;
    /// Sets an entry of a list of strings or enumerations from text, as SetText does a scalar.
    bool SetEntryText(TypedDataContainer& object, std::size_t position, const zelString& sText) const;
    /// Writes a scalar, and nothing else, into the XML that the object stands on, by the rules of UpdateContainedData.
    /// True when it stands there now, or its absence says the same. False when the object is read only, stands on no
    /// document, or the text cannot stand in it; the last error of the object's wrapper tells which.
    bool WriteBack(TypedDataContainer& object) const;
    /// The same for one entry of a list of strings or enumerations; false also when the entry has no node there.
    bool WriteBack(TypedDataContainer& object, std::size_t position) const;
    /// The child, null when there is none; lent.
    TypedDataContainer* GetChild(TypedDataContainer& object) const;
    /// Number of entries of a list, without making any.
    std::size_t Length(TypedDataContainer& object) const;
    /// Entry of a list of containers by position from 0, null past the end; lent.
    TypedDataContainer* Entry(TypedDataContainer& object, std::size_t position) const;
    /// Text of an entry of a list of strings or enumerations; empty past the end.
    zelString EntryText(TypedDataContainer& object, std::size_t position) const;
    /// Key of an entry of a keyed list: its key attribute, or the key of a string entry; empty past the end.
    zelString EntryKey(TypedDataContainer& object, std::size_t position) const;
    /// Whether the XML that the object was loaded from holds the field: false for a value that is only a default.
    bool StandsInDocument(TypedDataContainer& object) const;
    /// What the XML that the object was loaded from holds for the field, as it stands there, also where the value could
    /// not take it: of a scalar one text or none, of a list of strings or enumerations one for each entry.
    std::vector<zelString> DocumentTexts(TypedDataContainer& object) const;

private:
    const Framework::FieldRow* m_pRow;
};

/// A container class. A value of one word; see CatalogField.
class FRAMEWORK_API CatalogClass {
public:
    explicit CatalogClass(const Framework::FieldTable* table = nullptr) : m_pTable(table) {}

    /// False for the answer to a question for a class that does not exist.
    explicit operator bool() const { return m_pTable != nullptr; }
    std::string_view Name() const;
    /// Element name that the constructor gives an object.
    std::string_view ElementName() const;
    /// Its element is the root of a document or packet.
    bool IsRoot() const;
    /// The generated class that it derives from, if any.
    CatalogClass Parent() const;
    /// Derives from StructuralConfigLoader.
    bool IsStructuralConfigLoader() const;
    /// All fields in the order in which every operation walks them, the parent's first.
    std::vector<CatalogField> Fields() const;
    /// The class's own fields only.
    std::vector<CatalogField> OwnFields() const;
    /// A new object, which the caller owns.
    std::unique_ptr<TypedDataContainer> Create(bool bBuildFromScratch) const;

private:
    const Framework::FieldTable* m_pTable;
};

/// An enumeration class, with the words of its vocabulary. A value of one word; see CatalogField.
class FRAMEWORK_API CatalogEnumeration {
public:
    struct Word {
        zelString text;
        int number; ///< that it has in memory
    };

    explicit CatalogEnumeration(const Framework::VocabularyTable* table = nullptr) : m_pTable(table) {}

    /// False for the answer to a question for a class that does not exist.
    explicit operator bool() const { return m_pTable != nullptr; }
    std::string_view Name() const;
    /// The words, in order.
    std::vector<Word> Words() const;

private:
    const Framework::VocabularyTable* m_pTable;
};

/// All container and enumeration classes, by name and by root element. Any thread may ask.
class FRAMEWORK_API ContainerCatalog {
public:
    /// All container classes, by name.
    static std::vector<CatalogClass> Classes();
    /// The class of that name.
    static CatalogClass FindClass(std::string_view className);
    /// The class of the document or packet with that root element.
    static CatalogClass FindRoot(std::string_view rootElement);
    /// The class of an object, by its GetBaseType.
    static CatalogClass ClassOf(TypedDataContainer& object);
    /// The field of that XML name, of the class itself or of its parents.
    static std::optional<CatalogField> FindField(CatalogClass container, std::string_view name);
    /// Root elements of all documents and packets, by name.
    static std::vector<std::string_view> Roots();
    /// All enumeration classes, by name.
    static std::vector<CatalogEnumeration> Enumerations();
    /// The enumeration class of that name.
    static CatalogEnumeration FindEnumeration(std::string_view className);
};
