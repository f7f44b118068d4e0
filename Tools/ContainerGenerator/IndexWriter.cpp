#include "CodeText.h"
#include "Writers.h"

#include <algorithm>

namespace Generator {

std::string WriteUmbrella(const Model& model) {
    std::vector<std::string> headers = {"FrameworkDataContainersEnums"};
    for (const Container& container : model.containers) {
        headers.push_back(container.name);
    }
    std::sort(headers.begin(), headers.end());

    CodeText code;
    code.Line(GeneratedMark("the schemas"));
    code.Line("#pragma once");
    code.Line();
    code.Line("// Every container and enumeration class.");
    for (const std::string& header : headers) {
        code.Line("#include \"FrameworkDataContainers/" + header + ".h\"");
    }
    return code.Text();
}

std::string WriteIndexHeader() {
    CodeText code;
    code.Line(GeneratedMark("the schemas"));
    code.Line("#pragma once");
    code.Line();
    code.Line("#include <span>");
    code.Line();
    code.Line("namespace Framework {");
    code.Line();
    code.Line("struct FieldTable;");
    code.Line("struct VocabularyTable;");
    code.Line();
    code.Line("/// The tables of all classes. For the library's own use; both sorted by class name, byte by byte.");
    code.Line("struct FieldTableIndex {");
    code.Indent();
    code.Line("static std::span<const FieldTable* const> Tables();");
    code.Line("static std::span<const VocabularyTable> Vocabularies();");
    code.Line();
    code.Line("template <typename Container> static constexpr const FieldTable* Of() { return &Container::s_Table; }");
    code.Outdent();
    code.Line("};");
    code.Line();
    code.Line("} // namespace Framework");
    return code.Text();
}

namespace {

void WriteVocabularies(CodeText& code, const Model& model) {
    code.Line();
    code.Line("std::span<const VocabularyTable> FieldTableIndex::Vocabularies() {");
    code.Indent();
    if (model.vocabularies.empty()) {
        code.Line("return {};");
    } else {
        code.Line("static constexpr VocabularyTable tables[] = {");
        code.Indent();
        for (const Vocabulary& vocabulary : model.vocabularies) {
            code.Line("VocabularyOf<" + vocabulary.name + ">(" + Literal(vocabulary.name) + "),");
        }
        code.Outdent();
        code.Line("};");
        code.Line("return tables;");
    }
    code.Outdent();
    code.Line("}");
}

} // namespace

std::string WriteIndexSource(const Model& model) {
    CodeText code;
    code.Line(GeneratedMark("the schemas"));
    code.Line("#include \"FrameworkDataContainers/FieldTableIndex.h\"");
    code.Line();
    code.Line("#include \"Framework/FrameworkDataContainers/Walks/VocabularyTable.h\"");
    code.Line("#include \"FrameworkDataContainers/FrameworkDataContainers.h\"");
    code.Line();
    code.Line("namespace Framework {");
    code.Line();
    code.Line("std::span<const FieldTable* const> FieldTableIndex::Tables() {");
    code.Indent();
    code.Line("static constexpr const FieldTable* tables[] = {");
    code.Indent();
    for (const Container& container : model.containers) {
        code.Line("&" + container.name + "::s_Table,");
    }
    code.Outdent();
    code.Line("};");
    code.Line("return tables;");
    code.Outdent();
    code.Line("}");
    WriteVocabularies(code, model);
    code.Line();
    code.Line("} // namespace Framework");
    return code.Text();
}

} // namespace Generator
