#include "ModelBuilder.h"
#include "OutputFolder.h"
#include "SchemaReader.h"
#include "Writers.h"

#include <exception>
#include <iostream>
#include <string_view>

namespace {

constexpr std::string_view kUsage =
    "Usage: ContainerGenerator SCHEMA_DIR OUTPUT_DIR [--check]\n"
    "\n"
    "Makes the container classes of all .xsd files in SCHEMA_DIR. Files in OUTPUT_DIR that are right already are not\n"
    "touched, generated ones that are no longer made are removed, others are reported and left alone.\n"
    "\n"
    "  --check   writes nothing and reports every difference\n"
    "\n"
    "Exit codes: 0 done, 1 the schema is refused or --check found a difference, 2 wrong usage.\n";

Generator::FileTexts WriteAll(const Generator::Model& model) {
    Generator::FileTexts files;
    for (const Generator::Container& container : model.containers) {
        files[container.name + ".h"] = WriteHeader(container);
        files[container.name + ".cpp"] = WriteSource(container);
    }
    files["FrameworkDataContainersEnums.h"] = WriteEnumHeader(model);
    files["FrameworkDataContainersEnums.cpp"] = WriteEnumSource(model);
    files["FrameworkDataContainers.h"] = WriteUmbrella(model);
    files["FieldTableIndex.h"] = Generator::WriteIndexHeader();
    files["FieldTableIndex.cpp"] = WriteIndexSource(model);
    files["FieldTables.txt"] = WriteListing(model);
    files["README.md"] = Generator::WriteReadme();
    return files;
}

void Report(std::string_view what, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        std::cerr << what << ' ' << name << '\n';
    }
}

int Check(const Generator::FolderDifference& difference, const std::string& command) {
    Report("missing:", difference.missing);
    Report("differs:", difference.changed);
    Report("no longer generated:", difference.left);
    Report("not generated:", difference.strays);
    if (difference.IsEmpty()) {
        return 0;
    }
    std::cerr << "mend with: " << command << '\n';
    return 1;
}

int Generate(const std::string& program, const std::string& schemas, const std::string& output, bool isCheck) {
    const Generator::Model model = Generator::BuildModel(Generator::ReadSchemaFolder(schemas));
    if (model.containers.empty()) {
        std::cerr << schemas << ": no container class is declared here\n";
        return 1;
    }
    const Generator::FileTexts files = WriteAll(model);
    const Generator::FolderDifference difference = Generator::CompareFolder(output, files);
    if (isCheck) {
        return Check(difference, program + " " + schemas + " " + output);
    }
    Generator::MendFolder(output, files, difference);
    Report("not generated, left alone:", difference.strays);
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::vector<std::string> words(arguments, arguments + argumentCount);
    const bool isCheck = words.size() == 4 && words[3] == "--check";
    if (words.size() != 3 && !isCheck) {
        std::cerr << kUsage;
        return 2;
    }
    try {
        return Generate(words[0], words[1], words[2], isCheck);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
