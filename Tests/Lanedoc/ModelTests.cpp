#include <algorithm>
#include <regex>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "Framework/ContainerCatalog.h"
#include "LanedocRuns.h"

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

class Model : public LanedocRuns {
protected:
    static Json Parts(const std::string& name = {}) { return Json::parse(Run("model " + name + " --format json").out); }

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

/// What it says of the schema of the whole the last test shows.
TEST_F(Model, TellsProgramsTheSame) {
    const struct {
        const char* container;
        const char* field;
        const char* told; ///< besides the name
    } cases[] = {
        {"ActionItemType", "Doc", R"({"declaredBy": "StateActionBasicType", "form": "keyedList", "value": "string",
            "key": "Index", "numbered": true, "property": false})"},
        {"CommConfigType", "CommEntry", R"({"declaredBy": "CommConfigType", "form": "keyedList", "value": "container",
            "class": "CommEntryType", "key": "name", "numbered": false, "property": false})"},
        {"SerialParametersType", "Parity", R"({"declaredBy": "SerialParametersType", "form": "element",
            "value": "enumeration", "class": "ParityType", "default": "NONE", "cdata": false, "loadText": "EVEN",
            "property": false})"},
        {"OptionsConfigDefType", "XMLDefaultValue", R"({"declaredBy": "OptionsConfigDefType", "form": "element",
            "value": "string", "default": "", "cdata": true, "property": true})"},
        {"CaptureConfigType", "MaxTransactions", R"({"declaredBy": "CaptureConfigType", "form": "element",
            "value": "int", "default": 100, "cdata": false, "property": true})"},
    };
    for (const auto& [container, name, told] : cases) {
        Json expected = Json::parse(told);
        expected["name"] = name;
        const Json fields = Parts(container).at("classes")[0].at("fields");
        EXPECT_EQ(std::count(fields.begin(), fields.end(), expected), 1) << fields;
    }
    const Json basic = Parts("StateActionBasicType").at("classes")[0];
    EXPECT_EQ(basic.at("derived"), (Json{"ActionItemType", "StateActionRespType"}));
    EXPECT_EQ(basic.at("isRoot"), false);
    const Json root = Parts("CommConfig").at("classes")[0];
    EXPECT_EQ(root.at("isRoot"), true);
    EXPECT_EQ(root.at("base"), "StructuralConfigLoader");
    EXPECT_EQ(Parts().at("classes").size(), ContainerCatalog::Classes().size());
    EXPECT_EQ(Parts().at("enumerations").size(), ContainerCatalog::Enumerations().size());
}

TEST_F(Model, TellsWhatAPartIs) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "\nroot  CommConfig +CommConfigType +StructuralConfigLoader\n"},
        {"", "\nclass  ActionItemType +ActionItem +StateActionBasicType +5 fields\n"},
        {"", "\nenumeration  ParityType +3 words\n"},
        {"CommConfig", "class CommConfigType\n  base +StructuralConfigLoader\n  element +CommConfig, root\n"},
        {"CommConfigType", "    CommEntry +keyed list +CommEntryType +- +no +name +- +-\n  used by +no field\n$"},
        {"ActionItemType", "    ActionRef +element +string +\"\" +yes +- +- +StateActionBasicType\n"},
        {"ActionItemType", "    Doc +keyed list, numbered +string +- +no +Index +- +StateActionBasicType\n"},
        {"ActionItemType", "  used by\n    StateActionListType/ActionItem +keyed list\n"},
        {"StateActionBasicType", "  derived +ActionItemType, StateActionRespType\n"},
        {"SerialParametersType", "    Parity +element +ParityType +NONE +no +- +EVEN +-\n"},
        {"ParityType", "^enumeration ParityType\n  words\n    0  NONE\n    1  ODD\n    2  EVEN\n  used by\n"},
        {"ParityType --color always", "\x1b\\[1mParityType"},
    };
    for (const auto& [arguments, told] : cases) {
        const std::string out = Run(std::string("model ") + arguments).out;
        EXPECT_TRUE(std::regex_search(out, std::regex(told))) << arguments << " " << out;
    }
    const std::vector<Answer> answers = {
        {"", 0, ""},
        {"CommConfg", 1, "\"CommConfg\"; did you mean CommConfig"},
        {"'paritytype'", 1, "did you mean ParityType"},
        {"Q", 1, "lanedoc model lists them all"},
        {"ParityTyp --format xsd", 1, "did you mean ParityType"},
        {"--format yaml", 2, "yaml"},
        {"CommConfig LoadConfig", 2, "LoadConfig"},
        {"--format json >/dev/full", 5, "cannot write"},
    };
    ExpectAnswers("model ", answers);
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
