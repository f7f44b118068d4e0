#include "FieldBuilder.h"

#include "CppNames.h"

#include <algorithm>
#include <charconv>

namespace Generator {

namespace {

std::optional<Value> BuiltInValue(std::string_view type) {
    if (type == "xs:string") {
        return Value::String;
    }
    if (type == "xs:boolean") {
        return Value::Bool;
    }
    if (type == "xs:int") {
        return Value::Int;
    }
    if (type == "xs:double") {
        return Value::Double;
    }
    return std::nullopt;
}

void RefuseMark(const std::optional<Written>& mark, std::string_view name, std::string_view goesWith) {
    if (mark) {
        Refuse(mark->origin, std::string(name) + " goes only with " + std::string(goesWith));
    }
}

void ShapeBuiltIn(const FieldDeclaration& declaration, Value value, Field& field) {
    field.value = value;
    if (declaration.isAttribute) {
        field.form = Form::Attribute;
        if (value == Value::Double) {
            Refuse(declaration.type.origin, "an attribute of type xs:double, expected xs:string, xs:boolean or xs:int");
        }
    } else if (!declaration.repeated) {
        field.form = Form::Element;
    } else if (value == Value::String) {
        field.form = Form::PlainList;
    } else {
        Refuse(declaration.type.origin, "a list of " + declaration.type.text +
                                            ", expected xs:string, a vocabulary, a text with a key or a container");
    }
}

void ShapeContainer(const FieldDeclaration& declaration, Field& field) {
    field.value = Value::Container;
    field.className = declaration.type.text;
    if (!declaration.repeated) {
        field.form = Form::Child;
    } else {
        field.form = declaration.key ? Form::KeyedList : Form::PlainList;
    }
}

void ShapeText(const FieldDeclaration& declaration, const TextDeclaration& text, Field& field) {
    field.value = Value::String;
    field.form = Form::KeyedList;
    if (!declaration.repeated) {
        Refuse(declaration.type.origin,
               "'" + text.name.text + "' is a text with a key, expected maxOccurs=\"unbounded\"");
    }
    if (!declaration.key) {
        Refuse(declaration.type.origin,
               "'" + text.name.text + "' is a text with a key, expected fdc:key=\"" + text.key.text + "\"");
    }
    if (declaration.key->text != text.key.text) {
        Refuse(declaration.key->origin, "'" + text.name.text + "' has no attribute '" + declaration.key->text +
                                            "', expected '" + text.key.text + "'");
    }
}

void ShapeVocabulary(const FieldDeclaration& declaration, Field& field) {
    field.value = Value::Enumeration;
    field.className = declaration.type.text;
    field.form = declaration.repeated ? Form::PlainList : Form::Element;
}

void ShapeDeclared(const FieldDeclaration& declaration, const TypeDeclaration& type, Field& field) {
    if (declaration.isAttribute) {
        Refuse(declaration.type.origin,
               "an attribute of type '" + declaration.type.text + "', expected xs:string, xs:boolean or xs:int");
    }
    if (std::holds_alternative<const ContainerDeclaration*>(type)) {
        ShapeContainer(declaration, field);
    } else if (const auto* const* text = std::get_if<const TextDeclaration*>(&type)) {
        ShapeText(declaration, **text, field);
    } else {
        ShapeVocabulary(declaration, field);
    }
}

/// The default as the model keeps it. One that changes nothing is refused: it would read as if it did.
std::string BuildDefault(const Written& initial, const Field& field) {
    const std::string& text = initial.text;
    if (!field.IsProperty() || field.value == Value::Double || field.cdata) {
        Refuse(initial.origin,
               "fdc:default goes only with a value of xs:string, xs:boolean or xs:int that is no CDATA");
    }
    if (field.value == Value::Bool) {
        if (text != "true") {
            Refuse(initial.origin, "default '" + text + "', expected \"true\", or no default");
        }
    } else if (field.value == Value::Int) {
        int number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size() || std::to_string(number) != text || number == 0) {
            Refuse(initial.origin,
                   "default '" + text + "', expected an int other than 0 in decimal digits, or no default");
        }
    } else if (text.empty()) {
        Refuse(initial.origin, "an empty default, expected a text, or no default");
    }
    return text;
}

void DemandWord(const Written& loadText, const VocabularyDeclaration& vocabulary) {
    const auto isWord = [&](const WordDeclaration& word) { return word.word.text == loadText.text; };
    if (loadText.text.empty() || std::none_of(vocabulary.words.begin(), vocabulary.words.end(), isWord)) {
        Refuse(loadText.origin, "'" + loadText.text + "' is no word of '" + vocabulary.name.text + "'");
    }
}

void TakeMarks(const FieldDeclaration& declaration, const TypeIndex& types, Field& field) {
    if (field.form == Form::KeyedList) {
        field.key = declaration.key->text;
    } else {
        RefuseMark(declaration.key, "fdc:key", "a list of containers or of texts with a key");
    }
    field.numberedKeys = declaration.numbered.has_value();
    if (field.form != Form::KeyedList || field.value != Value::String) {
        RefuseMark(declaration.numbered, "fdc:numbered", "a list of texts with a key");
    }
    field.cdata = declaration.cdata.has_value();
    if (field.form != Form::Element || field.value != Value::String) {
        RefuseMark(declaration.cdata, "fdc:cdata", "an element of xs:string that does not repeat");
    }
    if (declaration.initial) {
        field.initial = BuildDefault(*declaration.initial, field);
    }
    if (field.form != Form::Element || field.value != Value::Enumeration) {
        RefuseMark(declaration.loadText, "fdc:loadText", "an element of a vocabulary that does not repeat");
    } else if (declaration.loadText) {
        DemandWord(*declaration.loadText, *std::get<const VocabularyDeclaration*>(types.Find(declaration.type)));
        field.loadText = declaration.loadText->text;
    }
}

} // namespace

Field BuildField(const FieldDeclaration& declaration, const TypeIndex& types) {
    DemandIdentifier(declaration.name, "field");
    Field field;
    field.name = declaration.name.text;
    if (const std::optional<Value> value = BuiltInValue(declaration.type.text)) {
        ShapeBuiltIn(declaration, *value, field);
    } else {
        ShapeDeclared(declaration, types.Find(declaration.type), field);
    }
    TakeMarks(declaration, types, field);
    return field;
}

} // namespace Generator
