#include "ModelSchema.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace Lanedoc {

namespace {

/// What any element of an override may carry. No class has these as fields, so the catalogue does not know them.
constexpr std::string_view mergeControl = R"(  <xs:attributeGroup name="MergeControl">
    <xs:attribute name="FeatureID" type="xs:string"/>
    <xs:attribute name="MergeAction">
      <xs:simpleType>
        <xs:restriction base="xs:string">
          <xs:enumeration value="Merge"/>
          <xs:enumeration value="Add"/>
          <xs:enumeration value="Replace"/>
          <xs:enumeration value="Remove"/>
          <xs:enumeration value="Clear"/>
        </xs:restriction>
      </xs:simpleType>
    </xs:attribute>
    <xs:attribute name="PlacementOrder">
      <xs:simpleType>
        <xs:restriction base="xs:string">
          <xs:enumeration value="First"/>
          <xs:enumeration value="Last"/>
          <xs:enumeration value="Before"/>
          <xs:enumeration value="After"/>
        </xs:restriction>
      </xs:simpleType>
    </xs:attribute>
    <xs:attribute name="PlacementIndex" type="xs:string"/>
    <xs:attribute name="PlacementFeature" type="xs:string"/>
  </xs:attributeGroup>
)";
constexpr std::string_view mergeControlUse = "<xs:attributeGroup ref=\"MergeControl\"/>\n";

/// ` name="value"`, so that a reader gets exactly the value.
std::string Attribute(std::string_view name, std::string_view value) {
    std::string text = " ";
    text.append(name).append("=\"");
    for (const char character : value) {
        switch (character) {
        case '&':
            text += "&amp;";
            break;
        case '<':
            text += "&lt;";
            break;
        case '"':
            text += "&quot;";
            break;
        case '\t':
            text += "&#9;";
            break;
        case '\n':
            text += "&#10;";
            break;
        case '\r':
            text += "&#13;";
            break;
        default:
            text += character;
        }
    }
    return text + '"';
}

class SchemaWriter {
public:
    explicit SchemaWriter(const ModelParts& parts) : m_parts(parts) { NameTextTypes(); }

    std::string Write() const {
        std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                           "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" "
                           "xmlns:fdc=\"urn:framework-data-containers:schema:1\">\n";
        if (!m_parts.classes.empty()) {
            text.append(1, '\n').append(mergeControl);
        }
        for (const CatalogClass& container : m_parts.classes) {
            if (container.IsRoot()) {
                text += "\n  <xs:element" + Attribute("name", container.ElementName()) +
                        Attribute("type", container.Name()) + "/>\n";
            }
        }
        for (const auto& [key, name] : m_textTypes) {
            text += TextType(name, key);
        }
        for (const CatalogClass& container : m_parts.classes) {
            text += ContainerType(container);
        }
        for (const CatalogEnumeration& enumeration : m_parts.enumerations) {
            text += Vocabulary(enumeration);
        }
        return text + "\n</xs:schema>\n";
    }

private:
    static bool IsKeyedText(const CatalogField& field) {
        return field.GetForm() == CatalogField::KeyedList && field.GetValue() == CatalogField::String;
    }

    /// Texts with a key are no classes and have no name that the catalogue could tell; any that is free will do.
    void NameTextTypes() {
        std::vector<std::string> taken;
        for (const CatalogClass& container : m_parts.classes) {
            taken.emplace_back(container.Name());
        }
        for (const CatalogEnumeration& enumeration : m_parts.enumerations) {
            taken.emplace_back(enumeration.Name());
        }
        for (const CatalogClass& container : m_parts.classes) {
            for (const CatalogField& field : container.OwnFields()) {
                if (!IsKeyedText(field) || m_textTypes.contains(field.KeyAttribute())) {
                    continue;
                }
                std::string name = "TextBy_" + std::string(field.KeyAttribute());
                while (std::find(taken.begin(), taken.end(), name) != taken.end()) {
                    name += '_';
                }
                taken.push_back(name);
                m_textTypes.emplace(field.KeyAttribute(), name);
            }
        }
    }

    static std::string TextType(const std::string& name, std::string_view key) {
        std::string text = "\n  <xs:complexType" + Attribute("name", name) + ">\n";
        text += "    <xs:simpleContent>\n      <xs:extension base=\"xs:string\">\n        <xs:attribute" +
                Attribute("name", key) + " type=\"xs:string\"/>\n        ";
        text += mergeControlUse;
        return text + "      </xs:extension>\n    </xs:simpleContent>\n  </xs:complexType>\n";
    }

    std::string TypeOf(const CatalogField& field) const {
        switch (field.GetValue()) {
        case CatalogField::String:
            return IsKeyedText(field) ? m_textTypes.at(field.KeyAttribute()) : "xs:string";
        case CatalogField::Bool:
            return "xs:boolean";
        case CatalogField::Int:
            return "xs:int";
        case CatalogField::Double:
            return "xs:double";
        default:
            return std::string(field.ClassName());
        }
    }

    /// What a default says is written only where it is not what a value of that kind starts as anyway.
    static std::string DefaultOf(const CatalogField& field) {
        const std::string text = field.DefaultText();
        const bool isWritten = (field.GetValue() == CatalogField::String && !text.empty()) ||
                               (field.GetValue() == CatalogField::Bool && text == "true") ||
                               (field.GetValue() == CatalogField::Int && text != "0");
        return field.IsScalar() && isWritten ? Attribute("fdc:default", text) : std::string();
    }

    std::string Field(const CatalogField& field) const {
        const bool isAttribute = field.GetForm() == CatalogField::Attribute;
        std::string text = isAttribute ? "<xs:attribute" : "<xs:element";
        text += Attribute("name", field.Name()) + Attribute("type", TypeOf(field));
        text += isAttribute ? "" : " minOccurs=\"0\"";
        text += field.IsList() ? " maxOccurs=\"unbounded\"" : "";
        text += field.KeyAttribute().empty() ? "" : Attribute("fdc:key", field.KeyAttribute());
        text += field.HasNumberedKeys() ? " fdc:numbered=\"true\"" : "";
        text += DefaultOf(field);
        text += field.LoadText().empty() ? "" : Attribute("fdc:loadText", field.LoadText());
        text += field.IsCData() ? " fdc:cdata=\"true\"" : "";
        return text + "/>\n";
    }

    /// The own fields: elements in a sequence, attributes behind it.
    std::string Fields(CatalogClass container, const std::string& indent) const {
        std::string elements;
        std::string attributes;
        for (const CatalogField& field : container.OwnFields()) {
            if (field.GetForm() == CatalogField::Attribute) {
                attributes += indent + Field(field);
            } else {
                elements += indent + "  " + Field(field);
            }
        }
        if (!elements.empty()) {
            elements = indent + "<xs:sequence>\n" + elements + indent + "</xs:sequence>\n";
        }
        return elements + attributes;
    }

    std::string ContainerType(CatalogClass container) const {
        std::string text = "\n  <xs:complexType" + Attribute("name", container.Name()) +
                           Attribute("fdc:element", container.ElementName());
        if (const CatalogClass parent = container.Parent()) {
            text += ">\n    <xs:complexContent>\n      <xs:extension" + Attribute("base", parent.Name()) + ">\n";
            text += Fields(container, "        ");
            text += "      </xs:extension>\n    </xs:complexContent>\n";
        } else {
            text += container.IsStructuralConfigLoader() ? " fdc:base=\"StructuralConfigLoader\">\n" : ">\n";
            text.append(Fields(container, "    ")).append("    ").append(mergeControlUse);
        }
        return text + "  </xs:complexType>\n";
    }

    static std::string Vocabulary(CatalogEnumeration enumeration) {
        std::string words;
        std::string first;
        int next = 1;
        for (const CatalogEnumeration::Word& word : enumeration.Words()) {
            std::string number;
            if (word.number != next) {
                // Only the first word can be numbered below 1.
                (words.empty() ? first : number) =
                    Attribute(words.empty() ? "fdc:first" : "fdc:number", std::to_string(word.number));
            }
            words += "      <xs:enumeration" + Attribute("value", word.text) + number + "/>\n";
            next = word.number + 1;
        }
        return "\n  <xs:simpleType" + Attribute("name", enumeration.Name()) + first +
               ">\n    <xs:restriction base=\"xs:string\">\n      <xs:enumeration value=\"\"/>\n" + words +
               "    </xs:restriction>\n  </xs:simpleType>\n";
    }

    const ModelParts& m_parts;
    std::map<std::string_view, std::string> m_textTypes; ///< names by key attribute
};

} // namespace

std::string ModelAsSchema(const ModelParts& parts) {
    const ModelParts all = WithAllUsed(parts);
    return SchemaWriter(all).Write();
}

} // namespace Lanedoc
