#include "CodeText.h"
#include "FixedOverrides.h"
#include "Operations.h"
#include "RowWriter.h"
#include "Writers.h"

#include <algorithm>
#include <set>

namespace Generator {

namespace {

void WriteIncludes(CodeText& code, const Container& container) {
    code.Line("#include \"FrameworkDataContainers/" + container.name + ".h\"");
    code.Line();
    std::set<std::string> includes = {"Framework/FrameworkDataContainers/Walks/Lists.h",
                                      "Framework/FrameworkDataContainers/Walks/Walks.h"};
    bool movesTexts = false;
    for (const Field& field : container.fields) {
        if (field.value == Value::Container && field.className != container.name) {
            includes.insert("FrameworkDataContainers/" + field.className + ".h");
        }
        movesTexts = movesTexts || (field.form == Form::PlainList && field.value == Value::String);
    }
    for (const std::string& include : includes) {
        code.Line("#include \"" + include + "\"");
    }
    code.Line();
    if (movesTexts) {
        code.Line("#include <utility>");
        code.Line();
    }
}

/// A function definition with a body of statements.
void WriteFunction(CodeText& code, const std::string& head, const std::vector<std::string>& parameters,
                   const std::vector<std::string>& body) {
    code.Line();
    code.Call(head, parameters, body.empty() ? " {}" : " {");
    if (body.empty()) {
        return;
    }
    code.Indent();
    for (const std::string& statement : body) {
        code.Statement(statement);
    }
    code.Outdent();
    code.Line("}");
}

void WriteLife(CodeText& code, const Container& container) {
    const std::string& name = container.name;
    code.Line();
    code.Constructor(name + "::" + name + "(bool bBuildFromScratch)", container.Base() + "(bBuildFromScratch)");
    code.Indent();
    code.Line("Framework::NameByClass(*this, s_Table);");
    code.Outdent();
    code.Line("}");

    // In the order of the fields: children and lists may hang together.
    std::vector<std::string> ends;
    for (const Field& field : container.fields) {
        if (field.form == Form::Child) {
            ends.push_back("delete m_" + field.name + ";");
        } else if (field.IsList()) {
            ends.push_back(name + "::Clear" + field.name + "();");
        }
    }
    WriteFunction(code, name + "::~" + name, {}, ends);
}

void WriteOverrides(CodeText& code, const Container& container) {
    const std::string scope = container.name + "::";
    WriteFunction(code, "zelString " + scope + "GetBaseType", {}, {"return " + Literal(container.name) + ";"});
    for (const FixedOverride& operation : FixedOverrides()) {
        WriteFunction(code, operation.result + " " + scope + operation.name, operation.parameters, {operation.body});
    }
    if (!container.parent.empty()) {
        WriteFunction(code, "bool " + scope + "AutoFillTypeInfo", {}, {"return true;"});
    }
}

void WriteAddedOperations(CodeText& code, const Container& container) {
    for (const Operation& operation : AddedOperations(container)) {
        std::vector<std::string> parameters;
        for (const Parameter& parameter : operation.parameters) {
            parameters.push_back(parameter.type + " " + parameter.name);
        }
        WriteFunction(code, operation.result + " " + container.name + "::" + operation.name, parameters,
                      {operation.body});
    }
}

void WriteTable(CodeText& code, const Container& container) {
    const std::string& name = container.name;
    // One row a line reads as a table; the formatter would break rows wherever they pass the column limit.
    code.Line("// clang-format off");
    if (!container.fields.empty()) {
        code.Line("constinit const Framework::FieldRow " + name + "::s_Rows[] = {");
        code.Indent();
        for (const Field& field : container.fields) {
            code.Line(WriteRow(container, field) + ",");
        }
        code.Outdent();
        code.Line("};");
        code.Line();
    }
    code.Line("constinit const Framework::FieldTable " + name + "::s_Table = {");
    code.Indent();
    code.Line(".className = " + Literal(name) + ",");
    code.Line(".elementName = " + Literal(container.elementName) + ",");
    code.Line(".parent = " + (container.parent.empty() ? "nullptr" : "&" + container.parent + "::s_Table") + ",");
    code.Line(std::string(".isStructuralConfigLoader = ") + (container.isStructuralConfigLoader ? "true," : "false,"));
    code.Line(std::string(".isRoot = ") + (container.isRoot ? "true," : "false,"));
    code.Line(std::string(".rows = ") + (container.fields.empty() ? "{}," : "s_Rows,"));
    code.Line(".create = &Framework::CreateContainer<" + name + ">,");
    code.Line(".type = &typeid(" + name + "),");
    code.Line(".autoFill = Framework::ToBase(&" + name + "::m_bAutoFillTypeInfo),");
    code.Outdent();
    code.Line("};");
    code.Line("// clang-format on");
}

} // namespace

std::string WriteSource(const Container& container) {
    CodeText code;
    code.Line(GeneratedMark(container.file));
    WriteIncludes(code, container);
    WriteTable(code, container);
    WriteLife(code, container);
    WriteOverrides(code, container);
    WriteAddedOperations(code, container);
    return code.Text();
}

} // namespace Generator
