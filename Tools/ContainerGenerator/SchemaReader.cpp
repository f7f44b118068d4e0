#include "SchemaReader.h"

#include "SchemaElement.h"

#include "Framework/XMLSupport/AtomicFile.h"

#include <algorithm>
#include <utility>

namespace Generator {

namespace {

constexpr std::string_view kSchemaNamespace = "http://www.w3.org/2001/XMLSchema";
constexpr std::string_view kOwnNamespace = "urn:framework-data-containers:schema:1";
constexpr std::string_view kText = "xs:string";

std::string ReadDocumentation(ChildReader& children) {
    const std::optional<SchemaElement> annotation = children.TakeIf("xs:annotation");
    if (!annotation) {
        return {};
    }
    annotation->AllowAttributes({});
    ChildReader inner(*annotation);
    const SchemaElement documentation = inner.Take("xs:documentation");
    documentation.AllowAttributes({});
    inner.End("nothing behind xs:documentation");
    return documentation.Text();
}

void ExpectNoChildren(const SchemaElement& element) {
    ChildReader(element).End("nothing");
}

/// An attribute that says nothing but yes; no is said by leaving it out.
std::optional<Written> ReadMark(const SchemaElement& element, std::string_view name) {
    std::optional<Written> mark = element.Attribute(name);
    if (mark) {
        element.Demand(name, "true");
    }
    return mark;
}

FieldDeclaration ReadElementField(const SchemaElement& element) {
    element.AllowAttributes({"name", "type", "minOccurs", "maxOccurs", "fdc:key", "fdc:numbered", "fdc:default",
                             "fdc:loadText", "fdc:cdata"});
    ExpectNoChildren(element);
    FieldDeclaration field;
    field.name = element.Required("name");
    field.type = element.Required("type");
    element.Demand("minOccurs", "0");
    if (element.Attribute("maxOccurs")) {
        element.Demand("maxOccurs", "unbounded");
        field.repeated = true;
    }
    field.key = element.Attribute("fdc:key");
    field.numbered = ReadMark(element, "fdc:numbered");
    field.initial = element.Attribute("fdc:default");
    field.loadText = element.Attribute("fdc:loadText");
    field.cdata = ReadMark(element, "fdc:cdata");
    return field;
}

FieldDeclaration ReadAttributeField(const SchemaElement& element) {
    element.AllowAttributes({"name", "type", "fdc:default"});
    ExpectNoChildren(element);
    FieldDeclaration field;
    field.isAttribute = true;
    field.name = element.Required("name");
    field.type = element.Required("type");
    field.initial = element.Attribute("fdc:default");
    return field;
}

std::optional<Written> ReadGroupUse(ChildReader& children) {
    const std::optional<SchemaElement> group = children.TakeIf("xs:attributeGroup");
    if (!group) {
        return std::nullopt;
    }
    group->AllowAttributes({"ref"});
    ExpectNoChildren(*group);
    return group->Required("ref");
}

/// What a complex type and an extension share: elements, then attributes, then the merge control group.
void ReadFields(ChildReader& children, ContainerDeclaration& container) {
    if (const std::optional<SchemaElement> sequence = children.TakeIf("xs:sequence")) {
        sequence->AllowAttributes({});
        ChildReader elements(*sequence);
        while (!elements.AtEnd()) {
            container.fields.push_back(ReadElementField(elements.Take("xs:element")));
        }
    }
    while (const std::optional<SchemaElement> attribute = children.TakeIf("xs:attribute")) {
        container.fields.push_back(ReadAttributeField(*attribute));
    }
    container.mergeControl = ReadGroupUse(children);
    children.End("xs:sequence, then xs:attribute, then xs:attributeGroup");
}

void ReadExtension(const SchemaElement& complexContent, ContainerDeclaration& container) {
    complexContent.AllowAttributes({});
    ChildReader children(complexContent);
    const SchemaElement extension = children.Take("xs:extension");
    children.End("nothing behind xs:extension");
    extension.AllowAttributes({"base"});
    container.parent = extension.Required("base");
    ChildReader inner(extension);
    ReadFields(inner, container);
}

TextDeclaration ReadTextType(const SchemaElement& type, const SchemaElement& simpleContent) {
    type.AllowAttributes({"name"});
    simpleContent.AllowAttributes({});
    ChildReader children(simpleContent);
    const SchemaElement extension = children.Take("xs:extension");
    children.End("nothing behind xs:extension");
    extension.AllowAttributes({"base"});
    extension.Demand("base", kText);
    ChildReader inner(extension);
    const SchemaElement key = inner.Take("xs:attribute");
    key.AllowAttributes({"name", "type"});
    key.Demand("type", kText);
    ExpectNoChildren(key);
    ReadGroupUse(inner);
    inner.End("one xs:attribute, then xs:attributeGroup");
    return {type.Required("name"), key.Required("name")};
}

void ReadComplexType(const SchemaElement& type, SchemaFile& file) {
    ChildReader children(type);
    ContainerDeclaration container;
    container.documentation = ReadDocumentation(children);
    if (const std::optional<SchemaElement> content = children.TakeIf("xs:simpleContent")) {
        children.End("nothing behind xs:simpleContent");
        file.texts.push_back(ReadTextType(type, *content));
        return;
    }
    type.AllowAttributes({"name", "fdc:element", "fdc:base"});
    container.name = type.Required("name");
    container.element = type.Required("fdc:element");
    container.base = type.Attribute("fdc:base");
    if (const std::optional<SchemaElement> content = children.TakeIf("xs:complexContent")) {
        children.End("nothing behind xs:complexContent");
        ReadExtension(*content, container);
    } else {
        ReadFields(children, container);
    }
    file.containers.push_back(std::move(container));
}

std::vector<WordDeclaration> ReadWords(const SchemaElement& restriction) {
    restriction.AllowAttributes({"base"});
    restriction.Demand("base", kText);
    std::vector<WordDeclaration> words;
    ChildReader children(restriction);
    while (!children.AtEnd()) {
        const SchemaElement word = children.Take("xs:enumeration");
        word.AllowAttributes({"value", "fdc:number"});
        ExpectNoChildren(word);
        words.push_back({word.Required("value"), word.Attribute("fdc:number")});
    }
    return words;
}

void ReadSimpleType(const SchemaElement& type, SchemaFile& file) {
    type.AllowAttributes({"name", "fdc:first"});
    ChildReader children(type);
    VocabularyDeclaration vocabulary;
    vocabulary.name = type.Required("name");
    vocabulary.documentation = ReadDocumentation(children);
    vocabulary.first = type.Attribute("fdc:first");
    vocabulary.words = ReadWords(children.Take("xs:restriction"));
    children.End("nothing behind xs:restriction");
    file.vocabularies.push_back(std::move(vocabulary));
}

/// The group only serves the validation of documents, and none of it reaches the generated code.
void ReadAttributeGroup(const SchemaElement& group, SchemaFile& file) {
    group.AllowAttributes({"name"});
    ChildReader children(group);
    ReadDocumentation(children);
    while (!children.AtEnd()) {
        const SchemaElement attribute = children.Take("xs:attribute");
        attribute.AllowAttributes({"name", "type"});
        attribute.Required("name");
        ChildReader inner(attribute);
        if (attribute.Attribute("type")) {
            attribute.Demand("type", kText);
        } else {
            const SchemaElement type = inner.Take("xs:simpleType");
            type.AllowAttributes({});
            ChildReader words(type);
            ReadWords(words.Take("xs:restriction"));
            words.End("nothing behind xs:restriction");
        }
        inner.End("a type or one xs:simpleType");
    }
    file.attributeGroups.push_back(group.Required("name"));
}

void ReadInclude(const SchemaElement& include, SchemaFile& file) {
    include.AllowAttributes({"schemaLocation"});
    ExpectNoChildren(include);
    file.includes.push_back(include.Required("schemaLocation"));
}

void ReadRoot(const SchemaElement& element, SchemaFile& file) {
    element.AllowAttributes({"name", "type"});
    ExpectNoChildren(element);
    file.roots.push_back({element.Required("name"), element.Required("type")});
}

void ReadTopLevel(ChildReader& children, SchemaFile& file) {
    if (const auto include = children.TakeIf("xs:include")) {
        ReadInclude(*include, file);
    } else if (const auto root = children.TakeIf("xs:element")) {
        ReadRoot(*root, file);
    } else if (const auto complexType = children.TakeIf("xs:complexType")) {
        ReadComplexType(*complexType, file);
    } else if (const auto simpleType = children.TakeIf("xs:simpleType")) {
        ReadSimpleType(*simpleType, file);
    } else if (const auto group = children.TakeIf("xs:attributeGroup")) {
        ReadAttributeGroup(*group, file);
    } else {
        children.End("xs:include, xs:element, xs:complexType, xs:simpleType or xs:attributeGroup");
    }
}

} // namespace

SchemaFile ReadSchema(std::string bytes, const std::string& name) {
    SchemaFile file;
    file.name = name;
    const auto document = Framework::Document::Parse(std::move(bytes), name, LoadLimits());

    // Prefixes are fixed, so that nobody has to follow namespaces to read a schema; neither has this reader.
    const SchemaElement schema(*document, document->Root());
    if (schema.Name() != "xs:schema") {
        Refuse(schema.Where(), "the root is " + std::string(schema.Name()) + ", expected xs:schema");
    }
    schema.AllowAttributes({"xmlns:xs", "xmlns:fdc"});
    schema.Demand("xmlns:xs", kSchemaNamespace);
    schema.Demand("xmlns:fdc", kOwnNamespace);

    ChildReader children(schema);
    ReadDocumentation(children);
    while (!children.AtEnd()) {
        ReadTopLevel(children, file);
    }
    return file;
}

SchemaFile ReadSchemaFile(const std::filesystem::path& path) {
    return ReadSchema(Framework::ReadFile(path.string(), LoadLimits().bytes), path.filename().string());
}

std::vector<SchemaFile> ReadSchemaFolder(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".xsd") {
            paths.push_back(entry.path());
        }
    }
    std::sort(paths.begin(), paths.end());
    std::vector<SchemaFile> files;
    files.reserve(paths.size());
    for (const std::filesystem::path& path : paths) {
        files.push_back(ReadSchemaFile(path));
    }
    return files;
}

} // namespace Generator
