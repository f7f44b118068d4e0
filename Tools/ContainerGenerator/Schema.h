#pragma once

#include "Framework/XMLSupport/ParseError.h"

#include <optional>
#include <string>
#include <vector>

/// What the schema files say, as they say it: read, but not yet compared with each other.
namespace Generator {

struct Origin {
    std::string file; ///< name without folder, as generated files give it
    Framework::Place place;
};

[[noreturn]] inline void Refuse(const Origin& origin, const std::string& message) {
    throw Framework::ParseError(origin.file, origin.place, message);
}

/// A text of the schema, and where it stands.
struct Written {
    std::string text;
    Origin origin;
};

struct FieldDeclaration {
    bool isAttribute = false;
    bool repeated = false;
    Written name;
    Written type;
    std::optional<Written> key;
    std::optional<Written> numbered;
    std::optional<Written> cdata;
    std::optional<Written> initial;
    std::optional<Written> loadText;
};

/// A complex type: a container class.
struct ContainerDeclaration {
    Written name;
    std::string documentation;
    Written element;
    std::optional<Written> base;
    std::optional<Written> parent;
    std::optional<Written> mergeControl; ///< name of the attribute group
    std::vector<FieldDeclaration> fields;
};

/// A complex type with simple content: the text of a keyed list of strings, with its key.
struct TextDeclaration {
    Written name;
    Written key;
};

struct WordDeclaration {
    Written word;
    std::optional<Written> number;
};

/// A simple type: a vocabulary.
struct VocabularyDeclaration {
    Written name;
    std::string documentation;
    std::optional<Written> first;
    std::vector<WordDeclaration> words; ///< the empty word in front included
};

struct RootDeclaration {
    Written name;
    Written type;
};

struct SchemaFile {
    std::string name;
    std::vector<Written> includes;
    std::vector<RootDeclaration> roots;
    std::vector<ContainerDeclaration> containers;
    std::vector<TextDeclaration> texts;
    std::vector<VocabularyDeclaration> vocabularies;
    std::vector<Written> attributeGroups;
};

} // namespace Generator
