#include "Generator/RunGenerator.h"

#include <algorithm>
#include <string_view>

namespace Framework {
namespace {

namespace fs = std::filesystem;

/// What the schemas below abbreviate.
constexpr std::string_view kWords[][2] = {
    {"<SCHEMA>", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
                 "xmlns:fdc='urn:framework-data-containers:schema:1'>"},
    {"<HUE/>", "<hue><word ''/><word 'RED'/></hue>"},
    {"<NOTE/>", "<note><attribute name='Index' type='xs:string'/></note>"},
    {"<box>", "<xs:complexType name='BoxType' fdc:element='Box'>"},
    {"</box>", "<xs:attributeGroup ref='MergeControl'/></xs:complexType>"},
    {"<lid>", "<xs:complexType name='LidType' fdc:element='Lid'><xs:complexContent>"},
    {"</lid>", "</xs:complexContent></xs:complexType>"},
    {"<hue>", "<xs:simpleType name='HueType'><xs:restriction base='xs:string'>"},
    {"</hue>", "</xs:restriction></xs:simpleType>"},
    {"<note>", "<xs:complexType name='NoteType'><xs:simpleContent><xs:extension base='xs:string'>"},
    {"</note>", "</xs:extension></xs:simpleContent></xs:complexType>"},
    {"seq>", "xs:sequence>"},
    {"<attribute ", "<xs:attribute "},
    {"<field ", "<xs:element minOccurs='0' "},
    {"<list ", "<xs:element minOccurs='0' maxOccurs='unbounded' "},
    {"<word ", "<xs:enumeration value="},
};

/// A schema with one fault, behind an include of Common.xsd unless it is given whole; '^' marks the place that the
/// refusal must name.
const struct {
    std::string_view schema;
    std::string_view refusal;
} kCases[] = {
    {"<xs:complexType name='BoxType' fdc:element='Box' ^abstract='true'></box>",
     "attribute 'abstract' is not allowed on xs:complexType here, expected: name, fdc:element, fdc:base"},
    {"<box><seq><list name='Item' type='xs:string'/><list ^name='NewItem' type='xs:string'/></seq></box>",
     "field 'NewItem' brings the name AddNewItem, which field 'Item' of 'BoxType' has"},
    {"<SCHEMA><xs:annotation>^<xs:appinfo/></xs:annotation></xs:schema>",
     "xs:appinfo is not allowed here in xs:annotation, expected: xs:documentation"},
    {"<box><xs:attributeGroup ref='MergeControl'/>^<attribute name='a' type='xs:string'/></xs:complexType>",
     "xs:attribute is not allowed here in xs:complexType, expected: xs:sequence, then xs:attribute, then "
     "xs:attributeGroup"},
    {"<box><attribute name='a' ^type='xs:double'/></box>",
     "an attribute of type xs:double, expected xs:string, xs:boolean or xs:int"},
    {"<box><attribute ^name='bAutoFillTypeInfo' type='xs:boolean'/></box>",
     "field 'bAutoFillTypeInfo' brings the name m_bAutoFillTypeInfo, which the base class has"},
    {"<box><attribute ^name='FeatureID' type='xs:string'/></box>",
     "field 'FeatureID' brings the name GetFeatureID, which the base class has"},
    {"<xs:complexType name='BoxType' fdc:element='Box' ^fdc:base='TypedDataContainer'></box>",
     R"(fdc:base="TypedDataContainer", expected "StructuralConfigLoader", or no fdc:base)"},
    {"<box></box><xs:complexType name='LidType' fdc:element='Lid' "
     "^fdc:base='StructuralConfigLoader'><xs:complexContent><xs:extension base='BoxType'></xs:extension></lid>",
     "fdc:base goes only with a type that extends none"},
    {"^<![CDATA[]]>", "xs:schema holds more than elements and comments"},
    {"<box><seq><field name='a' type='xs:string' ^fdc:cdata='false'/></seq></box>",
     R"(fdc:cdata="false" is not allowed on xs:element here, expected "true")"},
    {"<box><seq><field name='a' type='xs:int' ^fdc:cdata='true'/></seq></box>",
     "fdc:cdata goes only with an element of xs:string that does not repeat"},
    {"<box><seq><field name='a' type='xs:string' ^fdc:default=''/></seq></box>",
     "an empty default, expected a text, or no default"},
    {"<box><seq><field name='a' type='xs:boolean' ^fdc:default='false'/></seq></box>",
     R"(default 'false', expected "true", or no default)"},
    {"<box><seq><field name='a' type='xs:string' fdc:cdata='true' ^fdc:default='b'/></seq></box>",
     "fdc:default goes only with a value of xs:string, xs:boolean or xs:int that is no CDATA"},
    {"<box><seq><list name='a' type='xs:string' ^fdc:default='b'/></seq></box>",
     "fdc:default goes only with a value of xs:string, xs:boolean or xs:int that is no CDATA"},
    {"<HUE/><box><seq><field name='a' type='HueType' ^fdc:default='RED'/></seq></box>",
     "fdc:default goes only with a value of xs:string, xs:boolean or xs:int that is no CDATA"},
    {"<box><seq><field name='a' type='xs:int' ^fdc:default='2147483648'/></seq></box>",
     "default '2147483648', expected an int other than 0 in decimal digits, or no default"},
    {"<box><seq><field name='a' type='xs:int' ^fdc:default='0'/></seq></box>",
     "default '0', expected an int other than 0 in decimal digits, or no default"},
    {"<xs:complexType name='BoxType' ^fdc:element='Box.1'></box>",
     "element 'Box.1' is no C++ identifier, expected letters, digits and '_', and no keyword"},
    {"<box><seq>^<field type='xs:string'/></seq></box>", "xs:element without attribute 'name'"},
    {"<box><seq><field ^name='int' type='xs:string'/></seq></box>",
     "field 'int' is no C++ identifier, expected letters, digits and '_', and no keyword"},
    {"<box><attribute name='a' type='xs:string'/></box><lid><xs:extension base='BoxType'><attribute ^name='a' "
     "type='xs:int'/></xs:extension></lid>",
     "field 'a' brings the name Geta, which field 'a' of 'BoxType' has"},
    {"<xs:simpleType name='HueType' ^fdc:first='-1'><xs:restriction base='xs:string'><word ''/><word 'RED'/></hue>",
     "'-1' is no number of a word, expected 0 or more in decimal digits"},
    {"<SCHEMA><box><xs:attributeGroup ^ref='MergeControl'/></xs:complexType></xs:schema>",
     "'MergeControl' is declared at Common.xsd:4, expected an xs:include of that file"},
    {"<xs:attributeGroup name='MergeControl'><attribute name='a' ^type='xs:int'/></xs:attributeGroup>",
     R"(type="xs:int" is not allowed on xs:attribute here, expected "xs:string")"},
    {"<xs:attributeGroup ^name='MergeControl'/><xs:attributeGroup name='MergeControl'/>",
     "attribute group 'MergeControl' stands already at Common.xsd:4"},
    {"^<xs:import namespace='urn:a'/>", "xs:import is not allowed here in xs:schema, expected: xs:include, xs:element, "
                                        "xs:complexType, xs:simpleType or xs:attributeGroup"},
    {"<SCHEMA><xs:include ^schemaLocation='Other.xsd'/></xs:schema>", "'Other.xsd' is no file of this schema folder"},
    {"<box><seq><list name='a' type='BoxType' ^fdc:key='b'/></seq><attribute name='b' type='xs:boolean'/></box>",
     "key 'b' of 'BoxType', expected an attribute of xs:string or xs:int"},
    {"<box><seq><list name='a' type='BoxType' ^fdc:key='b'/><field name='b' type='xs:string'/></seq></box>",
     "key 'b' of 'BoxType', expected an attribute of xs:string or xs:int"},
    {"<box><seq><list name='a' type='BoxType' ^fdc:key='b'/></seq></box>",
     "'BoxType' has no attribute 'b' to be the key"},
    {"<box><seq><field name='a' type='BoxType' ^fdc:key='b'/></seq></box>",
     "fdc:key goes only with a list of containers or of texts with a key"},
    {"<box><seq><list name='a' ^type='xs:int'/></seq></box>",
     "a list of xs:int, expected xs:string, a vocabulary, a text with a key or a container"},
    {"<HUE/><box><seq><list name='a' type='HueType' ^fdc:loadText='RED'/></seq></box>",
     "fdc:loadText goes only with an element of a vocabulary that does not repeat"},
    {"<box><seq><field name='a' type='xs:string' ^fdc:loadText='RED'/></seq></box>",
     "fdc:loadText goes only with an element of a vocabulary that does not repeat"},
    {"<HUE/><box><seq><field name='a' type='HueType' ^fdc:loadText='BLUE'/></seq></box>",
     "'BLUE' is no word of 'HueType'"},
    {"<SCHEMA><xs:annotation><xs:documentation>a ^<b/></xs:documentation></xs:annotation></xs:schema>",
     "xs:documentation holds more than text"},
    {"<box><seq><field name='Size' type='xs:int' ^maxOccurs='2'/></seq></box>",
     R"(maxOccurs="2" is not allowed on xs:element here, expected "unbounded")"},
    {"<box><seq><list name='Item' type='xs:string'/><field ^name='ItemList' type='xs:string'/></seq></box>",
     "field 'ItemList' brings the name m_ItemList, which field 'Item' of 'BoxType' has"},
    {"<box></box><lid><xs:extension base='BoxType'><xs:attributeGroup ^ref='MergeControl'/></xs:extension></lid>",
     "'LidType' has the attribute group from the type that it extends"},
    {"<box><seq>^<xs:element name='Size' type='xs:int'/></seq></box>", "xs:element without attribute 'minOccurs'"},
    {"<box><seq><xs:element name='Size' type='xs:int' ^minOccurs='1'/></seq></box>",
     R"(minOccurs="1" is not allowed on xs:element here, expected "0")"},
    {"<xs:simpleType ^name='HueType'><xs:restriction base='xs:string'><word 'RED'/></hue>",
     "vocabulary 'HueType' does not begin with the empty word, which an unset field is written as"},
    {"<xs:complexType ^name='BoxType' fdc:element='Box'></xs:complexType>",
     "'BoxType' does not end in the attribute group MergeControl"},
    {"<xs:simpleType ^name='HueType'><xs:restriction base='xs:string'></hue>",
     "vocabulary 'HueType' does not begin with the empty word, which an unset field is written as"},
    {"<xs:element name='Box'^",
     "unexpected '<' within a tag: expected '>' to end the tag, or &lt; in an attribute value"},
    {"<hue><word ''/><word 'RED'/><word 'BLUE' ^fdc:number='1'/></hue>",
     "number 1 of 'BLUE' is taken, expected 2 or more"},
    {"<box><seq><list name='a' type='BoxType' fdc:key='b' ^fdc:numbered='true'/></seq><attribute name='b' "
     "type='xs:string'/></box>",
     "fdc:numbered goes only with a list of texts with a key"},
    {"<box><xs:attributeGroup ^ref='Other'/></xs:complexType>", "attribute group 'Other', expected MergeControl"},
    {"<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
     "^xmlns:fdc='urn:framework-data-containers:schema:2'></xs:schema>",
     R"(xmlns:fdc="urn:framework-data-containers:schema:2" is not allowed on xs:schema here, expected "urn:framework-data-containers:schema:1")"},
    {"<xs:schema ^xmlns:xs='http://www.w3.org/1999/XMLSchema' "
     "xmlns:fdc='urn:framework-data-containers:schema:1'></xs:schema>",
     R"(xmlns:xs="http://www.w3.org/1999/XMLSchema" is not allowed on xs:schema here, expected "http://www.w3.org/2001/XMLSchema")"},
    {"<lid><xs:extension ^base='LidType'></xs:extension></lid>", "'LidType' extends itself by way of 'LidType'"},
    {"<lid><xs:extension ^base='CapType'></xs:extension></lid><xs:complexType name='CapType' "
     "fdc:element='Lid'><xs:complexContent><xs:extension base='HatType'></xs:extension></lid><xs:complexType "
     "name='HatType' fdc:element='Lid'><xs:complexContent><xs:extension base='LidType'></xs:extension></lid>",
     "'LidType' extends itself by way of 'CapType'"},
    {"<HUE/><lid><xs:extension ^base='HueType'></xs:extension></lid>",
     "'HueType' is no container, expected one to extend"},
    {"<lid><xs:extension ^base='BoxType'></xs:extension></lid>",
     "type 'BoxType' is unknown, expected one that a file of this schema folder declares"},
    {"<box><attribute name='a' type='xs:string' ^use='required'/></box>",
     "attribute 'use' is not allowed on xs:attribute here, expected: name, type, fdc:default"},
    {"<box><xs:complexContent>^<xs:restriction base='a'/></lid>",
     "xs:restriction is not allowed here in xs:complexContent, expected: xs:extension"},
    {"<xs:element name='Box' type='BoxType'/><xs:element ^name='Box' type='BagType'/><box></box><xs:complexType "
     "name='BagType' fdc:element='Box'></box>",
     "root 'Box' stands already"},
    {"<xs:element ^name='Case' type='BoxType'/><box></box>",
     R"(root 'Case' of type 'BoxType', which has fdc:element="Box", expected the same name)"},
    {"<xs:element name='Box' ^type='BoxType'/>",
     "type 'BoxType' is unknown, expected one that a file of this schema folder declares"},
    {"<HUE/><xs:element name='Box' ^type='HueType'/>", "'HueType' is no container, expected one as the type of a root"},
    {"^<xs:element name='Box'/>", "xs:element without attribute 'type'"},
    {"<box><attribute name='a' type='xs:string'/>^<seq></seq></box>",
     "xs:sequence is not allowed here in xs:complexType, expected: xs:sequence, then xs:attribute, then "
     "xs:attributeGroup"},
    {"<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' ^targetNamespace='urn:a' "
     "xmlns:fdc='urn:framework-data-containers:schema:1'></xs:schema>",
     "attribute 'targetNamespace' is not allowed on xs:schema here, expected: xmlns:xs, xmlns:fdc"},
    {"^text", "xs:schema holds text, expected elements only"},
    {"<note><attribute name='Index' ^type='xs:int'/></note>",
     R"(type="xs:int" is not allowed on xs:attribute here, expected "xs:string")"},
    {"<NOTE/><box><seq><list name='a' type='NoteType' ^fdc:key='Number'/></seq></box>",
     "'NoteType' has no attribute 'Number', expected 'Index'"},
    {"<NOTE/><box><seq><list name='a' ^type='NoteType'/></seq></box>",
     R"('NoteType' is a text with a key, expected fdc:key="Index")"},
    {"<NOTE/><box><seq><field name='a' ^type='NoteType'/></seq></box>",
     R"('NoteType' is a text with a key, expected maxOccurs="unbounded")"},
    {"<xs:complexType name='NoteType'><xs:simpleContent><xs:extension ^base='xs:int'><attribute name='Index' "
     "type='xs:string'/></note>",
     R"(base="xs:int" is not allowed on xs:extension here, expected "xs:string")"},
    {"<note><attribute name='Index' type='xs:string'/>^<attribute name='b' type='xs:string'/></note>",
     "xs:attribute is not allowed here in xs:extension, expected: one xs:attribute, then xs:attributeGroup"},
    {"<xs:complexType name='NoteType'><xs:simpleContent>^<xs:extension base='xs:string'></note>",
     "xs:extension without xs:attribute"},
    {"<xs:complexType ^name='Box-Type' fdc:element='Box'></box>",
     "type 'Box-Type' is no C++ identifier, expected letters, digits and '_', and no keyword"},
    {"<SCHEMA><box><seq><field name='a' ^type='NoteByIndex'/></seq></box></xs:schema>",
     "'NoteByIndex' is declared at Common.xsd:15, expected an xs:include of that file"},
    {"<xs:complexType ^name='ParameterList' fdc:element='Box'></box>",
     "type 'ParameterList' bears a name that the library itself uses"},
    {"<box></box><HUE/><xs:simpleType ^name='BoxType'><xs:restriction base='xs:string'><word ''/><word 'a'/></hue>",
     "type 'BoxType' stands already at Faulty.xsd:2"},
    {"^<xs:complexType name='BoxType'></box>", "xs:complexType without attribute 'fdc:element'"},
    {"<box><seq><field name='a' ^type='xs:float'/></seq></box>",
     "type 'xs:float' is unknown, expected xs:string, xs:boolean, xs:int or xs:double"},
    {"<box><seq><field name='Size' type='xs:int' ^fdc:defualt='5'/></seq></box>",
     "attribute 'fdc:defualt' is not allowed on xs:element here, expected: name, type, minOccurs, maxOccurs, fdc:key, "
     "fdc:numbered, fdc:default, fdc:loadText, fdc:cdata"},
    {"<box><seq>^<xs:any/></seq></box>", "xs:any is not allowed here in xs:sequence, expected: xs:element"},
    {"<hue><word ''/><xs:enumeration ^value='DARK RED'/></hue>",
     "word 'DARK RED' is no C++ identifier, expected letters, digits and '_', and no keyword"},
    {"<hue><word ''/><xs:enumeration ^value='VALUE_UNKNOWN'/></hue>",
     "word 'VALUE_UNKNOWN' stands already in 'HueType'"},
    {"<hue><word ''/><word 'RED'/><xs:enumeration ^value='RED'/></hue>", "word 'RED' stands already in 'HueType'"},
    {"^<schema/>", "the root is schema, expected xs:schema"},
};

/// The abbreviations taken out.
std::string Expanded(std::string_view shortText) {
    std::string text(shortText);
    if (text.find("schema") == std::string::npos) {
        text = "<SCHEMA><xs:include schemaLocation='Common.xsd'/>\n" + text + "</xs:schema>";
    }
    for (const auto& [word, meaning] : kWords) {
        for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + meaning.size())) {
            text.replace(at, word.size(), meaning);
        }
    }
    return text;
}

TEST(BadSchema, IsRefusedAtItsPlace) {
    for (const auto& [schema, refusal] : kCases) {
        SCOPED_TRACE(schema);
        std::string text = Expanded(schema);
        const std::size_t mark = text.find('^');
        ASSERT_NE(mark, std::string::npos);
        text.erase(mark, 1);
        const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(mark), '\n');
        const std::size_t column = mark - (text.rfind('\n', mark) + 1) + 1;

        const TemporaryFolder folder;
        fs::create_directory(folder / "schema");
        fs::copy(fs::path(FRAMEWORK_CASES_FOLDER) / "Schema" / "Common.xsd", folder / "schema");
        WriteText(folder / "schema/Faulty.xsd", text);
        const CommandResult result = RunGenerator(folder / "schema", folder / "output");
        EXPECT_EQ(result.output, "Faulty.xsd:" + std::to_string(line) + ":" + std::to_string(column) + ": " +
                                     std::string(refusal) + "\n");
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_FALSE(fs::exists(folder / "output")) << "a refused schema must not write anything";
    }
}

TEST(BadSchema, WrongUsageIsExplained) {
    EXPECT_EQ(RunCommand(Quoted(FRAMEWORK_CONTAINER_GENERATOR)).exitCode, 2);
    EXPECT_EQ(RunGenerator("a", "b", "--chekc").exitCode, 2);
    const TemporaryFolder folder;
    const CommandResult missing = RunGenerator(folder / "none", folder / "output");
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_NE(missing.output.find("none"), std::string::npos) << missing.output;
    fs::create_directory(folder / "empty");
    EXPECT_EQ(RunGenerator(folder / "empty", folder / "output").exitCode, 1);
}

} // namespace
} // namespace Framework
