#include "Operations.h"
#include "Writers.h"

#include <algorithm>
#include <array>

namespace Generator {

namespace {

using Row = std::array<std::string, 7>;

std::string FormText(const Field& field) {
    switch (field.form) {
    case Form::Attribute:
        return "attribute";
    case Form::Element:
        return field.cdata ? "element, CDATA" : "element";
    case Form::Child:
        return "child";
    case Form::KeyedList:
        return field.numberedKeys ? "keyed list, numbered" : "keyed list";
    case Form::PlainList:
        return "plain list";
    }
    return {};
}

std::string ValueText(const Field& field) {
    switch (field.value) {
    case Value::String:
        return "string";
    case Value::Bool:
        return "bool";
    case Value::Int:
        return "int";
    case Value::Double:
        return "double";
    default:
        return field.className;
    }
}

std::string DefaultText(const Field& field) {
    if (field.form == Form::Child) {
        return "none";
    }
    if (!field.initial.empty()) {
        return field.value == Value::String ? "\"" + field.initial + "\"" : field.initial;
    }
    if (field.IsList() || field.value == Value::String) {
        return "empty";
    }
    return field.value == Value::Bool ? "false" : "0";
}

Row FieldRow(const Field& field) {
    return {field.name,
            FormText(field),
            ValueText(field),
            DefaultText(field),
            field.IsProperty() ? "yes" : "no",
            field.key.empty() ? "-" : field.key,
            field.loadText.empty() ? "-" : "\"" + field.loadText + "\""};
}

/// Columns as wide as their widest text, two blanks apart.
std::string Columns(const std::vector<Row>& rows) {
    std::array<std::size_t, std::tuple_size_v<Row>> widths = {};
    for (const Row& row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row[column].size());
        }
    }
    std::string text;
    for (const Row& row : rows) {
        std::string line = "    ";
        for (std::size_t column = 0; column < row.size(); ++column) {
            line += row[column] + std::string(widths[column] - row[column].size() + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

std::string SlotText(const Operation& operation) {
    std::string types;
    for (const Parameter& parameter : operation.parameters) {
        types += (types.empty() ? "" : ", ") + parameter.type;
    }
    return operation.result + " " + operation.name + "(" + types + ")";
}

std::string ContainerText(const Container& container) {
    std::string text = "\nclass " + container.name + "\n";
    text += "  schema   " + container.file + "\n";
    text += "  base     " + container.Base() + "\n";
    text += "  element  " + container.elementName + (container.isRoot ? ", root" : "") + "\n";
    if (!container.fields.empty()) {
        std::vector<Row> rows = {{"name", "form", "value", "default", "property", "key", "load text"}};
        for (const Field& field : container.fields) {
            rows.push_back(FieldRow(field));
        }
        text += "  fields\n" + Columns(rows);
    }
    const std::vector<Operation> operations = AddedOperations(container);
    if (!operations.empty()) {
        text += "  slots\n";
        for (const Operation& operation : operations) {
            text += "    " + SlotText(operation) + "\n";
        }
    }
    return text;
}

std::string VocabularyText(const Vocabulary& vocabulary) {
    std::string text = "\nenumeration " + vocabulary.name + "\n  schema   " + vocabulary.file + "\n  words\n";
    for (const Word& word : vocabulary.words) {
        text += "    " + std::to_string(word.number) + " " + word.text + "\n";
    }
    return text;
}

} // namespace

std::string WriteListing(const Model& model) {
    std::string text = "Generated from the schemas; do not edit. Regenerate with the target \"generate\".\n"
                       "\n"
                       "Every class with its own fields in declared order, and the virtual operations that it adds "
                       "behind those of its\n"
                       "base, in slot order; then every enumeration with its words.\n";
    for (const Container& container : model.containers) {
        text += ContainerText(container);
    }
    for (const Vocabulary& vocabulary : model.vocabularies) {
        text += VocabularyText(vocabulary);
    }
    return text;
}

std::string WriteReadme() {
    return "Generated from the schemas; do not edit. Regenerate with the target \"generate\".\n"
           "\n"
           "# Generated classes\n"
           "\n"
           "One header and one source for each container class, the enumeration classes, the index of all field "
           "tables,\n"
           "and `FieldTables.txt`, which lists them all. They are made by `Tools/ContainerGenerator` from the files "
           "in\n"
           "`../Schema`; the schema language is described in `Docs/SchemaLanguage.md`.\n"
           "\n"
           "After a change of a schema or of the generator:\n"
           "\n"
           "    cmake --preset dev\n"
           "    cmake --build --preset dev --target generate\n"
           "\n"
           "and check in what has changed. A test compares this folder with what the generator makes.\n";
}

} // namespace Generator
