#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "LanedocRuns.h"

namespace {

using Json = nlohmann::json;

class LanedocJson : public LanedocRuns {
protected:
    static Json Show(const std::string& arguments) {
        const Result result = Run("show " + arguments + " --format json");
        EXPECT_EQ(result.code, 0) << result.errors;
        return Json::parse(result.out);
    }
};

TEST_F(LanedocJson, SaysWhatStandsInTheDocumentAndWhatIsOnlyADefault) {
    Put("comm.xml", R"(<CommConfig>
  <CommEntry name="Scale">
    <Parameters><Port>7411</Port><Mode>CLIENT</Mode><SerialParameters><Parity>ODD</Parity></SerialParameters></Parameters>
    <Parameters>
      <HostName/>
      <SerialParameters><BaudRate>9600</BaudRate></SerialParameters>
    </Parameters>
  </CommEntry>
</CommConfig>)");
    // What the first of two elements of one child holds is no default, but for what every load assigns.
    const Json parameters = Show("comm.xml").at("value").at("CommEntry")[0].at("Parameters");
    EXPECT_EQ(parameters.at("$defaults"), (Json{"CommHandlerFactoryName", "CommHandlerFactoryMethod", "FileName",
                                                "NumConnections", "DeviceDescList", "MaxBufferSize"}));
    EXPECT_EQ(parameters.at("MaxBufferSize"), 16384);
    EXPECT_EQ(parameters.at("HostName"), "");
    const Json serial = parameters.at("SerialParameters");
    EXPECT_EQ(serial.at("$defaults"), (Json{"PortLoaderFactoryName", "PortLoaderFactoryMethod", "DataBits", "Parity",
                                            "StopBits", "Control", "Stxchar", "Etxchar"}));
    EXPECT_EQ(serial.at("Parity"), "EVEN");

    EXPECT_EQ(Show("comm.xml --no-defaults 'CommEntry[1]/Parameters'").at("value"), Json::parse(R"({
        "$class": "CommParametersType", "Mode": "CLIENT", "HostName": "", "Port": 7411,
        "SerialParameters": {"$class": "SerialParametersType", "BaudRate": 9600}})"));
}

TEST_F(LanedocJson, HasOneFormForEveryValue) {
    Put("state.xml", R"(<StateProcessingRoot Version="1">
  <RevisionHistory fileName="a.xml">first</RevisionHistory>
  <StateTable><State Name="a/b]&quot;c" CacheActions="yes"><Doc>one</Doc><Doc Index="7">"2" é</Doc></State></StateTable>
</StateProcessingRoot>)");
    Put("log.xml", R"(<LoggingInformationPacket><Lane>-2147483648</Lane><ItemInformation>
  <ItemPrice>0.1</ItemPrice><NofPrice>-INF</NofPrice><PricePerUnitUsed>3</PricePerUnitUsed>
  <LaneType>Sideways</LaneType><MultiBreak/><BreadTail/><ItemQuantity>many</ItemQuantity>
</ItemInformation></LoggingInformationPacket>)");
    Put("precise.xml", "<LoggingInformationPacket><ItemInformation><ItemPrice>5e-324</ItemPrice>"
                       "<NofPrice>NaN</NofPrice><PricePerUnitUsed>9007199254740993.5</PricePerUnitUsed>"
                       "</ItemInformation></LoggingInformationPacket>");
    Put("capture.xml",
        "<CaptureConfig><Files><File/></Files><Rules><Rule><SubRule>"
        "<CaptureLevel>CAPTURE_LEVEL_DEBUG</CaptureLevel><CaptureLevel>LOUD</CaptureLevel><CaptureLevel/>"
        "</SubRule></Rule></Rules></CaptureConfig>");
    const struct {
        const char* arguments;
        const char* answer; ///< class, isDefault and value, in JSON's own words
    } cases[] = {
        {"state.xml RevisionHistory", R"({"value": [{"key": "a.xml", "value": "first"}]})"},
        {"state.xml 'StateTable/State[1]/Doc'",
         R"({"value": [{"key": "1", "value": "one"}, {"key": "2", "value": "\"2\" é"}]})"},
        {"state.xml 'StateTable/State[1]/Transient'", R"({"isDefault": true, "value": false})"},
        {"state.xml 'StateTable/State[1]' --no-defaults",
         R"({"class": "StateDefinitionType", "value": {"$class": "StateDefinitionType", "Name": "a/b]\"c",
             "CacheActions": true, "Doc": [{"key": "1", "value": "one"}, {"key": "2", "value": "\"2\" é"}]}})"},
        {"log.xml Lane", R"({"isDefault": false, "value": -2147483648})"},
        {"log.xml ItemInformation/PricePerUnitUsed", R"({"isDefault": false, "value": 3.0})"},
        {"log.xml ItemInformation/ItemQuantity", R"({"isDefault": false, "value": 0})"},
        {"log.xml ItemInformation/LaneType",
         R"({"class": "LaneTypeEnum", "isDefault": false, "value": {"$unknown": "Sideways"}})"},
        {"log.xml ItemInformation/BreadTail",
         R"({"class": "MultiBreakDefinition", "isDefault": false, "value": null})"},
        {"log.xml ItemInformation/OverrideMode",
         R"({"class": "OverrideModeDefinition", "isDefault": true, "value": null})"},
        {"precise.xml ItemInformation/ItemPrice", R"({"isDefault": false, "value": 5e-324})"},
        {"precise.xml ItemInformation/NofPrice", R"({"isDefault": false, "value": "NaN"})"},
        {"precise.xml ItemInformation/PricePerUnitUsed", R"({"isDefault": false, "value": 9007199254740994.0})"},
        {"capture.xml 'Rules/Rule[1]/SubRule[1]/CaptureLevel'",
         R"({"class": "CaptureLevelType", "value": ["CAPTURE_LEVEL_DEBUG", {"$unknown": "LOUD"}, null]})"},
        {"capture.xml 'Rules/Rule[1]/SubRule[1]/CaptureLevel[2]'",
         R"({"class": "CaptureLevelType", "value": {"$unknown": "LOUD"}})"},
        {"capture.xml Files/File --no-defaults",
         R"({"class": "CaptureFileConfigType", "value": [{"$class": "CaptureFileConfigType"}]})"},
    };
    for (const auto& [arguments, answer] : cases) {
        SCOPED_TRACE(arguments);
        Json shown = Show(arguments);
        for (const char* const key : {"format", "root", "path"}) {
            EXPECT_EQ(shown.erase(key), 1U) << key;
        }
        const Json expected = Json::parse(answer);
        EXPECT_EQ(shown, expected);
        // 3 and 3.0 are equal, and still the one is an int and the other a double.
        EXPECT_EQ(shown.at("value").is_number_float(), expected.at("value").is_number_float());
    }
    const std::string text = Run("show state.xml --format json").out;
    EXPECT_LT(text.find("\"RevisionHistory\""), text.find("\"StateTable\"")) << "fields in the order of the class";
}

/// The pages are a promise: what they show is what the tool prints.
TEST_F(LanedocJson, IsWhatItsPagesShow) {
    std::istringstream pages(Get(FRAMEWORK_DOCS "/JsonFormat.md") + Get(FRAMEWORK_DOCS "/Merging.md"));
    std::string shown;
    std::string command;
    std::size_t examples = 0;
    for (std::string line; std::getline(pages, line);) {
        if (line.starts_with("$ lanedoc ")) {
            command = line.substr(10);
            shown.clear();
        } else if (line == "```" && !command.empty()) {
            const Result result = Run("--version >version.txt; cd examples; '" FRAMEWORK_LANEDOC "' " + command);
            EXPECT_EQ(result.out, shown) << command << '\n' << result.errors;
            command.clear();
            ++examples;
        } else {
            shown += line + '\n';
        }
    }
    EXPECT_GE(examples, 9U);
}

} // namespace
