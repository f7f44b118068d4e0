#pragma once

#include <optional>
#include <string>
#include <vector>

/// What is generated: the classes of all schema files, resolved and checked. Writers read it and never change it.
namespace Generator {

enum class Form { Attribute, Element, Child, KeyedList, PlainList };
enum class Value { String, Bool, Int, Double, Enumeration, Container };

struct Field {
    std::string name;
    Form form = Form::Element;
    Value value = Value::String;
    std::string className; ///< of the child, the entries or the vocabulary
    std::string key;       ///< key attribute of a keyed list
    bool numberedKeys = false;
    bool cdata = false;
    std::string initial; ///< constructor default: a text, decimal digits, "true"; empty when there is none
    std::string loadText;

    bool IsScalar() const { return form == Form::Attribute || form == Form::Element; }
    bool IsList() const { return form == Form::KeyedList || form == Form::PlainList; }
    bool IsProperty() const { return IsScalar() && value != Value::Enumeration; }
};

struct Container {
    std::string name;
    std::string file;
    std::string documentation;
    std::string elementName;
    std::string parent;                    ///< generated base class; empty when the base is none
    bool isStructuralConfigLoader = false; ///< by its own base or by that of its parents
    bool isRoot = false;
    std::vector<Field> fields;

    std::string Base() const {
        return !parent.empty() ? parent : isStructuralConfigLoader ? "StructuralConfigLoader" : "TypedDataContainer";
    }
};

struct Word {
    std::string text;
    int number = 0;
};

struct Vocabulary {
    std::string name;
    std::string file;
    std::string documentation;
    std::vector<Word> words;
};

struct Model {
    std::vector<Container> containers;    ///< by name
    std::vector<Vocabulary> vocabularies; ///< by name
};

} // namespace Generator
