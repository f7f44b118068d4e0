#include "ModelTable.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Lanedoc {

namespace {

using Row = std::vector<std::string>;

/// Columns as wide as their widest text, two blanks apart; the last text of a line ends it.
std::vector<std::string> Columns(const std::vector<Row>& rows) {
    std::vector<std::size_t> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], Width(row[i]));
        }
    }
    std::vector<std::string> lines;
    for (const Row& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            line.append(i + 1 < row.size() ? widths[i] - Width(row[i]) + 2 : 0, ' ');
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string Joined(const std::vector<Row>& rows, const std::string& indent = {}) {
    std::string text;
    for (const std::string& line : Columns(rows)) {
        text.append(indent).append(line).append(1, '\n');
    }
    return text;
}

std::string Counted(std::size_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string FormText(const CatalogField& field) {
    switch (field.GetForm()) {
    case CatalogField::Attribute:
        return "attribute";
    case CatalogField::Element:
        return field.IsCData() ? "element, CDATA" : "element";
    case CatalogField::Child:
        return "child";
    case CatalogField::KeyedList:
        return field.HasNumberedKeys() ? "keyed list, numbered" : "keyed list";
    case CatalogField::PlainList:
        break;
    }
    return "plain list";
}

std::string ValueText(const CatalogField& field) {
    switch (field.GetValue()) {
    case CatalogField::String:
        return "string";
    case CatalogField::Bool:
        return "bool";
    case CatalogField::Int:
        return "int";
    case CatalogField::Double:
        return "double";
    default:
        return std::string(field.ClassName());
    }
}

std::string OrDash(const std::string& text) {
    return text.empty() ? "-" : text;
}

std::string DefaultText(const CatalogField& field) {
    const std::string text = field.DefaultText();
    return field.IsScalar() && field.GetValue() == CatalogField::String ? Quoted(text) : OrDash(text);
}

std::string FieldsText(CatalogClass container, const Style& style) {
    std::vector<Row> rows = {{"name", "form", "value", "default", "property", "key", "load text", "declared by"}};
    for (const ModelField& declared : FieldsOf(container)) {
        const CatalogField& field = declared.field;
        const bool isOwn = declared.owner.Name() == container.Name();
        rows.push_back({std::string(field.Name()), FormText(field), ValueText(field), DefaultText(field),
                        field.IsProperty() ? "yes" : "no", OrDash(std::string(field.KeyAttribute())),
                        OrDash(std::string(field.LoadText())), isOwn ? "-" : std::string(declared.owner.Name())});
    }
    if (rows.size() == 1) {
        return "  fields    none\n";
    }
    std::vector<std::string> lines = Columns(rows);
    lines.front() = style.Dim(lines.front());
    std::string text = "  fields\n";
    for (const std::string& line : lines) {
        text += "    " + line + '\n';
    }
    return text;
}

std::string UsesText(std::string_view className) {
    std::vector<Row> rows;
    for (const ModelField& use : UsesOf(className)) {
        rows.push_back({std::string(use.owner.Name()) + "/" + std::string(use.field.Name()), FormText(use.field)});
    }
    return rows.empty() ? "  used by   no field\n" : "  used by\n" + Joined(rows, "    ");
}

std::string ClassText(CatalogClass container, const Style& style) {
    std::string text = "class " + style.Bold(container.Name()) + '\n';
    text.append("  base      ").append(BaseOf(container)).append(1, '\n');
    text.append("  element   ").append(container.ElementName()).append(container.IsRoot() ? ", root\n" : "\n");
    std::string derived;
    for (const CatalogClass& other : DerivedFrom(container)) {
        derived.append(derived.empty() ? "" : ", ").append(other.Name());
    }
    if (!derived.empty()) {
        text += "  derived   " + derived + '\n';
    }
    return text + FieldsText(container, style) + UsesText(container.Name());
}

std::string EnumerationText(CatalogEnumeration enumeration, const Style& style) {
    std::vector<Row> rows;
    for (const CatalogEnumeration::Word& word : enumeration.Words()) {
        rows.push_back({std::to_string(word.number), std::string(word.text)});
    }
    return "enumeration " + style.Bold(enumeration.Name()) + "\n  words\n" + Joined(rows, "    ") +
           UsesText(enumeration.Name());
}

} // namespace

std::string ModelAsList(const ModelParts& parts) {
    std::vector<Row> roots;
    std::vector<Row> classes;
    for (const CatalogClass& container : parts.classes) {
        const std::string name(container.Name());
        const std::string element(container.ElementName());
        const std::string base(BaseOf(container));
        if (container.IsRoot()) {
            roots.push_back({"root", element, name, base});
        }
        classes.push_back({"class", name, element, base, Counted(container.Fields().size(), "field")});
    }
    std::sort(roots.begin(), roots.end());
    std::vector<Row> enumerations;
    for (const CatalogEnumeration& enumeration : parts.enumerations) {
        enumerations.push_back(
            {"enumeration", std::string(enumeration.Name()), Counted(enumeration.Words().size(), "word")});
    }
    return Joined(roots) + Joined(classes) + Joined(enumerations);
}

std::string ModelAsTable(const ModelParts& parts, const Style& style) {
    std::string text;
    for (const CatalogClass& container : parts.classes) {
        text += ClassText(container, style);
    }
    for (const CatalogEnumeration& enumeration : parts.enumerations) {
        text += EnumerationText(enumeration, style);
    }
    return text;
}

} // namespace Lanedoc
