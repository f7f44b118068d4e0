#include "Framework/ContainerCatalog.h"
#include "Framework/XMLDataWrapper.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

#include <memory>

#include <gtest/gtest.h>

/// The generated cases at work: one field of every form and kind, and a line of parents. Linked with their own index in
/// place of the library's.
namespace {

bool Load(TypedDataContainer& object, const char* text) {
    FullFunctionXMLDataWrapper wrapper;
    return wrapper.LoadXMLText(zelString(text), false) && object.LoadFromDataPacket(nullptr, &wrapper, false);
}

std::string Scalars(TypedDataContainer& object) {
    std::string text;
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        text += field.IsScalar() ? std::string(field.Name()) + "=" + field.GetText(object) + " " : "";
    }
    return text;
}

constexpr std::string_view kFresh =
    "Text= TextSet=a \"b\\c\" Raw= Flag=false FlagSet=true Count=0 CountSet=-2147483648 "
    "Weight=0 Shade=LIGHT Size= name= Label=none Open=false OpenSet=true Level=0 "
    "LevelSet=7 ";

TEST(Case, ScalarsStartAndResetToTheirDefaults) {
    ScalarsType scalars(false);
    EXPECT_EQ(scalars.GetContainerName(), "Scalars");
    EXPECT_EQ(scalars.GetBaseType(), "ScalarsType");
    EXPECT_EQ(Scalars(scalars), kFresh);
    EXPECT_EQ(scalars.GetInner(), nullptr);
    EXPECT_FALSE(scalars.GetAutoFillTypeInfo());

    scalars.SetText("t");
    scalars.SetTextSet("u");
    scalars.SetRaw("v");
    scalars.SetFlag(true);
    scalars.SetFlagSet(false);
    scalars.SetCount(5);
    scalars.SetCountSet(6);
    scalars.SetWeight(0.5);
    scalars.SetShade(ShadeType::DARK);
    scalars.SetSize(SizeEnum("LARGE"));
    scalars.Setname("n");
    scalars.SetLabel("l");
    scalars.SetOpen(true);
    scalars.SetOpenSet(false);
    scalars.SetLevel(3);
    scalars.SetLevelSet(4);
    scalars.SetInner(new ScalarsType(false));
    scalars.GetInner()->SetCountSet(1);
    EXPECT_EQ(Scalars(scalars), "Text=t TextSet=u Raw=v Flag=true FlagSet=false Count=5 CountSet=6 Weight=0.5 "
                                "Shade=DARK Size=LARGE name=n Label=l Open=true OpenSet=false Level=3 LevelSet=4 ");
    EXPECT_EQ(scalars.GetText() + scalars.GetTextSet() + scalars.GetRaw() + scalars.Getname() + scalars.GetLabel(),
              "tuvnl");
    EXPECT_TRUE(scalars.GetFlag() && !scalars.GetFlagSet() && scalars.GetOpen() && !scalars.GetOpenSet());
    EXPECT_TRUE(scalars.GetCount() == 5 && scalars.GetCountSet() == 6 && scalars.GetWeight() == 0.5);
    EXPECT_TRUE(scalars.GetLevel() == 3 && scalars.GetLevelSet() == 4);
    EXPECT_TRUE(scalars.GetShade() == ShadeType::DARK && scalars.GetSize() == SizeEnum::LARGE);

    scalars.ResetDataMembers();
    EXPECT_EQ(Scalars(scalars), kFresh);
    ASSERT_NE(scalars.GetInner(), nullptr);
    EXPECT_EQ(Scalars(*scalars.GetInner()), kFresh);
    scalars.SetInner(nullptr);
    EXPECT_EQ(scalars.GetInner(), nullptr);
}

TEST(Case, ScalarsAreReadFromTheirElementsAndAttributes) {
    ScalarsType scalars(false);
    ASSERT_TRUE(Load(scalars, "<Scalars/>")) << scalars.GetLastError();
    EXPECT_EQ(Scalars(scalars), "Text= TextSet=a \"b\\c\" Raw= Flag=false FlagSet=true Count=0 CountSet=-2147483648 "
                                "Weight=0 Shade=black Size= name= Label= Open=false OpenSet=false Level=0 LevelSet=0 ")
        << "the load text, and attributes are read also when they are absent";
    ASSERT_TRUE(Load(scalars, "<Scalars name='n' Label='l' Open='true' OpenSet='false' Level='-4' LevelSet='5'>"
                              "<Text>t</Text><Raw>a<![CDATA[<b>]]></Raw><Flag>true</Flag><FlagSet>false</FlagSet>"
                              "<Count>6</Count><Weight>0.25</Weight><Shade>LIGHT</Shade><Size>SMALL</Size>"
                              "<Inner><Text>inner</Text></Inner></Scalars>"));
    EXPECT_EQ(Scalars(scalars), "Text=t TextSet=a \"b\\c\" Raw=<b> Flag=true FlagSet=false Count=6 "
                                "CountSet=-2147483648 Weight=0.25 Shade=LIGHT Size=SMALL name=n Label=l Open=true "
                                "OpenSet=false Level=-4 LevelSet=5 ");
    ASSERT_NE(scalars.GetInner(), nullptr);
    EXPECT_EQ(scalars.GetInner()->GetText(), "inner");
    EXPECT_EQ(scalars.GetInner()->GetContainerName(), "Inner");
}

TEST(Case, ListsFillInTheirForms) {
    ListsType lists(false);
    ASSERT_TRUE(Load(lists, "<Lists><Note Index='b'>one</Note><Line Index='7'>first</Line><Line>second</Line>"
                            "<ByName Name='a' Number='1'><Note>n</Note><Extra>x</Extra></ByName><ByNumber Number='02'/>"
                            "<Child Name='c'/><Word>w1</Word><Word>w2</Word><Shade>DARK</Shade><Shade>pink</Shade>"
                            "<Item/><Item/></Lists>"))
        << lists.GetLastError();
    EXPECT_EQ(lists.GetNoteLength(), 1);
    EXPECT_EQ(lists.GetNote(zelString("b")), "one");
    EXPECT_EQ(lists.GetLine(zelString("2")), "second") << "numbered, whatever Index says";
    EXPECT_EQ(lists.GetLine(0), "first");
    ASSERT_NE(lists.GetByName(zelString("a")), nullptr);
    EXPECT_EQ(lists.GetByName(0)->GetExtra(), "x");
    EXPECT_EQ(lists.GetByName(0)->GetNote(0), "n");
    EXPECT_EQ(lists.GetByName(0)->GetContainerName(), "ByName");
    ASSERT_NE(lists.GetByNumber(zelString("02")), nullptr);
    EXPECT_EQ(lists.GetByNumber(0)->GetNumber(), 2);
    EXPECT_EQ(lists.GetChild()->GetName(), "c");
    EXPECT_EQ(lists.GetWord(1), "w2");
    EXPECT_EQ(lists.GetShade(0)->StringOf(), "DARK");
    EXPECT_EQ(lists.GetShade(1)->Value(), -1);
    EXPECT_EQ(lists.GetItemLength(), 2);

    lists.AddNewByNumber(new DerivedType(false), "3");
    lists.AddNewWord(nullptr);
    lists.AddNewShade(new ShadeType(ShadeType::LIGHT));
    lists.AddNewItem(new EmptyType(false));
    EXPECT_EQ(lists.GetWord(2), "");
    EXPECT_EQ(lists.GetWord(3), "") << "a plain list grows";
    EXPECT_EQ(lists.GetShade(3)->Value(), ShadeType::VALUE_UNKNOWN);
    EXPECT_EQ(lists.GetItemLength(), 3);
    lists.RemoveByNumber("2", lists.GetByNumber(0)->GetFeatureID());
    EXPECT_EQ(lists.GetByNumberLength(), 1) << "an int key is compared as a number";

    lists.ResetDataMembers();
    EXPECT_EQ(lists.GetNoteLength() + lists.GetLineLength() + lists.GetByNameLength() + lists.GetByNumberLength() +
                  lists.GetWordLength() + lists.GetShadeLength() + lists.GetItemLength(),
              0);
    EXPECT_EQ(lists.GetByName(zelString("a")), nullptr);
}

/// What the parents hold is read, written and reset with the class's own fields; properties alone are its own only.
TEST(Case, ParentsComeFirst) {
    EmptyDerivedType derived(false);
    EXPECT_EQ(derived.GetContainerName(), "EmptyDerived");
    StructuralConfigLoader& loader = derived;
    EXPECT_EQ(loader.GetBaseType(), "EmptyDerivedType");
    EXPECT_TRUE(derived.AutoFillTypeInfo());
    ASSERT_TRUE(Load(derived, "<EmptyDerived Name='n' Number='3'><Extra>e</Extra><Note>1</Note></EmptyDerived>"));
    EXPECT_EQ(derived.GetAttributeList(), "@Name='n'  and @Number='3' ");
    EXPECT_EQ(derived.GetExtra(), "e");
    EXPECT_EQ(derived.GetNoteLength(), 1);
    const std::unique_ptr<TypedDataContainer> clone(derived.Clone());
    ASSERT_NE(dynamic_cast<EmptyDerivedType*>(clone.get()), nullptr);
    EXPECT_EQ(clone->GetAttributeList(), derived.GetAttributeList());
    ParameterList properties;
    derived.GetProperties(properties);
    EXPECT_EQ(properties.size(), 0U) << "properties are those of the class itself";
    derived.DerivedType::GetProperties(properties);
    ASSERT_EQ(properties.size(), 2U);
    EXPECT_EQ(properties.ItemData(0)->strValue, "e");
    const std::unique_ptr<ParameterList> attributes(derived.GetPLAttributeList());
    ASSERT_EQ(attributes->size(), 2U);
    EXPECT_EQ(attributes->ItemData(1)->ElementName, "Number");
    derived.ResetDataMembers();
    EXPECT_EQ(derived.GetNumber(), 0);
    EXPECT_EQ(derived.GetNoteLength(), 0);

    // Each class of the line has a mark of its own.
    derived.SetAutoFillTypeInfo(true);
    EXPECT_FALSE(derived.DerivedType::GetAutoFillTypeInfo());
}

TEST(Case, EnumerationsCompareWithEverythingTheyAreMadeOf) {
    const ShadeType unset;
    EXPECT_EQ(unset.Value(), -1);
    ShadeType shade(0);
    EXPECT_TRUE(shade == "LIGHT" && "LIGHT" == shade && shade == 0 && shade == ShadeType::LIGHT && shade != unset);
    shade = "DARK";
    EXPECT_TRUE(shade == 4 && shade != "LIGHT" && ShadeType(shade) == shade);
    shade = 5;
    EXPECT_EQ(shade.StringOf(), "black");
    shade = 1; // in the gap
    EXPECT_TRUE(shade == "" && shade.Value() == 1);
    shade = ShadeType::DARK;
    const int number = shade;
    const ShadeType::ContainedValues enumerator = shade;
    EXPECT_TRUE(number == 4 && enumerator == ShadeType::DARK);
    EXPECT_EQ(ShadeType::VALUE_END_OF_LIST, 6);
    EXPECT_EQ(ShadeType("light").Value(), -1);
    std::vector<zelString> words = {"before"};
    ShadeType::GetContainedValueList(words);
    EXPECT_EQ(words, (std::vector<zelString>{"before", "LIGHT", "DARK", "black"}));
    EXPECT_EQ(SizeEnum::SMALL, 1);
}

} // namespace
