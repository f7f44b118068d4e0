#include <algorithm>
#include <map>
#include <regex>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "LanedocRuns.h"

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using Row = std::vector<std::string>;

class Model : public LanedocRuns {
protected:
    static Json Parts(const std::string& name = {}) { return Json::parse(Run("model " + name + " --format json").out); }

    /// What FieldTables.txt says of a class or a vocabulary; the catalogue has no part in that.
    static std::string Listed(const std::string& head) {
        static const std::string listing = Get(FRAMEWORK_GENERATED_FOLDER "/FieldTables.txt");
        const std::size_t begin = listing.find("\n" + head + "\n");
        EXPECT_NE(begin, std::string::npos) << head;
        return listing.substr(begin + 1, listing.find("\n\n", begin + 1) - begin);
    }

    static std::string ListedForm(const Json& field) {
        std::string form = field.at("form");
        form = form == "keyedList" ? "keyed list" : form == "plainList" ? "plain list" : form;
        return form + (field.value("cdata", false) ? ", CDATA" : "") +
               (field.value("numbered", false) ? ", numbered" : "");
    }

    /// The line of a field, without its default, which the tree of a document shows.
    static std::regex ListedField(const Json& field) {
        const std::string loadText = field.value("loadText", "");
        const std::string value = field.contains("class") ? field.at("class") : field.at("value");
        return std::regex("\n    " + field.at("name").get<std::string>() + " +" + ListedForm(field) + "  +" + value +
                          " +.*  " + (field.at("property") ? "yes" : "no") + " +" + field.value("key", "-") + " +" +
                          (loadText.empty() ? "-" : "\"" + loadText + "\"") + "\n");
    }

    /// Generates classes from the XSD of a part, and returns the folder.
    static fs::path Generate(const std::string& name) {
        fs::create_directories(name + ".in");
        Put(name + ".in/Model.xsd", Run("model " + (name == "all" ? "" : name) + " --format xsd").out);
        const std::string command =
            "'" FRAMEWORK_CONTAINER_GENERATOR "' " + name + ".in " + name + ".out >errors.txt 2>&1";
        EXPECT_EQ(std::system(command.c_str()), 0) << name << ": " << Get("errors.txt");
        return name + ".out";
    }

    /// Without what comes from documentation and the name of the schema file, which the catalogue does not know.
    static std::string Code(const fs::path& path) {
        std::istringstream lines(Get(path));
        std::string code;
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("///") && !line.starts_with("// Generated from ") && !line.starts_with("  schema ")) {
                code += line + '\n';
            }
        }
        return code;
    }
};

/// The JSON says of every class and vocabulary what the schema says.
TEST_F(Model, IsThatOfTheSchema) {
    const Json model = Parts();
    EXPECT_EQ(model.at("format"), 1);
    std::map<std::string, Json> uses;
    for (const Json& container : model.at("classes")) {
        for (const Json& field : container.at("fields")) {
            if (field.at("declaredBy") == container.at("name") && field.contains("class")) {
                uses[field.at("class")].push_back({{"class", container.at("name")}, {"field", field.at("name")}});
            }
        }
    }
    for (const Json& container : model.at("classes")) {
        const std::string name = container.at("name");
        SCOPED_TRACE(name);
        const std::string listed = Listed("class " + name);
        const std::string element =
            container.at("element").get<std::string>() + (container.at("isRoot") ? ", root" : "");
        EXPECT_TRUE(std::regex_search(listed, std::regex("  base +" + container.at("base").get<std::string>() + "\n")));
        EXPECT_TRUE(std::regex_search(listed, std::regex("  element +" + element + "\n")));
        EXPECT_EQ(container.at("usedBy"), uses.contains(name) ? uses[name] : Json::array());
        const std::string fields = listed.substr(0, listed.find("\n  slots"));
        std::ptrdiff_t left = std::count(fields.begin(), fields.end(), '\n') - 5; // the lines above them
        for (const Json& field : container.at("fields")) {
            if (field.at("declaredBy") == name) {
                --left;
                EXPECT_TRUE(std::regex_search(listed, ListedField(field))) << field << "\n" << listed;
            }
        }
        EXPECT_EQ(std::max<std::ptrdiff_t>(left, 0), 0) << "fields that the listing has";
    }
    for (const Json& enumeration : model.at("enumerations")) {
        const std::string name = enumeration.at("name");
        std::string words = "  words\n";
        for (const Json& word : enumeration.at("words")) {
            words += "    " + word.at("number").dump() + " " + word.at("word").get<std::string>() + "\n";
        }
        EXPECT_TRUE(Holds(Listed("enumeration " + name), words)) << name << words;
        EXPECT_EQ(enumeration.at("usedBy"), uses.contains(name) ? uses[name] : Json::array()) << name;
    }
}

TEST_F(Model, TellsWhatAPartIs) {
    const struct {
        const char* arguments;
        int code;
        const char* told; ///< by standard output, or by standard error when the code is not 0
    } cases[] = {
        {"", 0, "\nroot  CommConfig +CommConfigType +StructuralConfigLoader\n"},
        {"", 0, "\nclass  ActionItemType +ActionItem +StateActionBasicType +5 fields\n"},
        {"", 0, "\nenumeration  ParityType +3 words\n"},
        {"CommConfig", 0, "class CommConfigType\n  base +StructuralConfigLoader\n  element +CommConfig, root\n"},
        {"CommConfigType", 0, "    CommEntry +keyed list +CommEntryType +- +no +name +- +-\n  used by +no field\n$"},
        {"ActionItemType", 0, "    ActionRef +element +string +\"\" +yes +- +- +StateActionBasicType\n"},
        {"ActionItemType", 0, "    Doc +keyed list, numbered +string +- +no +Index +- +StateActionBasicType\n"},
        {"ActionItemType", 0, "  used by\n    StateActionListType/ActionItem +keyed list\n"},
        {"StateActionBasicType", 0, "  derived +ActionItemType, StateActionRespType\n"},
        {"SerialParametersType", 0, "    Parity +element +ParityType +NONE +no +- +EVEN +-\n"},
        {"ParityType", 0, "^enumeration ParityType\n  words\n    0  NONE\n    1  ODD\n    2  EVEN\n  used by\n"},
        {"ParityType --color always", 0, "\x1b\\[1mParityType"},
        {"CommConfg", 1, "\"CommConfg\"; did you mean CommConfig.*\\?"},
        {"'paritytype'", 1, "did you mean ParityType"},
        {"Q", 1, "lanedoc model lists them all"},
        {"ParityTyp --format xsd", 1, "did you mean ParityType"},
        {"--format yaml", 2, "yaml"},
        {"CommConfig LoadConfig", 2, "LoadConfig"},
        {"--format json >/dev/full", 5, "cannot write"},
    };
    for (const auto& [arguments, code, told] : cases) {
        SCOPED_TRACE(arguments);
        const Result result = Run(std::string("model ") + arguments);
        EXPECT_EQ(result.code, code);
        const std::string& text = code == 0 ? result.out : result.errors;
        EXPECT_TRUE(std::regex_search(text, std::regex(told))) << text;
        EXPECT_EQ((code == 0 ? result.errors : result.out), "");
    }
}

/// One file says all that the schema folder says, but for documentation.
TEST_F(Model, GivesASchemaThatMakesTheSameClasses) {
    const fs::path made = Generate("all");
    std::size_t classes = 0;
    for (const auto& entry : fs::directory_iterator(FRAMEWORK_GENERATED_FOLDER)) {
        const fs::path name = entry.path().filename();
        EXPECT_EQ(Code(made / name), Code(entry.path())) << name;
        classes += name.extension() == ".cpp" ? 1U : 0U;
    }
    const Json parts = Parts();
    EXPECT_GE(classes, parts.at("classes").size());

    for (const Json& container : parts.at("classes")) {
        if (!container.at("isRoot")) {
            continue;
        }
        const std::string root = container.at("element");
        SCOPED_TRACE(root);
        const fs::path part = Generate(root);
        EXPECT_TRUE(fs::exists(part / (container.at("name").get<std::string>() + ".h")));
        for (const auto& entry : fs::directory_iterator(part)) {
            const std::string name = entry.path().filename().string();
            if (name.ends_with("Type.h") || name.ends_with("Type.cpp")) { // the other files go over all classes
                EXPECT_EQ(Code(entry.path()), Code(fs::path(FRAMEWORK_GENERATED_FOLDER) / name)) << name;
            }
        }
    }
}

} // namespace
