#include "Operations.h"

#include "CodeText.h"

namespace Generator {

namespace {

const Parameter kIndex = {"int", "Index"};
const Parameter kKey = {"const zelString&", "sName"};
const Parameter kWrapper = {"XMLDataWrapper*", "pData"};
const Parameter kNode = {"XalanNode*", "spNode"};

/// The names that the statements of one field are made of.
struct Names {
    Names(const Field& field, std::size_t row)
        : name(field.name), type(field.className), list("m_" + field.name + "List"), map("m_Map" + field.name + "List"),
          tableRow("s_Rows[" + std::to_string(row) + "]") {}

    std::string name;
    std::string type;
    std::string list;
    std::string map;
    std::string tableRow;

    std::string Entry(const std::string& expression) const {
        return "return static_cast<" + type + "*>(" + expression + ");";
    }
    Operation Length() const {
        return {"int", "Get" + name + "Length", {}, "return Framework::ListLength(" + list + ");"};
    }
};

std::string ScalarType(Value value) {
    switch (value) {
    case Value::Bool:
        return "bool";
    case Value::Int:
        return "int";
    case Value::Double:
        return "double";
    default:
        return "zelString";
    }
}

std::string FieldType(const Field& field) {
    if (field.form == Form::Child) {
        return field.className + "*";
    }
    return field.value == Value::Enumeration ? field.className : ScalarType(field.value);
}

std::vector<Operation> SingleAccessors(const Field& field) {
    const std::string type = FieldType(field);
    const std::string member = "m_" + field.name;
    const std::string store =
        field.form == Form::Child ? "Framework::ReplaceChild(" + member + ", szNew);" : member + " = szNew;";
    const std::string argument = type == "zelString" ? "LPCTSTR" : type;
    return {{type, "Get" + field.name, {}, "return " + member + ";"},
            {"void", "Set" + field.name, {{argument, "szNew"}}, store}};
}

std::vector<Operation> KeyedContainerAccessors(const Names& of) {
    const Parameter entry = {of.type + "*", "szNew"};
    const Parameter feature = {"const zelString&", "sFeatureId"};
    return {
        of.Length(),
        {of.type + "*", "Get" + of.name, {kIndex}, of.Entry("Framework::EntryAt(" + of.list + ", Index)")},
        {of.type + "*", "Get" + of.name, {kKey}, of.Entry("Framework::EntryByKey(" + of.map + ", sName)")},
        {"void",
         "AddNew" + of.name,
         {entry, kKey},
         "Framework::AddNewKeyed(" + of.map + ", " + of.list + ", szNew, sName);"},
        {"void",
         "Remove" + of.name,
         {kKey, feature},
         "Framework::RemoveKeyed(*this, " + of.tableRow + ", sName, sFeatureId);"},
    };
}

std::vector<Operation> KeyedTextAccessors(const Names& of) {
    return {
        of.Length(),
        {"zelString", "Get" + of.name, {kIndex}, "return Framework::TextAt(" + of.list + ", Index);"},
        {"zelString", "Get" + of.name, {kKey}, "return Framework::TextByKey(" + of.map + ", sName);"},
    };
}

std::vector<Operation> PlainContainerAccessors(const Names& of) {
    return {
        of.Length(),
        {of.type + "*", "Get" + of.name, {kIndex}, of.Entry("Framework::GrowTo(*this, " + of.tableRow + ", Index)")},
        {"void", "AddNew" + of.name, {{of.type + "*", "szNew"}}, "Framework::AddNewPlain(" + of.list + ", szNew);"},
    };
}

std::vector<Operation> PlainTextAccessors(const Names& of) {
    return {
        of.Length(),
        {"zelString", "Get" + of.name, {kIndex}, "return Framework::GrowTo(" + of.list + ", Index);"},
        {"void", "AddNew" + of.name, {{"LPCTSTR", "szNew"}}, of.list + ".emplace_back(szNew);"},
    };
}

std::vector<Operation> PlainWordAccessors(const Names& of) {
    return {
        of.Length(),
        {of.type + "*",
         "Get" + of.name,
         {kIndex},
         of.Entry("Framework::GrowTo(" + of.list + ", " + of.tableRow + ", Index)")},
        {"void", "AddNew" + of.name, {{of.type + "*", "szNew"}}, "Framework::AddNewWord(" + of.list + ", szNew);"},
    };
}

Operation AddOf(const Field& field, const Names& of) {
    const std::string add = "Add" + of.name;
    const std::string object = "(*this, " + of.tableRow + ", ";
    if (field.form == Form::KeyedList && field.value == Value::Container) {
        return {
            "void", add, {kWrapper, kNode, kKey}, "Framework::AddKeyed" + object + "pData, spNode, sName, __LINE__);"};
    }
    if (field.form == Form::KeyedList) {
        return {"void",
                add,
                {{"const zelString&", "pData"}, kKey},
                "Framework::AddKeyedText" + object + "pData, sName, __LINE__);"};
    }
    if (field.value == Value::Container) {
        return {"void", add, {kWrapper, kNode}, "Framework::AddPlain" + object + "pData, spNode);"};
    }
    if (field.value == Value::Enumeration) {
        return {
            "void", add, {{"zelString", "pData"}}, "Framework::AddWord(" + of.list + ", " + of.tableRow + ", pData);"};
    }
    return {"void", add, {{"zelString", "pData"}}, of.list + ".push_back(std::move(pData));"};
}

std::string ClearBody(const Field& field, const Names& of) {
    if (field.form == Form::KeyedList) {
        const std::string function = field.value == Value::Container ? "ClearKeyed" : "ClearKeyedTexts";
        return "Framework::" + function + "(" + of.map + ", " + of.list + ");";
    }
    if (field.value == Value::Container) {
        return "Framework::ClearPlain(" + of.list + ");";
    }
    return field.value == Value::Enumeration ? "Framework::ClearWords(" + of.list + ");" : of.list + ".clear();";
}

std::string Initializer(const Field& field) {
    if (field.form == Form::Child) {
        return " = nullptr";
    }
    switch (field.value) {
    case Value::Bool:
        return field.initial.empty() ? " = false" : " = " + field.initial;
    case Value::Int:
        return field.initial.empty() ? " = 0" : " = " + IntLiteral(field.initial);
    case Value::Double:
        return " = 0.0";
    case Value::Enumeration:
        return "{0}";
    default:
        return field.initial.empty() ? "" : "{" + Literal(field.initial) + "}";
    }
}

} // namespace

std::vector<Operation> Accessors(const Field& field, std::size_t row) {
    const Names names(field, row);
    if (!field.IsList()) {
        return SingleAccessors(field);
    }
    if (field.form == Form::KeyedList) {
        return field.value == Value::Container ? KeyedContainerAccessors(names) : KeyedTextAccessors(names);
    }
    if (field.value == Value::Container) {
        return PlainContainerAccessors(names);
    }
    return field.value == Value::Enumeration ? PlainWordAccessors(names) : PlainTextAccessors(names);
}

std::vector<Operation> ListOperations(const Field& field, std::size_t row) {
    if (!field.IsList()) {
        return {};
    }
    const Names names(field, row);
    return {AddOf(field, names), {"void", "Clear" + field.name, {}, ClearBody(field, names)}};
}

std::vector<Operation> AddedOperations(const Container& container) {
    std::vector<Operation> operations;
    const auto append = [&](const std::vector<Operation>& more) {
        operations.insert(operations.end(), more.begin(), more.end());
    };
    for (std::size_t row = 0; row < container.fields.size(); ++row) {
        append(Accessors(container.fields[row], row));
    }
    if (container.parent.empty()) {
        operations.push_back({"bool", "AutoFillTypeInfo", {}, "return true;"});
    }
    for (std::size_t row = 0; row < container.fields.size(); ++row) {
        append(ListOperations(container.fields[row], row));
    }
    return operations;
}

std::vector<Member> Members(const Field& field) {
    if (!field.IsList()) {
        return {{FieldType(field), "m_" + field.name, Initializer(field)}};
    }
    const std::string listName = "m_" + field.name + "List";
    if (field.form == Form::PlainList) {
        const std::string entry = field.value == Value::Container     ? "TypedDataContainer*"
                                  : field.value == Value::Enumeration ? "TypedDataEnumeration*"
                                                                      : "zelString";
        return {{"std::vector<" + entry + ">", listName, {}}};
    }
    const std::string entry = field.value == Value::Container ? "TypedDataContainer*" : "SimpleDataContainer*";
    return {{"Zelvon::SyncMap<zelString, " + entry + ">", "m_Map" + field.name + "List", {}},
            {"std::vector<" + entry + ">", listName, {}}};
}

} // namespace Generator
