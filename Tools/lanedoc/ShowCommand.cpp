#include <memory>

#include "Commands.h"
#include "FormatOption.h"
#include "Source.h"
#include "TreeJson.h"
#include "TreeText.h"

namespace Lanedoc {

namespace {

struct ShowOptions {
    std::string file;
    std::string path;
    std::string format = "text";
    bool noDefaults = false;
};

ExitCode Show(const ShowOptions& options, ColorMode color) {
    Source source(options.file);
    const std::unique_ptr<TypedDataContainer> tree = source.Load();
    const TreeNode node = FindNode(*tree, options.path);
    const bool defaults = !options.noDefaults;
    WriteOutput(options.format == "json" ? TreeAsJson(node, source.RootName(), defaults)
                                         : TreeAsText(node, source.RootName(), defaults, StyleOfOutput(color)));
    return ExitCode::Done;
}

} // namespace

void AddShowCommand(CLI::App& tool, Request& request) {
    CLI::App* const command =
        tool.add_subcommand("show", "Show a document, or a part of it, as the tree that programs see");
    const auto options = std::make_shared<ShowOptions>();
    command->add_option("FILE", options->file, "The document, \"-\" for standard input")->required();
    command->add_option("PATH", options->path, "The part to show; all of it when left out");
    AddFormatOption(*command, options->format);
    command->add_flag("--no-defaults", options->noDefaults, "Leave out the values that are only defaults");
    command->footer(R"(Examples:
  lanedoc show LoadConfig.xml
  lanedoc show StateProcessingRoot.xml 'StateTable/State[Name=Scan]' --no-defaults
  lanedoc show CommConfig.xml --format json | jq '.value.CommEntry[] | {name, set: (keys - ."$defaults")}'

The JSON is described in Docs/JsonFormat.md. It names the values that are only defaults under "$defaults".

Exit codes: 0 shown, 1 there is no such part, 2 wrong use, 3 bad input, 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Show(*options, request.color); }; });
}

} // namespace Lanedoc
