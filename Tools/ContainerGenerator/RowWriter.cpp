#include "RowWriter.h"

#include "CodeText.h"

namespace Generator {

namespace {

using Texts = std::vector<std::string>;

std::string Joined(const Texts& texts) {
    std::string joined;
    for (const std::string& text : texts) {
        joined += (joined.empty() ? "" : ", ") + text;
    }
    return joined;
}

std::string Row(const std::string& function, const Texts& templateArguments, const Texts& arguments) {
    return "Framework::" + function + (templateArguments.empty() ? "" : "<" + Joined(templateArguments) + ">") + "(" +
           Joined(arguments) + ")";
}

std::string ScalarRow(const Field& field, const std::string& member) {
    Texts arguments = {Literal(field.name), member};
    if (field.cdata) {
        return Row("CDataElement", {}, arguments);
    }
    if (!field.initial.empty()) {
        arguments.push_back(field.value == Value::String ? Literal(field.initial)
                            : field.value == Value::Int  ? IntLiteral(field.initial)
                                                         : field.initial);
    }
    return Row(field.form == Form::Attribute ? "Attribute" : "Element", {}, arguments);
}

std::string EnumerationRow(const Field& field, const std::string& member) {
    Texts arguments = {Literal(field.name), Literal(field.className)};
    if (!field.loadText.empty()) {
        arguments.push_back(Literal(field.loadText));
    }
    return Row("EnumElement", {member}, arguments);
}

std::string ListRow(const Field& field, const std::string& scope) {
    const Texts operations = {scope + "Add" + field.name, scope + "Clear" + field.name};
    const std::string list = scope + "m_" + field.name + "List";
    const std::string map = scope + "m_Map" + field.name + "List";
    const std::string name = Literal(field.name);
    const std::string className = Literal(field.className);
    Texts typed = {field.className};
    if (field.form == Form::KeyedList && field.value == Value::Container) {
        typed.push_back("&" + field.className + "::Get" + field.key);
    }
    typed.insert(typed.end(), operations.begin(), operations.end());

    if (field.form == Form::KeyedList && field.value == Value::Container) {
        return Row("KeyedList", typed, {name, className, Literal(field.key), map, list});
    }
    if (field.form == Form::KeyedList) {
        return Row("KeyedStrings", operations,
                   {name, Literal(field.key), field.numberedKeys ? "true" : "false", map, list});
    }
    if (field.value == Value::String) {
        return Row("PlainStrings", operations, {name, list});
    }
    return Row(field.value == Value::Container ? "PlainList" : "PlainEnums", typed, {name, className, list});
}

} // namespace

std::string WriteRow(const Container& container, const Field& field) {
    const std::string scope = "&" + container.name + "::";
    const std::string member = scope + "m_" + field.name;
    if (field.IsList()) {
        return ListRow(field, scope);
    }
    if (field.form == Form::Child) {
        return Row("Child", {member}, {Literal(field.name), Literal(field.className)});
    }
    return field.value == Value::Enumeration ? EnumerationRow(field, member) : ScalarRow(field, member);
}

} // namespace Generator
