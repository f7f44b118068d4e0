#include <memory>

#include "Commands.h"
#include "FormatOption.h"
#include "HistoryPrint.h"
#include "MergeRun.h"

namespace Lanedoc {

namespace {

struct ExplainOptions {
    MergeArguments documents;
    std::string path;
    std::string format = "text";
};

ExitCode Explain(const ExplainOptions& options, ColorMode color) {
    MergeInput input = ReadMergeInput(options.documents);
    Messages messages = MessagesAbout(input, options.documents, StyleOfErrors(color));
    MergeRun run(input);
    MergeAll(run, messages, options.documents.quiet);
    const History history = HistoryOf(run, options.path);
    WriteOutput(options.format == "json" ? HistoryAsJson(history, input.base->RootName())
                                         : HistoryAsText(history, StyleOfOutput(color)));
    messages.TellCount();
    return history.isThere ? ExitCode::Done : ExitCode::AnswerIsNo;
}

} // namespace

void AddExplainCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("explain", "Tell who set one value of the merged document");
    const auto options = std::make_shared<ExplainOptions>();
    AddMergeArguments(*command, options->documents);
    command->add_option("-p,--path", options->path, "The value; of a container or list: who added or removed it")
        ->required()
        ->type_name("PATH");
    AddFormatOption(*command, options->format);
    command->footer(std::string(R"(Examples:
  lanedoc explain StateProcessingRoot.xml coupons.xml night.xml --path 'StateTable/State[Name=Scan]/BaseState'
  lanedoc explain StateProcessingRoot.xml coupons.xml --path 'StateTable/State[Name=Coupon]' --format json

Prints all who wrote the value, the first one first: the base or the default, then the features. The one whose doing the
value is has a "*". Attempts that were refused or passed over stand among them. What is not in the merged document is
explained too when a feature took it away. The JSON is described in Docs/JsonFormat.md.

)") + aboutFeatures +
                    R"(

Exit codes: 0 it is there, 1 it is not, 2 wrong use, 3 bad input, 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Explain(*options, request.color); }; });
}

} // namespace Lanedoc
