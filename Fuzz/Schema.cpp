#include <algorithm>
#include <string>

#include "Framework/XMLSupport/ParseError.h"
#include "ModelBuilder.h"
#include "SchemaReader.h"
#include "Target.h"
#include "Trees.h"
#include "Writers.h"

namespace Fuzz {

namespace {

constexpr std::string_view kHead = "==== ";

struct File {
    std::string name;
    std::string_view text;
};

std::vector<File> FilesOf(std::string_view input) {
    std::vector<File> files;
    while (!input.empty()) {
        File& file = files.emplace_back();
        file.name = "Schema.xsd";
        if (input.starts_with(kHead)) {
            const std::size_t line = std::min(input.find('\n'), input.size());
            file.name = input.substr(kHead.size(), line - kHead.size());
            file.name.erase(std::min(file.name.find('\0'), file.name.size())); // no file is named so
            input.remove_prefix(std::min(line + 1, input.size()));
        }
        const std::size_t end = input.find("\n" + std::string(kHead));
        file.text = input.substr(0, end);
        input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    }
    return files;
}

/// What the reader and the checks let through can be generated.
void ExpectGenerates(const Generator::Model& model) {
    const std::string listing = WriteListing(model);
    std::vector<std::string> texts{WriteEnumHeader(model), WriteEnumSource(model), WriteUmbrella(model),
                                   WriteIndexSource(model), listing};
    for (const Generator::Container& container : model.containers) {
        texts.push_back(WriteHeader(container));
        texts.push_back(WriteSource(container));
        Expect(listing.find("class " + container.name + "\n") != std::string::npos, "the listing lacks a class",
               container.name);
    }
    for (const std::string& text : texts) {
        Expect(!text.empty() && text.back() == '\n', "a generated file has no end");
        Expect(text.find('\0') == std::string::npos, "a generated file has a NUL character");
    }
}

} // namespace

std::vector<std::string_view> DocumentsOfSchema(std::string_view input) {
    std::vector<std::string_view> documents;
    for (const File& file : FilesOf(input)) {
        documents.push_back(file.text);
    }
    return documents;
}

void Schema(std::string_view input) {
    std::vector<Generator::SchemaFile> schemas;
    std::string name;
    try {
        for (const File& file : FilesOf(input)) {
            name = file.name;
            schemas.push_back(Generator::ReadSchema(std::string(file.text), file.name));
        }
        name.clear();
        ExpectGenerates(Generator::BuildModel(schemas));
    } catch (const Framework::ParseError& error) {
        ExpectNamesPlace(error.what(), name.empty() ? error.SourceName() : name);
    }
}

} // namespace Fuzz
