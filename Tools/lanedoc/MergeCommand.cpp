#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <system_error>

#include "BaseLosses.h"
#include "Commands.h"
#include "Conflicts.h"
#include "MergeOutput.h"
#include "Place.h"
#include "ReportJson.h"
#include "Summary.h"

namespace Lanedoc {

namespace {

enum class OnConflict { Error, Warn, Last };

struct MergeOptions {
    MergeArguments documents;
    std::string output = "-";
    std::string report; ///< empty when none is wanted
    std::string reportFormat;
    Provenance provenance = Provenance::None;
    OnConflict onConflict = OnConflict::Warn;
    bool keepGoing = false;
    bool summary = false;
    std::size_t depth = 0;
};

/// Whether both names are of one file. Devices take whatever comes.
bool IsSameFile(const std::string& one, const std::string& other) {
    std::error_code notThere;
    const auto plain = [](const std::string& name) { return std::filesystem::path(name).lexically_normal(); };
    const bool isOne = plain(one) == plain(other) || std::filesystem::equivalent(one, other, notThere);
    return isOne && !std::filesystem::is_character_file(one, notThere);
}

/// A report must not go where a document is, or will be.
void CheckReport(const MergeOptions& options, const MergeInput& input) {
    std::vector<std::string> documents = {options.output, input.base->Name()};
    for (const Override& change : input.overrides) {
        documents.push_back(change.source->Name());
    }
    for (const std::string& document : documents) {
        if (IsSameFile(options.report, document)) {
            throw Failure(ExitCode::WrongUse,
                          "lanedoc: error: the report cannot go where a document is: " +
                              (options.report == "-" ? "standard output; name a file by -o" : Printable(document)));
        }
    }
}

void TellAll(const std::vector<Message>& all, Messages& messages) {
    for (const Message& message : all) {
        messages.Tell(message);
    }
}

std::vector<std::string> RefusalsOf(const MergedOverride& merged) {
    std::vector<std::string> texts;
    for (const Message& message : merged.messages) {
        if (message.severity == Severity::Error) {
            DocumentPlace place = message.place;
            place.File.clear();
            const std::string at = place.IsKnown() ? PlaceName(place) + ": " : "";
            texts.push_back(at + (message.path.empty() ? "" : message.path + ": ") + message.text);
        }
    }
    return texts;
}

/// Merges all, and tells of each override what is wrong with it, and the summary if it is wanted.
void MergeEach(MergeRun& run, Messages& messages, const MergeOptions& options, const Style& style) {
    while (!run.IsDone()) {
        const std::optional<Snapshot> before = options.summary ? std::optional(TakeSnapshot(run.Tree())) : std::nullopt;
        const MergedOverride& merged = run.MergeNext();
        TellOf(merged, messages, options.documents.quiet);
        if (before.has_value()) {
            FeatureReport report{merged.feature, merged.document, merged.replacesAll, {}, RefusalsOf(merged)};
            report.differences = CompareTrees(*before, run.Tree());
            std::string summary = SummaryOf(report, options.depth, style);
            summary.pop_back();
            Say(summary);
        }
    }
}

/// Tells of the conflicts, and returns how many of them forbid to write.
std::size_t TellConflicts(const MergeRun& run, Messages& messages, const MergeOptions& options) {
    const bool isError = options.onConflict == OnConflict::Error;
    if (!isError && (options.onConflict == OnConflict::Last || options.documents.quiet)) {
        return 0;
    }
    const std::vector<Message> conflicts =
        ConflictMessages(run, options.documents, isError ? Severity::Error : Severity::Warning);
    TellAll(conflicts, messages);
    return isError ? conflicts.size() : 0;
}

void WriteReport(const MergeRun& run, const MergeOptions& options) {
    const bool isJson =
        options.reportFormat.empty() ? options.report.ends_with(".json") : options.reportFormat == "json";
    std::optional<OutputFile> file;
    if (options.report != "-") {
        file.emplace(options.report);
    }
    const auto write = [&file](std::string_view piece) { file ? file->Write(piece) : WriteOutput(piece); };
    if (isJson) {
        JsonStream json(write);
        WriteReportAsJson(run, ReportScope::Everything, json);
    } else {
        write(ReportAsText(run, ReportScope::Everything, Style(false)));
    }
    if (file) {
        file->Close();
    }
}

[[noreturn]] void Refuse(std::size_t refused, std::size_t conflicts) {
    const std::size_t problems = refused + conflicts;
    throw Failure(ExitCode::MergeRefused, "lanedoc: merge refused, nothing is written: " + std::to_string(problems) +
                                              (problems == 1 ? " problem" : " problems") +
                                              (conflicts > 0 ? "; --on-conflict warn lets the later feature win"
                                                             : "; --keep-going writes the rest"));
}

ExitCode Merge(const MergeOptions& options, ColorMode color) {
    MergeInput input = ReadMergeInput(options.documents);
    if (!options.report.empty()) {
        CheckReport(options, input);
    }
    Messages messages = MessagesAbout(input, options.documents, StyleOfErrors(color));
    MergeRun run(input);
    if (!options.documents.quiet) {
        TellAll(LossesIn(*input.base), messages);
        TellAll(run.BaseMessages(), messages);
    }
    MergeEach(run, messages, options, StyleOfErrors(color));
    const std::size_t conflicts = TellConflicts(run, messages, options);
    messages.TellCount();
    if (!options.report.empty()) {
        WriteReport(run, options);
    }
    const std::size_t refused = run.Refused();
    if (conflicts > 0 || (refused > 0 && !options.keepGoing)) {
        Refuse(refused, conflicts);
    }
    WriteMerged(run, options.provenance, options.output);
    return refused > 0 ? ExitCode::MergeRefused : ExitCode::Done;
}

/// An option that takes one of some words.
template <typename Choice>
CLI::Option* AddChoice(CLI::App& command, const std::string& name, const std::string& description,
                       const std::map<std::string, Choice>& words, Choice& chosen) {
    const auto choose = [words, &chosen](const std::string& word) { chosen = words.at(word); };
    return command.add_option_function<std::string>(name, choose, description)
        ->check(CLI::IsMember(words).description(""));
}

void AddOutputOptions(CLI::App& command, MergeOptions& options) {
    command
        .add_option("-o,--output", options.output,
                    "Where the result goes, replaced as a whole or not at all; \"-\" (default) for standard output")
        ->type_name("FILE");
    AddChoice<Provenance>(
        command, "--provenance",
        "none (default), or comments or attributes in the result that tell which feature set a "
        "value, and where",
        {{"none", Provenance::None}, {"comments", Provenance::Comments}, {"attributes", Provenance::Attributes}},
        options.provenance)
        ->type_name("HOW");
    CLI::Option* const report =
        command
            .add_option("--report", options.report,
                        "Tell there what became of every edit of every override; \"-\" for standard output, when "
                        "the result goes elsewhere")
            ->type_name("FILE");
    command.add_option("--report-format", options.reportFormat, "text or json (default: json when FILE ends in .json)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"text", "json"}).description(""))
        ->needs(report);
}

void AddProblemOptions(CLI::App& command, MergeOptions& options) {
    AddChoice<OnConflict>(command, "--on-conflict",
                          "When two features disagree the later one wins: warn (default) of it, last says nothing, "
                          "error writes nothing",
                          {{"error", OnConflict::Error}, {"warn", OnConflict::Warn}, {"last", OnConflict::Last}},
                          options.onConflict)
        ->type_name("POLICY");
    command.add_flag("--keep-going", options.keepGoing,
                     "Write the result although parts of an override were refused; the exit code is 4 all the same");
}

void AddSummaryOptions(CLI::App& command, MergeOptions& options) {
    CLI::Option* const summary = command.add_flag(
        "--summary", options.summary,
        "Tell on standard error what each feature added (+), changed (~), replaced (*), removed (-) and "
        "moved (>), and what of it was refused (!)");
    command.add_option("--depth", options.depth, "Of what lies below N steps the summary tells only how much there is")
        ->type_name("N")
        ->check(CLI::PositiveNumber.description(""))
        ->needs(summary);
}

} // namespace

void AddMergeCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("merge", "Merge override documents into a base, feature by feature");
    const auto options = std::make_shared<MergeOptions>();
    AddMergeArguments(*command, options->documents);
    AddOutputOptions(*command, *options);
    AddProblemOptions(*command, *options);
    AddSummaryOptions(*command, *options);
    command->footer(std::string(R"(Examples:
  lanedoc merge StateProcessingRoot.xml coupons.xml > merged.xml
  lanedoc merge StateProcessingRoot.xml Coupons=coupons.xml Store12=store.xml -o merged.xml --summary
  lanedoc merge base.xml night.xml store.xml -o merged.xml --on-conflict error --report merged.json

)") + aboutFeatures +
                    R"(
All documents are read before anything is written. What an override asks for in vain, such as Remove of an entry that
is not there, is an error; what a merge passes over or reads as something else is a warning. The result is a new
document: it holds what the fields of the classes name, so comments and unknown elements of the base are not in it,
which is warned of. A report is written even when the result is not.

Exit codes: 0 written, 2 wrong use, 3 bad input, 4 refused (nothing is written without --keep-going), 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Merge(*options, request.color); }; });
}

} // namespace Lanedoc
