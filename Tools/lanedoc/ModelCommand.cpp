#include <memory>

#include "Commands.h"
#include "ModelJson.h"
#include "ModelSchema.h"
#include "ModelTable.h"

namespace Lanedoc {

namespace {

struct ModelOptions {
    std::string name;
    std::string format = "table";
};

ExitCode ShowModel(const ModelOptions& options, ColorMode color) {
    const bool isWhole = options.name.empty();
    const ModelParts parts = isWhole ? WholeModel() : FindModelPart(options.name);
    if (options.format == "json") {
        WriteOutput(ModelAsJson(parts));
    } else if (options.format == "xsd") {
        WriteOutput(ModelAsSchema(parts));
    } else {
        WriteOutput(isWhole ? ModelAsList(parts) : ModelAsTable(parts, StyleOfOutput(color)));
    }
    return ExitCode::Done;
}

} // namespace

void AddModelCommand(CLI::App& tool, Request& request) {
    CLI::App* const command =
        tool.add_subcommand("model", "Tell what documents may hold: root elements, classes, fields, vocabularies");
    const auto options = std::make_shared<ModelOptions>();
    command->add_option("NAME", options->name, "A class, a root element or a vocabulary; all of them when left out");
    command->add_option("--format", options->format, "table (default), json or xsd")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"table", "json", "xsd"}).description(""));
    command->footer(R"(Without NAME the table has one line for each part:
  root NAME CLASS BASE, class NAME ELEMENT BASE FIELDS, enumeration NAME WORDS

The JSON is described in Docs/JsonFormat.md. The XSD is one file with all that NAME uses: it validates documents, and
the class generator takes it.

Examples:
  lanedoc model | grep '^root'
  lanedoc model StateDefinitionType
  lanedoc model ParityType
  lanedoc model CommConfig --format xsd > CommConfig.xsd
  lanedoc model --format json | jq -r '.classes[] | select(.isRoot) | .name'

Exit codes: 0 printed, 1 there is no such class, root element or vocabulary, 2 wrong use, 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return ShowModel(*options, request.color); }; });
}

} // namespace Lanedoc
