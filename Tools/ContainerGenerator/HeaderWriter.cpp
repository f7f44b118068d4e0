#include "CodeText.h"
#include "FixedOverrides.h"
#include "Operations.h"
#include "Writers.h"

#include <algorithm>
#include <set>

namespace Generator {

namespace {

bool NeedsEnumerations(const Container& container) {
    return std::any_of(container.fields.begin(), container.fields.end(),
                       [](const Field& field) { return field.value == Value::Enumeration; });
}

void WriteIncludes(CodeText& code, const Container& container) {
    std::set<std::string> includes;
    includes.insert(container.parent.empty() ? "Framework/TypedDataContainer.h"
                                             : "FrameworkDataContainers/" + container.parent + ".h");
    if (NeedsEnumerations(container)) {
        includes.insert("FrameworkDataContainers/FrameworkDataContainersEnums.h");
    }
    for (const std::string& include : includes) {
        code.Line("#include \"" + include + "\"");
    }
    code.Line();
}

void WriteForwardDeclarations(CodeText& code, const Container& container) {
    code.Line("namespace Framework {");
    code.Line("struct FieldTableIndex;");
    code.Line("}");
    code.Line();
    std::set<std::string> classes;
    for (const Field& field : container.fields) {
        if (field.value == Value::Container && field.className != container.name) {
            classes.insert(field.className);
        }
    }
    for (const std::string& name : classes) {
        code.Line("class " + name + ";");
    }
    if (!classes.empty()) {
        code.Line();
    }
}

void WriteClassComment(CodeText& code, const Container& container) {
    code.Comment("///", container.documentation);
    if (!container.documentation.empty()) {
        code.Line("///");
    }
    code.Comment("///",
                 "Element `" + container.elementName + "`" +
                     (container.isRoot ? ", the root of its document." : " unless its parent names it otherwise."));
}

std::vector<std::string> Texts(const std::vector<Parameter>& parameters) {
    std::vector<std::string> texts;
    texts.reserve(parameters.size());
    for (const Parameter& parameter : parameters) {
        texts.push_back(parameter.type + " " + parameter.name);
    }
    return texts;
}

void WriteOverrides(CodeText& code, const Container& container) {
    code.Line("zelString GetBaseType() override;");
    for (const FixedOverride& operation : FixedOverrides()) {
        code.Call(operation.result + " " + operation.name, operation.parameters, " override;");
    }
    if (!container.parent.empty()) {
        code.Line("bool AutoFillTypeInfo() override;");
    }
    code.Line();
}

void WriteAddedOperations(CodeText& code, const Container& container) {
    const std::vector<Operation> operations = AddedOperations(container);
    if (operations.empty()) {
        return;
    }
    code.Line("// The order is that of the virtual table.");
    for (const Operation& operation : operations) {
        code.Call("virtual " + operation.result + " " + operation.name, Texts(operation.parameters), ";");
    }
    code.Line();
}

/// The small ones first: they come to stand in what the base leaves free, and close to each other.
int RankOf(const Member& member) {
    return member.type == "bool" ? 0 : member.type == "int" ? 1 : 2;
}

void WriteMembers(CodeText& code, const Container& container) {
    std::vector<Member> members;
    for (const Field& field : container.fields) {
        const std::vector<Member> ofField = Members(field);
        members.insert(members.end(), ofField.begin(), ofField.end());
    }
    std::stable_sort(members.begin(), members.end(),
                     [](const Member& a, const Member& b) { return RankOf(a) < RankOf(b); });
    code.Line("bool m_bAutoFillTypeInfo = false;");
    for (const Member& member : members) {
        code.Line(member.type + " " + member.name + member.initializer + ";");
    }
    code.Line();
    code.Line("static const Framework::FieldTable s_Table;");
    code.Line("friend struct Framework::FieldTableIndex;");
}

} // namespace

std::string WriteHeader(const Container& container) {
    CodeText code;
    code.Line(GeneratedMark(container.file));
    code.Line("#pragma once");
    code.Line();
    WriteIncludes(code, container);
    WriteForwardDeclarations(code, container);
    WriteClassComment(code, container);
    code.Line("class FRAMEWORK_API " + container.name + " : public " + container.Base() + " {");
    code.Line("public:");
    code.Indent();
    code.Line("explicit " + container.name + "(bool bBuildFromScratch);");
    code.Line("~" + container.name + "() override;");
    code.Line();
    WriteOverrides(code, container);
    WriteAddedOperations(code, container);
    code.Line("bool GetAutoFillTypeInfo() const { return m_bAutoFillTypeInfo; }");
    code.Line("void SetAutoFillTypeInfo(bool bNew) { m_bAutoFillTypeInfo = bNew; }");
    code.Outdent();
    code.Line();
    code.Line("protected:");
    code.Indent();
    WriteMembers(code, container);
    code.Outdent();
    if (!container.fields.empty()) {
        code.Line();
        code.Line("private:");
        code.Indent();
        code.Line("static const Framework::FieldRow s_Rows[];");
        code.Outdent();
    }
    code.Line("};");
    return code.Text();
}

} // namespace Generator
