#include "CodeText.h"
#include "Writers.h"

namespace Generator {

namespace {

void WriteEnumerators(CodeText& code, const Vocabulary& vocabulary) {
    code.Line("enum ContainedValues : int {");
    code.Indent();
    code.Line("VALUE_UNKNOWN = -1,");
    for (const Word& word : vocabulary.words) {
        code.Line(word.text + " = " + std::to_string(word.number) + ",");
    }
    code.Line("VALUE_END_OF_LIST = " + std::to_string(vocabulary.words.back().number + 1) + ",");
    code.Outdent();
    code.Line("};");
}

void WriteAssignment(CodeText& code, const std::string& name, const std::string& parameter, const std::string& value) {
    code.Line(name + "& operator=(" + parameter + ") noexcept {");
    code.Indent();
    code.Line("m_Value = " + value + ";");
    code.Line("return *this;");
    code.Outdent();
    code.Line("}");
}

void WriteClass(CodeText& code, const Vocabulary& vocabulary) {
    const std::string& name = vocabulary.name;
    code.Line();
    code.Comment("///", vocabulary.documentation);
    code.Line("class FRAMEWORK_API " + name + " : public TypedDataEnumeration {");
    code.Line("public:");
    code.Indent();
    WriteEnumerators(code, vocabulary);
    code.Line();
    code.Line(name + "() noexcept = default;");
    code.Line(name + "(const int& iValue) noexcept : m_Value(iValue) {}");
    code.Line(name + "(const ContainedValues& eValue) noexcept : m_Value(eValue) {}");
    code.Line(name + "(LPCTSTR szValue);");
    code.Line(name + "(const " + name + "& other) noexcept = default;");
    code.Line("~" + name + "() override;");
    code.Line();
    code.Line("bool operator==(LPCTSTR _Cmp) const override;");
    code.Line("bool operator==(const " + name + "& other) const noexcept { return m_Value == other.m_Value; }");
    code.Line("bool operator==(const int& iValue) const noexcept { return m_Value == iValue; }");
    code.Line("bool operator==(const ContainedValues& eValue) const noexcept { return m_Value == eValue; }");
    code.Line(name + "& operator=(LPCTSTR sVal) override;");
    code.Line(name + "& operator=(const " + name + "& other) noexcept = default;");
    WriteAssignment(code, name, "const int& iValue", "iValue");
    WriteAssignment(code, name, "const ContainedValues& eValue", "eValue");
    code.Line("zelString StringOf() const override;");
    code.Line();
    code.Line("int Value() const noexcept { return m_Value; }");
    code.Line("operator const int() const noexcept { return m_Value; }");
    code.Line("operator const ContainedValues() const noexcept { return static_cast<ContainedValues>(m_Value); }");
    code.Line();
    code.Line("/// Appends every word, in order.");
    code.Line("static void GetContainedValueList(std::vector<zelString>& pList);");
    code.Outdent();
    code.Line();
    code.Line("protected:");
    code.Indent();
    code.Line("void AssignValue(LPCTSTR szVal) override;");
    code.Line();
    code.Line("int m_Value = VALUE_UNKNOWN;");
    code.Outdent();
    code.Line("};");
}

void WriteFunction(CodeText& code, const std::string& head, const std::vector<std::string>& statements) {
    code.Line();
    code.Line(head + (statements.empty() ? " {}" : " {"));
    if (statements.empty()) {
        return;
    }
    code.Indent();
    for (const std::string& statement : statements) {
        code.Line(statement);
    }
    code.Outdent();
    code.Line("}");
}

std::string WordTable(const Vocabulary& vocabulary) {
    return "k" + vocabulary.name + "Words";
}

void WriteWords(CodeText& code, const Vocabulary& vocabulary) {
    code.Line();
    code.Line("constexpr Framework::EnumerationWord " + WordTable(vocabulary) + "[] = {");
    code.Indent();
    for (const Word& word : vocabulary.words) {
        code.Line("{" + Literal(word.text) + ", " + vocabulary.name + "::" + word.text + "},");
    }
    code.Outdent();
    code.Line("};");
}

void WriteBodies(CodeText& code, const Vocabulary& vocabulary) {
    const std::string& name = vocabulary.name;
    const std::string words = WordTable(vocabulary);
    WriteFunction(code, name + "::" + name + "(LPCTSTR szValue)", {name + "::AssignValue(szValue);"});
    WriteFunction(code, name + "::~" + name + "()", {});
    WriteFunction(code, "bool " + name + "::operator==(LPCTSTR _Cmp) const",
                  {"return Framework::IsWordOf(" + words + ", m_Value, _Cmp);"});
    WriteFunction(code, name + "& " + name + "::operator=(LPCTSTR sVal)", {"AssignValue(sVal);", "return *this;"});
    WriteFunction(code, "zelString " + name + "::StringOf() const",
                  {"return Framework::WordOf(" + words + ", m_Value);"});
    WriteFunction(code, "void " + name + "::GetContainedValueList(std::vector<zelString>& pList)",
                  {"Framework::AppendWords(" + words + ", pList);"});
    WriteFunction(code, "void " + name + "::AssignValue(LPCTSTR szVal)",
                  {"m_Value = Framework::NumberOf(" + words + ", szVal);"});
}

} // namespace

std::string WriteEnumHeader(const Model& model) {
    CodeText code;
    code.Line(GeneratedMark("the schemas"));
    code.Line("#pragma once");
    code.Line();
    code.Line("#include \"Framework/TypedDataEnumeration.h\"");
    code.Line();
    code.Line("#include <vector>");
    code.Line();
    code.Line("// The enumeration classes. A default constructed object is VALUE_UNKNOWN; numbers are taken unchecked, "
              "and one outside");
    code.Line("// of the vocabulary has the empty text.");
    code.Line();
    // Callers name these conversions, and a function of another type would be another name.
    code.Line("#pragma GCC diagnostic push");
    code.Line("#pragma GCC diagnostic ignored \"-Wignored-qualifiers\" // conversions to const types");
    for (const Vocabulary& vocabulary : model.vocabularies) {
        WriteClass(code, vocabulary);
    }
    code.Line();
    code.Line("#pragma GCC diagnostic pop");
    return code.Text();
}

std::string WriteEnumSource(const Model& model) {
    CodeText code;
    code.Line(GeneratedMark("the schemas"));
    code.Line("#include \"FrameworkDataContainers/FrameworkDataContainersEnums.h\"");
    code.Line();
    code.Line("#include \"Framework/XMLSupport/EnumerationWords.h\"");
    code.Line();
    code.Line("namespace {");
    code.Line();
    // The formatter would set words of like length in columns.
    code.Line("// clang-format off");
    for (const Vocabulary& vocabulary : model.vocabularies) {
        WriteWords(code, vocabulary);
    }
    code.Line("// clang-format on");
    code.Line();
    code.Line("} // namespace");
    for (const Vocabulary& vocabulary : model.vocabularies) {
        WriteBodies(code, vocabulary);
    }
    return code.Text();
}

} // namespace Generator
