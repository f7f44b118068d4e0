#include <filesystem>
#include <memory>
#include <optional>

#include "Commands.h"
#include "IssueLog.h"
#include "MergeInput.h"
#include "MergeWarnings.h"
#include "Summary.h"

namespace Lanedoc {

namespace {

struct MergeOptions {
    MergeArguments documents;
    std::string output = "-";
    bool keepGoing = false;
    bool summary = false;
    std::size_t depth = 0;
    bool quiet = false;
};

/// A device or a pipe, as /dev/null or >(command): it takes the document as standard output would.
bool IsDevice(const std::string& output) {
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::status(output, error).type();
    return type == std::filesystem::file_type::character || type == std::filesystem::file_type::fifo;
}

void Write(TypedDataContainer& tree, const std::string& output) {
    const bool isDevice = output != "-" && IsDevice(output);
    if (output != "-" && !isDevice) {
        if (!tree.SaveContents(output.c_str())) {
            throw Failure(ExitCode::OutputFailed, WithSeverity(tree.GetLastError(), "error", output));
        }
        return;
    }
    const std::unique_ptr<XMLDataWrapper> document(tree.BuildAndReturnDataContent());
    const zelString text = document == nullptr ? zelString() : document->GetXMLText();
    if (text.empty()) {
        const zelString why = document == nullptr ? tree.GetLastError() : document->GetLastError();
        throw Failure(ExitCode::OutputFailed,
                      "lanedoc: error: the merged document cannot be written: " + Printable(why));
    }
    if (isDevice) {
        WriteToDevice(output, text);
    } else {
        WriteOutput(text);
    }
}

/// Loads the base; what is lost of it on the way is told.
std::unique_ptr<TypedDataContainer> LoadBase(Source& base, IssueLog& issues, bool quiet) {
    std::unique_ptr<TypedDataContainer> tree = base.Load();
    if (quiet) {
        issues.Forget();
        return tree;
    }
    WarnOfLossesIn(base);
    issues.Report("warning", base.Name(), mostWarnings);
    return tree;
}

/// Merges one override; what is refused of it is told, and put in the report.
FeatureReport MergeOne(TypedDataContainer& tree, const Override& change, IssueLog& issues) {
    FeatureReport report{change.feature, change.source->Name(), false, {}, {}};
    XMLDataWrapper& document = change.source->Document();
    document.SetCurrentNode(nullptr);
    const bool isMerged = tree.MergeFromDataPacket(nullptr, change.feature, &document, false);
    report.refusals = issues.Texts();
    issues.Report("error", change.source->Name());
    if (!isMerged && report.refusals.empty()) {
        report.refusals.emplace_back(tree.GetLastError());
        Say(WithSeverity(tree.GetLastError(), "error", change.source->Name()));
    }
    report.replacesAll = isMerged && document.GetStringValue("@MergeAction", false) == "Replace";
    return report;
}

/// Merges all overrides into the tree, in their order, and returns how much was refused. The summary is told as soon as
/// each is merged.
std::size_t MergeAll(TypedDataContainer& tree, const std::vector<Override>& overrides, IssueLog& issues,
                     const MergeOptions& options, const Style& style) {
    std::size_t problems = 0;
    std::optional<Snapshot> before;
    for (const Override& change : overrides) {
        if (!options.quiet) {
            WarnOfUnknownIn(*change.source);
        }
        if (options.summary) {
            before = TakeSnapshot(tree);
        }
        FeatureReport report = MergeOne(tree, change, issues);
        problems += report.refusals.size();
        if (before.has_value()) {
            report.differences = CompareTrees(*before, tree);
            std::string summary = SummaryOf(report, options.depth, style);
            summary.pop_back();
            Say(summary);
        }
    }
    return problems;
}

ExitCode Merge(const MergeOptions& options, ColorMode color) {
    const MergeInput input = ReadMergeInput(options.documents);
    IssueLog issues;
    const std::unique_ptr<TypedDataContainer> tree = LoadBase(*input.base, issues, options.quiet);
    const std::size_t problems = MergeAll(*tree, input.overrides, issues, options, StyleOfErrors(color));
    if (problems > 0 && !options.keepGoing) {
        throw Failure(ExitCode::MergeRefused,
                      "lanedoc: merge refused, nothing is written: " + std::to_string(problems) +
                          (problems == 1 ? " problem" : " problems") + "; --keep-going writes the rest");
    }
    Write(*tree, options.output);
    return problems > 0 ? ExitCode::MergeRefused : ExitCode::Done;
}

} // namespace

void AddMergeCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("merge", "Merge override documents into a base, feature by feature");
    const auto options = std::make_shared<MergeOptions>();
    AddMergeArguments(*command, options->documents);
    command
        ->add_option("-o,--output", options->output,
                     "Where the result goes, replaced as a whole or not at all; \"-\" (default) for standard output")
        ->type_name("FILE");
    command->add_flag("--keep-going", options->keepGoing,
                      "Write the result although parts of an override were refused; the exit code is 4 all the same");
    CLI::Option* const summary = command->add_flag(
        "--summary", options->summary,
        "Tell on standard error what each feature added (+), changed (~), replaced (*), removed (-) and "
        "moved (>), and what of it was refused (!)");
    command
        ->add_option("--depth", options->depth, "Of what lies below N steps the summary tells only how much there is")
        ->type_name("N")
        ->check(CLI::PositiveNumber.description(""))
        ->needs(summary);
    command->add_flag("-q,--quiet", options->quiet,
                      "Do not warn of what no field names: parts of the base that the result will not hold, parts of "
                      "an override that are passed over");
    command->footer(R"(Examples:
  lanedoc merge StateProcessingRoot.xml coupons.xml > merged.xml
  lanedoc merge StateProcessingRoot.xml Coupons=coupons.xml Store12=store.xml -o merged.xml --summary

FEATURE is what the override is merged as: without it the FeatureID of its root element, else the name of the file.
All documents are read before anything is written. What an override asks for in vain, such as Remove of an entry that
is not there, is reported as file:line:column: error: text. The result is a new document: it holds what the fields of
the classes name, so comments and unknown elements of the base are not in it, which is warned of.

Exit codes: 0 written, 2 wrong use, 3 bad input, 4 refused (nothing is written without --keep-going), 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Merge(*options, request.color); }; });
}

} // namespace Lanedoc
