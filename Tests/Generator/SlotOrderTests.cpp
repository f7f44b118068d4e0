#include "Generator/RunGenerator.h"

#include <map>
#include <vector>

/// Virtual tables are part of the binary interface. What the compiler lays out is compared here with the order that is
/// promised: for the base classes the lists below, for generated ones FieldTables.txt.
namespace Framework {
namespace {

namespace fs = std::filesystem;

/// Operations behind the destructor, which takes two entries.
const std::vector<std::string> kContainerSlots = {
    "bool Valid()",
    "void Clear()",
    "zelString GetBaseType()",
    "void GetProperties(ParameterList&)",
    "XMLDataWrapper* GetContainedDataPtr()",
    "bool LoadFromTemplate(ValueLookupBase*, const char*, const char*, const char*, bool)",
    "bool LoadFromTemplate(ValueLookupBase*, const char*, const char*, bool)",
    "bool LoadFromModel(ValueLookupBase*, const char*, const char*, bool)",
    "bool LoadFromFile(ValueLookupBase*, const char*, bool)",
    "bool LoadFromDataPacket(ValueLookupBase*, XMLDataWrapper*, bool)",
    "bool LoadFromDOMNode(ValueLookupBase*, DOMNode*, bool)",
    "bool SaveContents(const char*)",
    "bool MergeFromTemplate(ValueLookupBase*, const char*, const char*, const char*)",
    "bool MergeFromTemplate(ValueLookupBase*, const char*, const char*)",
    "bool MergeFromModel(ValueLookupBase*, const char*, const char*)",
    "bool MergeFromFile(ValueLookupBase*, const char*)",
    "bool MergeFromDataPacket(ValueLookupBase*, zelString, XMLDataWrapper*, bool)",
    "bool MergeFromDOMNode(ValueLookupBase*, zelString, DOMNode*)",
    "bool MergeDataMembers(XMLDataWrapper*, zelString)",
    "bool DumpMergeResults(const char*)",
    "zelString GetMergeAttributes()",
    "void GetPLMergeAttributes(ParameterList*)",
    "zelString GetAttributeList()",
    "ParameterList* GetPLAttributeList()",
    "zelString BuildUpdateQuery(zelString, TypedDataContainer*)",
    "zelString GetCDataValue(XMLDataWrapper*, zelString)",
    "bool AppendCDataValue(FullFunctionXMLDataWrapper*, DOMNode*, const zelString&, zelString)",
    "bool CreateTextNode(DOMNode*, DOMDocument*, zelString, zelString)",
    "bool CreateCDataNode(DOMNode*, DOMDocument*, zelString, zelString)",
    "bool CreateTextNodeWithAttr(DOMNode*, DOMDocument*, zelString, zelString, zelString, zelString)",
    "bool MergeElement(zelString, Zelvon::SyncMap<zelString, TypedDataContainer*>&, std::vector<TypedDataContainer*>&, "
    "XMLDataWrapper*, TypedDataContainer*, zelString, zelString, zelString)",
    "bool MergeElement(zelString, Zelvon::SyncMap<zelString, TypedDataContainer::SimpleDataContainer*>&, "
    "std::vector<TypedDataContainer::SimpleDataContainer*>&, XMLDataWrapper*, ParameterDataEnum, zelString, zelString)",
    "zelString GetSimpleTypeData(TypedDataContainer::SimpleDataContainer*)",
    "void SetSimpleTypeData(TypedDataContainer::SimpleDataContainer*, zelString)",
    "TypedDataContainer* Clone()",
    "zelString GetContainerName()",
    "void SetContainerName(const char*)",
    "XMLDataWrapper* BuildAndReturnDataContent()",
    "bool DumpMergeContents(const zelString&, FullFunctionXMLDataWrapper*, int, bool)",
    "bool DumpMergeContentsII(DOMNode*, FullFunctionXMLDataWrapper*, DOMNode*&, bool)",
    "bool UpdateContainedData()",
    "bool PopulateDataMembers(XalanNode*)",
    "void ResetDataMembers()",
    "bool SetContainedDataPtr(XMLDataWrapper*, XalanNode*, bool, bool)",
    "zelString GetFeatureID(XMLDataWrapper*)",
    "zelString GetMergeAction(XMLDataWrapper*)",
    "zelString GetPlacementFeature(XMLDataWrapper*)",
    "zelString GetPlacementIndex(XMLDataWrapper*)",
    "zelString GetPlacementOrder(XMLDataWrapper*)",
    "void SetFeatureID(const zelString&)",
    "zelString GetFeatureID()",
    "void SetLastError(int, const char*, ...)",
    "zelString GetLastError()",
    "int GetLastErrorNum()",
};
const std::vector<std::string> kLoaderSlots = {"bool InitializeConfig(const char*, ValueLookupBase*)"};
/// AssignValue is protected: that it stands behind these follows from the number of entries.
const std::vector<std::string> kEnumerationSlots = {
    "bool operator==(LPCTSTR) const",
    "TypedDataEnumeration& operator=(LPCTSTR)",
    "zelString StringOf() const",
};
constexpr std::size_t kDestructorSlots = 2;

struct ListedClass {
    std::string base;
    std::vector<std::string> slots;
};

struct Listing {
    std::map<std::string, ListedClass> classes;
    std::vector<std::string> enumerations;
};

Listing ReadListing() {
    Listing listing;
    std::istringstream lines(ReadText(fs::path(FRAMEWORK_GENERATED_FOLDER) / "FieldTables.txt"));
    ListedClass* current = nullptr;
    bool inSlots = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("class ")) {
            current = &listing.classes[line.substr(6)];
        } else if (line.starts_with("enumeration ")) {
            listing.enumerations.push_back(line.substr(12));
        } else if (line.starts_with("  base ")) {
            current->base = line.substr(line.find_last_of(' ') + 1);
        } else if (!line.starts_with("    ")) {
            inSlots = line == "  slots";
        } else if (inSlots) {
            current->slots.push_back(line.substr(4));
        }
    }
    return listing;
}

/// A line of C++ that prints class, operation and the entry at which a call of it looks.
std::string Question(const std::string& className, const std::string& operation) {
    const std::size_t open = operation.find('(');
    const std::size_t space = operation.rfind(' ', open);
    const std::string name = operation.substr(space + 1, open - space - 1);
    const std::string type = operation.substr(0, space) + " (" + className + "::*)" + operation.substr(open);
    return "    Print(\"" + className + " " + operation + "\", static_cast<" + type + ">(&" + className + "::" + name +
           "));\n";
}

/// A program that prints the answers to questions.
std::string ProgramOf(const std::string& questions) {
    return "#include \"Framework/TypedDataEnumeration.h\"\n"
           "#include \"FrameworkDataContainers/FrameworkDataContainers.h\"\n"
           "#include <cstdio>\n"
           "#include <cstring>\n"
           // The C++ ABI keeps a pointer to a virtual operation as 1 and its byte position in the table.
           "template <typename Pointer> void Print(const char* text, Pointer pointer) {\n"
           "    std::size_t word = 0;\n"
           "    std::memcpy(&word, &pointer, sizeof word);\n"
           "    std::printf(\"%s = %zu\\n\", text, (word - 1) / sizeof(void*));\n"
           "}\n"
           "int main() {\n" +
           questions + "}\n";
}

/// Number of entries behind the base's, by class, as GCC writes them down.
std::map<std::string, std::size_t> ReadTableSizes(const std::string& dump) {
    constexpr std::size_t kHeadEntries = 2; // offset to the whole object, type information
    std::map<std::string, std::size_t> sizes;
    std::istringstream lines(dump);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t name = line.find("::_ZTV");
        const std::size_t colon = line.find(": ", name + 2);
        if (name != std::string::npos && line.ends_with(" entries")) {
            sizes[line.substr(0, name)] = std::stoul(line.substr(colon + 2)) - kHeadEntries;
        }
    }
    return sizes;
}

TEST(SlotOrder, IsWhatTheCompilerLaysOut) {
    const Listing listing = ReadListing();
    ASSERT_FALSE(listing.classes.empty());
    std::string questions, expected;
    std::map<std::string, std::size_t> ends; // of the tables that were asked about
    const auto add = [&](const std::string& name, const std::vector<std::string>& operations, std::size_t first) {
        for (std::size_t i = 0; i < operations.size(); ++i) {
            questions += Question(name, operations[i]);
            expected += name + " " + operations[i] + " = " + std::to_string(first + i) + "\n";
        }
        ends[name] = first + operations.size();
    };
    add("TypedDataContainer", kContainerSlots, kDestructorSlots);
    add("StructuralConfigLoader", kLoaderSlots, ends["TypedDataContainer"]);
    while (ends.size() < listing.classes.size() + 2) {
        const std::size_t before = ends.size();
        for (const auto& [name, listed] : listing.classes) {
            if (!ends.contains(name) && ends.contains(listed.base)) {
                add(name, listed.slots, ends[listed.base]);
            }
        }
        ASSERT_GT(ends.size(), before) << "a base is not in the listing";
    }
    add("TypedDataEnumeration", kEnumerationSlots, kDestructorSlots);
    ends.erase("TypedDataEnumeration");
    for (const std::string& enumeration : listing.enumerations) {
        ends[enumeration] = kDestructorSlots + kEnumerationSlots.size() + 1;
    }

    const TemporaryFolder folder;
    WriteText(folder / "slots.cpp", ProgramOf(questions));
    const CommandResult build = RunCommand(
        "cd " + Quoted(folder / "") + " && " + Quoted(FRAMEWORK_CXX_COMPILER) +
        " " FRAMEWORK_CXX_FLAGS " -fdump-lang-class=classes.txt " FRAMEWORK_CXX_INCLUDES " slots.cpp -o slots");
    ASSERT_EQ(build.exitCode, 0) << build.output;
    EXPECT_EQ(RunCommand(Quoted(folder / "slots")).output, expected);

    const std::map<std::string, std::size_t> sizes = ReadTableSizes(ReadText(folder / "classes.txt"));
    for (const auto& [name, end] : ends) {
        ASSERT_TRUE(sizes.contains(name)) << name;
        EXPECT_EQ(sizes.at(name), end) << name << " has other virtual operations than those listed";
    }
}

} // namespace
} // namespace Framework
