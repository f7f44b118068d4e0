#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>

#include "Commands.h"
#include "IssueLog.h"
#include "MergeWarnings.h"
#include "Source.h"
#include "Summary.h"

namespace Lanedoc {

namespace {

struct MergeOptions {
    std::string base;
    std::vector<std::string> overrides;
    std::string output = "-";
    bool keepGoing = false;
    bool summary = false;
    std::size_t depth = 0;
    bool quiet = false;
};

/// An override as the command line names it.
struct OverrideArgument {
    std::string feature; ///< empty when it is not given
    std::string path;
};

bool IsPlainWord(const std::string& text) {
    constexpr const char* letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-.";
    return !text.empty() && text.find_first_not_of(letters) == std::string::npos;
}

OverrideArgument ReadOverrideArgument(const std::string& argument) {
    const std::size_t equals = argument.find('=');
    std::error_code ignored;
    if (equals == std::string::npos || !IsPlainWord(argument.substr(0, equals)) ||
        std::filesystem::exists(argument, ignored)) {
        return {{}, argument};
    }
    return {argument.substr(0, equals), argument.substr(equals + 1)};
}

struct Override {
    std::unique_ptr<Source> source;
    std::string feature;
};

/// The documents of a merge. All are read before anything is done with one.
struct MergeInput {
    std::unique_ptr<Source> base;
    std::vector<Override> overrides;
};

MergeInput ReadInput(const MergeOptions& options) {
    std::vector<OverrideArgument> arguments;
    for (const std::string& text : options.overrides) {
        arguments.push_back(ReadOverrideArgument(text));
    }
    const auto fromInput =
        std::count_if(arguments.begin(), arguments.end(), [](const auto& a) { return a.path == "-"; });
    if (fromInput + (options.base == "-" ? 1 : 0) > 1) {
        throw Failure(ExitCode::WrongUse, "lanedoc: error: standard input can be one document only");
    }
    MergeInput input;
    input.base = std::make_unique<Source>(options.base);
    static_cast<void>(input.base->Class()); // an unknown base is told before any trouble with the overrides
    for (const OverrideArgument& argument : arguments) {
        auto source = std::make_unique<Source>(argument.path);
        if (source->RootName() != input.base->RootName()) {
            throw Failure(ExitCode::BadInput, source->RootPlace() + ": error: the root element is " +
                                                  Printable(source->RootName()) + ", expected " +
                                                  input.base->RootName() + " as in " + Printable(input.base->Name()));
        }
        std::string feature = argument.feature.empty() ? source->Feature() : argument.feature;
        input.overrides.push_back({std::move(source), std::move(feature)});
    }
    return input;
}

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
    const MergeInput input = ReadInput(options);
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
    command->add_option("BASE", options->base, "The document to merge into, \"-\" for standard input")->required();
    command->add_option("OVERRIDE", options->overrides, "What is merged into it, in this order; see below")
        ->required()
        ->type_name("[FEATURE=]FILE");
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
