#include <memory>

#include "Commands.h"
#include "FormatOption.h"
#include "ReportJson.h"

namespace Lanedoc {

namespace {

struct PlanOptions {
    MergeArguments documents;
    std::string format = "text";
};

bool HasChanges(const MergeJournal& journal) {
    for (std::size_t number = 0; number < journal.Size(); ++number) {
        const MergeJournal::Entry entry = journal.At(number);
        if (!entry.Problem.has_value() && entry.Result < MergeJournal::Outcome::Unchanged) {
            return true;
        }
    }
    return false;
}

ExitCode Plan(const PlanOptions& options, ColorMode color) {
    MergeInput input = ReadMergeInput(options.documents);
    Messages messages = MessagesAbout(input, options.documents, StyleOfErrors(color));
    MergeRun run(input);
    MergeAll(run, messages, options.documents.quiet);
    if (options.format == "json") {
        JsonStream json(&WriteOutput);
        WriteReportAsJson(run, ReportScope::Changes, json);
    } else {
        WriteOutput(ReportAsText(run, ReportScope::Changes, StyleOfOutput(color)));
    }
    messages.TellCount();
    if (run.Refused() > 0) {
        return ExitCode::MergeRefused;
    }
    return HasChanges(run.Journal()) ? ExitCode::AnswerIsNo : ExitCode::Done;
}

} // namespace

void AddPlanCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("plan", "Tell what a merge would do, feature by feature");
    const auto options = std::make_shared<PlanOptions>();
    AddMergeArguments(*command, options->documents);
    AddFormatOption(*command, options->format);
    command->footer(std::string(R"(Examples:
  lanedoc plan StateProcessingRoot.xml coupons.xml Store12=store.xml
  lanedoc plan merged.xml coupons.xml --quiet >/dev/null || echo "coupons.xml is not in merged.xml yet"

Nothing is written. A line says what becomes of a part, where the override asks for it, the path, and the values before
and after. An edit that gives a part what it has already is no change. What an override asks for in vain is in the plan
and told on standard error. The JSON is described in Docs/JsonFormat.md.

)") + aboutFeatures +
                    R"(

Exit codes: 0 nothing would change, 1 something would, 2 wrong use, 3 bad input, 4 something would be refused, 5 output
failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Plan(*options, request.color); }; });
}

} // namespace Lanedoc
