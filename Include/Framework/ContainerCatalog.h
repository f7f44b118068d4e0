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

/// A field of a class, and access to it in any object of that class. A value of one word, copied freely; every
/// string_view it returns lives as long as the library.
///
/// **Objects** that it is given must be of the class that the field was asked from, or derived from it: nothing checks
/// that. What hangs below an object stays the object's; pointers to it are lent, and live until it is removed, cleared
/// or loaded anew.
///
/// **Threads.** Questions about the field itself may be asked by any thread. Those that take an object follow the rule
/// of TypedDataContainer: one thread at a time for a tree.
///
/// **Failures.** A question that does not fit the form of the field (a child of a list, an entry past the end) is
/// answered with null, 0 or an empty text, a change with false or null; the object is then as it was. std::bad_alloc
/// may be thrown, and leaves a whole object. Changes are made in the object alone, also in one that was loaded read
/// only: only WriteBack touches the document.
class FRAMEWORK_API CatalogField {
public:
    enum Form { Attribute, Element, Child, KeyedList, PlainList };
    enum Value { String, Bool, Int, Double, Enumeration, Container };

    explicit CatalogField(const Framework::FieldRow& row) : m_pRow(&row) {}

    /// The XML name of the element or attribute.
    std::string_view Name() const;
    /// How the field stands in the XML.
    Form GetForm() const;
    /// What the field holds; of a list, what each entry holds.
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
    /// A keyed or a plain list.
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
    /// document, or the text cannot stand in it; the last error of the object's wrapper, over a read-only document that
    /// of the object, tells which.
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

    // Building a tree. What is made here stands on no XML: a dump of the tree (SaveContents, DumpMergeContentsII) has
    // it, but writing back adds no child and no entry to the loaded document, and takes none out of it; entries of a
    // plain list of texts are written back by their position.

    /// Position of the entry of a keyed list that EntryKey gives that key, the first of several; linear in the list.
    std::optional<std::size_t> FindEntry(TypedDataContainer& object, const zelString& sKey) const;
    /// The child, made with its defaults when there is none; lent. Null when the field is no child.
    TypedDataContainer* MakeChild(TypedDataContainer& object) const;
    /// Appends an entry with its defaults to a list of containers, by the class's virtual Add<Name>, and returns it,
    /// lent. In a keyed list it gets that key, as the text of its key attribute too; a plain list takes no notice of
    /// the key. Unlike Add<Name> this does not ask how the object was built. Null, and nothing added, when the key
    /// attribute cannot hold the key or the list has it already: then the object's last error is -2, and the override
    /// log is told.
    TypedDataContainer* AddEntry(TypedDataContainer& object, const zelString& sKey = {}) const;
    /// The same for a list of strings or enumerations, with the entry's text. Where keys are numbered on load an empty
    /// key stands for the next free number. False also when the text cannot stand in XML or is no word of the
    /// vocabulary.
    bool AddText(TypedDataContainer& object, const zelString& sText, const zelString& sKey = {}) const;
    /// Takes an entry of any list out of it, with every key that leads to it, and destroys it: pointers to it dangle.
    /// Not by the class's Remove<Name>, which most kinds of lists do not have. Linear in the list. False past the end.
    bool RemoveEntry(TypedDataContainer& object, std::size_t position) const;
    /// Gives the field what a new object holds: a scalar its default, no child, an empty list, which the class's
    /// virtual Clear<Name> empties. What is destroyed leaves pointers dangling.
    void Clear(TypedDataContainer& object) const;

private:
    const Framework::FieldRow* m_pRow;
};

/// A container class. A value of one word, copied freely; any thread may ask it. Texts live as long as the library.
/// Only a class that stands for one may be asked more than whether it does.
class FRAMEWORK_API CatalogClass {
public:
    explicit CatalogClass(const Framework::FieldTable* table = nullptr) : m_pTable(table) {}

    /// False for the answer to a question for a class that does not exist.
    explicit operator bool() const { return m_pTable != nullptr; }
    /// The name of the C++ class, as GetBaseType gives it.
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
    /// A new object, which the caller owns; nothing is loaded yet. `bBuildFromScratch` is the constructor's argument.
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
    /// The class of an object, by its GetBaseType: none when a host's own class gives a name of its own there.
    static CatalogClass ClassOf(TypedDataContainer& object);
    /// The field of that XML name, of the class itself or of its parents; comparison is exact.
    static std::optional<CatalogField> FindField(CatalogClass container, std::string_view name);
    /// Root elements of all documents and packets, by name.
    static std::vector<std::string_view> Roots();
    /// All enumeration classes, by name.
    static std::vector<CatalogEnumeration> Enumerations();
    /// The enumeration class of that name.
    static CatalogEnumeration FindEnumeration(std::string_view className);

    /// A new object of the class with that root element, else of the class with that name, which the caller owns; see
    /// CatalogClass::Create. Null when there is neither.
    static std::unique_ptr<TypedDataContainer> Create(std::string_view name, bool bBuildFromScratch);
    /// Name of the root element of a document, wherever the wrapper stands; empty when nothing is loaded. With it any
    /// document is loaded by Create and TypedDataContainer::LoadFromDataPacket. Moves nothing; for threads see
    /// XMLDataWrapper.
    static zelString RootElement(XMLDataWrapper& document);
};
