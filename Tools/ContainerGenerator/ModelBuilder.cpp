#include "ModelBuilder.h"

#include "CppNames.h"
#include "FieldBuilder.h"
#include "InheritanceChecks.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace Generator {

namespace {

constexpr std::string_view kMergeControl = "MergeControl";

int ReadNumber(const Written& number) {
    int value = 0;
    const char* const end = number.text.data() + number.text.size();
    const auto [stop, error] = std::from_chars(number.text.data(), end, value);
    if (error != std::errc() || stop != end || value < 0 || value == std::numeric_limits<int>::max()) {
        Refuse(number.origin, "'" + number.text + "' is no number of a word, expected 0 or more in decimal digits");
    }
    return value;
}

Vocabulary BuildVocabulary(const VocabularyDeclaration& declaration) {
    Vocabulary vocabulary{declaration.name.text, declaration.name.origin.file, declaration.documentation, {}};
    if (declaration.words.empty() || !declaration.words.front().word.text.empty()) {
        Refuse(declaration.name.origin, "vocabulary '" + vocabulary.name +
                                            "' does not begin with the empty word, which an unset field is written as");
    }
    int next = declaration.first ? ReadNumber(*declaration.first) : 1;
    for (std::size_t position = 1; position < declaration.words.size(); ++position) {
        const Written& word = declaration.words[position].word;
        const std::optional<Written>& number = declaration.words[position].number;
        DemandIdentifier(word, "word");
        const auto isSame = [&](const Word& earlier) { return earlier.text == word.text; };
        if (word.text == "VALUE_UNKNOWN" || word.text == "VALUE_END_OF_LIST" ||
            std::any_of(vocabulary.words.begin(), vocabulary.words.end(), isSame)) {
            Refuse(word.origin, "word '" + word.text + "' stands already in '" + vocabulary.name + "'");
        }
        const int value = number ? ReadNumber(*number) : next;
        if (value < next) {
            Refuse(number->origin, "number " + number->text + " of '" + word.text + "' is taken, expected " +
                                       std::to_string(next) + " or more");
        }
        vocabulary.words.push_back({word.text, value});
        next = value + 1;
    }
    if (vocabulary.words.empty()) {
        Refuse(declaration.name.origin, "vocabulary '" + vocabulary.name + "' has no words");
    }
    return vocabulary;
}

void CheckBase(const ContainerDeclaration& declaration, const TypeIndex& types) {
    if (declaration.parent) {
        if (declaration.base) {
            Refuse(declaration.base->origin, "fdc:base goes only with a type that extends none");
        }
        if (!std::holds_alternative<const ContainerDeclaration*>(types.Find(*declaration.parent))) {
            Refuse(declaration.parent->origin,
                   "'" + declaration.parent->text + "' is no container, expected one to extend");
        }
    } else if (declaration.base && declaration.base->text != "StructuralConfigLoader") {
        Refuse(declaration.base->origin,
               "fdc:base=\"" + declaration.base->text + "\", expected \"StructuralConfigLoader\", or no fdc:base");
    }
}

/// Documents may carry merge control in every element; an extension has it from its parent.
void CheckMergeControl(const ContainerDeclaration& declaration, const TypeIndex& types) {
    const std::string name = "'" + declaration.name.text + "'";
    if (!declaration.mergeControl) {
        if (!declaration.parent) {
            Refuse(declaration.name.origin,
                   name + " does not end in the attribute group " + std::string(kMergeControl));
        }
        return;
    }
    if (declaration.parent) {
        Refuse(declaration.mergeControl->origin, name + " has the attribute group from the type that it extends");
    }
    if (declaration.mergeControl->text != kMergeControl) {
        Refuse(declaration.mergeControl->origin,
               "attribute group '" + declaration.mergeControl->text + "', expected " + std::string(kMergeControl));
    }
    types.FindGroup(*declaration.mergeControl);
}

Container BuildContainer(const ContainerDeclaration& declaration, const TypeIndex& types) {
    CheckBase(declaration, types);
    DemandIdentifier(declaration.element, "element");
    Container container;
    container.name = declaration.name.text;
    container.file = declaration.name.origin.file;
    container.documentation = declaration.documentation;
    container.elementName = declaration.element.text;
    container.parent = declaration.parent ? declaration.parent->text : std::string();
    container.isStructuralConfigLoader = declaration.base.has_value();
    for (const FieldDeclaration& field : declaration.fields) {
        container.fields.push_back(BuildField(field, types));
    }
    CheckMergeControl(declaration, types);
    return container;
}

void MarkRoot(const RootDeclaration& root, const TypeIndex& types, Model& model) {
    if (!std::holds_alternative<const ContainerDeclaration*>(types.Find(root.type))) {
        Refuse(root.type.origin, "'" + root.type.text + "' is no container, expected one as the type of a root");
    }
    const auto isNamed = [&](const Container& container) { return container.name == root.type.text; };
    Container& container = *std::find_if(model.containers.begin(), model.containers.end(), isNamed);
    if (container.elementName != root.name.text) {
        Refuse(root.name.origin, "root '" + root.name.text + "' of type '" + container.name +
                                     "', which has fdc:element=\"" + container.elementName +
                                     "\", expected the same name");
    }
    const auto isTaken = [&](const Container& other) { return other.isRoot && other.elementName == root.name.text; };
    if (std::any_of(model.containers.begin(), model.containers.end(), isTaken)) {
        Refuse(root.name.origin, "root '" + root.name.text + "' stands already");
    }
    container.isRoot = true;
}

} // namespace

Model BuildModel(const std::vector<SchemaFile>& files) {
    const TypeIndex types(files);
    Model model;
    std::vector<const ContainerDeclaration*> declarations;
    for (const SchemaFile& file : files) {
        for (const VocabularyDeclaration& vocabulary : file.vocabularies) {
            model.vocabularies.push_back(BuildVocabulary(vocabulary));
        }
        for (const ContainerDeclaration& container : file.containers) {
            declarations.push_back(&container);
        }
    }
    const auto byName = [](const auto& left, const auto& right) { return left.name < right.name; };
    std::sort(model.vocabularies.begin(), model.vocabularies.end(), byName);
    for (const ContainerDeclaration* declaration : declarations) {
        model.containers.push_back(BuildContainer(*declaration, types));
    }
    CheckInheritance(model, declarations);
    std::sort(model.containers.begin(), model.containers.end(), byName);
    for (const SchemaFile& file : files) {
        for (const RootDeclaration& root : file.roots) {
            MarkRoot(root, types, model);
        }
    }
    return model;
}

} // namespace Generator
