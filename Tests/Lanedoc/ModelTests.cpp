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

/// What the generator lists of a class: head, and a row for each own field. Of a vocabulary, its words.
struct Listed {
    std::string base;
    std::string element;
    std::vector<Row> rows;
};

/// The texts between runs of blanks.
Row Split(const std::string& line) {
    static const std::regex gap(" {2,}");
    const std::string text = line.substr(line.find_first_not_of(' '));
    return {std::sregex_token_iterator(text.begin(), text.end(), gap, -1), {}};
}

class Model : public LanedocRuns {
protected:
    static Json Parts(const std::string& name = {}) { return Json::parse(Run("model " + name + " --format json").out); }

    /// FieldTables.txt, which the generator writes from the schema and the catalogue has no part in.
    static std::map<std::string, Listed> Listing() {
        std::map<std::string, Listed> listing;
        std::istringstream lines(Get(FRAMEWORK_GENERATED_FOLDER "/FieldTables.txt"));
        Listed* open = nullptr;
        std::string section;
        for (std::string line; std::getline(lines, line);) {
            if (line.starts_with("class ") || line.starts_with("enumeration ")) {
                open = &listing[line.substr(line.find(' ') + 1)];
                section.clear();
            } else if (open != nullptr && line.starts_with("    ")) {
                if (section == "fields") {
                    open->rows.push_back(Split(line));
                } else if (section == "words") {
                    open->rows.push_back({line.substr(4)});
                }
            } else if (open != nullptr && line.starts_with("  ")) {
                const Row words = Split(line);
                section = words[0];
                if (section == "fields") {
                    std::getline(lines, line); // the heads of the columns
                }
                open->base = section == "base" ? words[1] : open->base;
                open->element = section == "element" ? words[1] : open->element;
            }
        }
        return listing;
    }

    static std::string ListedForm(const Json& field) {
        static const std::map<std::string, std::string> forms = {{"attribute", "attribute"},
                                                                 {"element", "element"},
                                                                 {"child", "child"},
                                                                 {"keyedList", "keyed list"},
                                                                 {"plainList", "plain list"}};
        return forms.at(field.at("form")) + (field.value("cdata", false) ? ", CDATA" : "") +
               (field.value("numbered", false) ? ", numbered" : "");
    }

    static std::string ListedDefault(const Json& field, const std::map<std::string, Listed>& listing) {
        if (!field.contains("default")) {
            return field.at("form") == "child" ? "none" : "empty";
        }
        const Json& value = field.at("default");
        if (field.at("value") == "enumeration") { // listed by its number, which is always 0
            const std::vector<Row>& words = listing.at(field.at("class")).rows;
            const bool hasZero = words.front().front().starts_with("0 ");
            return value == (hasZero ? Json(words.front().front().substr(2)) : Json()) ? "0" : value.dump();
        }
        if (value.is_string()) {
            return value == "" ? "empty" : "\"" + value.get<std::string>() + "\"";
        }
        return value.is_number_float() && value == 0.0 ? "0" : value.dump();
    }

    static Row ListedRow(const Json& field, const std::map<std::string, Listed>& listing) {
        const std::string loadText = field.value("loadText", "");
        return {field.at("name"),
                ListedForm(field),
                field.contains("class") ? field.at("class") : field.at("value"),
                ListedDefault(field, listing),
                field.at("property") ? "yes" : "no",
                field.value("key", "-"),
                loadText.empty() ? "-" : "\"" + loadText + "\""};
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

    /// What xmllint says of the document is in valid.txt.
    static bool IsValid(const std::string& schema, const std::string& document) {
        const std::string command = "xmllint --noout --schema '" + schema + "' '" + document + "' >valid.txt 2>&1";
        return std::system(command.c_str()) == 0;
    }
};

/// The JSON says of every class and vocabulary what the schema says.
TEST_F(Model, IsThatOfTheSchema) {
    const std::map<std::string, Listed> listing = Listing();
    const Json model = Parts();
    EXPECT_EQ(model.at("format"), 1);
    ASSERT_EQ(model.at("classes").size() + model.at("enumerations").size(), listing.size());
    std::map<std::string, Json> fieldsOf;
    std::map<std::string, Json> uses;
    std::map<std::string, Json> derived;
    for (const Json& container : model.at("classes")) {
        const std::string name = container.at("name");
        fieldsOf[name] = container.at("fields");
        derived[container.at("base")].push_back(name);
        for (const Json& field : container.at("fields")) {
            if (field.at("declaredBy") == name && field.contains("class")) {
                uses[field.at("class")].push_back({{"class", name}, {"field", field.at("name")}});
            }
        }
    }
    for (const Json& container : model.at("classes")) {
        const std::string name = container.at("name");
        SCOPED_TRACE(name);
        const Listed& listed = listing.at(name);
        const std::string element = container.at("element");
        EXPECT_EQ(container.at("base"), listed.base);
        EXPECT_EQ(element + (container.at("isRoot") ? ", root" : ""), listed.element);
        EXPECT_EQ(container.at("usedBy"), uses.contains(name) ? uses[name] : Json::array());
        EXPECT_EQ(container.at("derived"), derived.contains(name) ? derived[name] : Json::array());
        const Json inherited = fieldsOf.contains(listed.base) ? fieldsOf[listed.base] : Json::array();
        ASSERT_EQ(container.at("fields").size(), inherited.size() + listed.rows.size());
        for (std::size_t i = 0; i < container.at("fields").size(); ++i) {
            const Json& field = container.at("fields")[i];
            if (i < inherited.size()) {
                EXPECT_EQ(field, inherited[i]);
            } else {
                EXPECT_EQ(field.at("declaredBy"), name);
                EXPECT_EQ(ListedRow(field, listing), listed.rows[i - inherited.size()]);
            }
        }
    }
    for (const Json& enumeration : model.at("enumerations")) {
        std::vector<Row> words;
        for (const Json& word : enumeration.at("words")) {
            words.push_back({word.at("number").dump() + " " + word.at("word").get<std::string>()});
        }
        EXPECT_EQ(words, listing.at(enumeration.at("name")).rows) << enumeration.at("name");
        const std::string name = enumeration.at("name");
        EXPECT_EQ(enumeration.at("usedBy"), uses.contains(name) ? uses[name] : Json::array()) << name;
    }
}

TEST_F(Model, IsListedInOneLineForEachPart) {
    const std::string list = Run("model").out;
    const Json model = Parts();
    std::map<std::string, std::size_t> lines;
    std::istringstream stream(list);
    for (std::string line; std::getline(stream, line);) {
        ++lines[line.substr(0, line.find(' '))];
    }
    std::size_t roots = 0;
    for (const Json& container : model.at("classes")) {
        roots += container.at("isRoot") ? 1U : 0U;
    }
    EXPECT_EQ(lines, (std::map<std::string, std::size_t>{{"class", model.at("classes").size()},
                                                         {"enumeration", model.at("enumerations").size()},
                                                         {"root", roots}}));
    for (const char* const line : {"\nroot  CommConfig +CommConfigType +StructuralConfigLoader\n",
                                   "\nclass  ActionItemType +ActionItem +StateActionBasicType +5 fields\n",
                                   "\nenumeration  ParityType +3 words\n"}) {
        EXPECT_TRUE(std::regex_search(list, std::regex(line))) << line;
    }
}

TEST_F(Model, TellsWhatAPartIs) {
    const struct {
        const char* arguments;
        int code;
        const char* told; ///< by standard output, or by standard error when the code is not 0
    } cases[] = {
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

TEST_F(Model, GivesASchemaThatTellsDocumentsApart) {
    const struct {
        const char* root;
        const char* document; ///< an example by its name, or a text
        bool isValid;
    } cases[] = {
        {"StateProcessingRoot", "StateProcessingRoot.xml", true},
        {"StateProcessingRoot", "StateProcessingRoot.coupons.xml", true},
        {"StateProcessingRoot", "StateProcessingRoot.loyalty.xml", true},
        {"StateProcessingRoot", "StateProcessingRoot.ageverification.xml", true},
        {"StateProcessingRoot", "StateProcessingRoot.nightmode.xml", true},
        {"StateProcessingRoot", "StateProcessingRoot.mistakes.xml", false},
        {"StateProcessingRoot", "CommConfig.xml", false},
        {"LoadConfig", "LoadConfig.xml", true},
        {"CaptureConfig", "CaptureConfig.xml", true},
        {"CommConfig", "CommConfig.xml", true},
        {"CommConfig", "<CommConfig FeatureID='A'><CommEntry name='b' MergeAction='Remove'/></CommConfig>", true},
        {"CommConfig", "<CommConfig><CommEntry MergeAction='Delete'/></CommConfig>", false},
        {"CommConfig", "<CommConfig><CommEntry PlacementOrder='Before' PlacementIndex='b'/></CommConfig>", true},
        {"CommConfig", "<CommConfig><CommEntry nmae='b'/></CommConfig>", false},
        {"CommConfig", "<CommConfig><CommEntry><Parameters><Mode/></Parameters></CommEntry></CommConfig>", true},
        {"CommConfig", "<CommConfig><CommEntry><Parameters><Mode>Client</Mode></Parameters></CommEntry></CommConfig>",
         false},
        {"CommConfig", "<CommConfig><CommEntry><Parameters><Port>x</Port></Parameters></CommEntry></CommConfig>",
         false},
    };
    Put("all.xsd", Run("model --format xsd").out);
    for (const auto& [root, document, isValid] : cases) {
        SCOPED_TRACE(document);
        const std::string text = document;
        const std::string file = text.starts_with("<") ? "document.xml" : "examples/" + text;
        if (file == "document.xml") {
            Put(file, text);
        }
        Put("part.xsd", Run(std::string("model ") + root + " --format xsd").out);
        EXPECT_EQ(IsValid("part.xsd", file), isValid) << Get("valid.txt");
        EXPECT_EQ(IsValid("all.xsd", file), isValid || text == "CommConfig.xml") << Get("valid.txt");
        EXPECT_FALSE(Holds(Get("valid.txt"), "compile")) << "no schema: " << Get("valid.txt");
    }
}

} // namespace
