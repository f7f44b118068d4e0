#include <algorithm>
#include <filesystem>
#include <memory>

#include "Commands.h"
#include "IssueLog.h"
#include "Source.h"
#include "Summary.h"
#include "TreeDiff.h"

namespace Lanedoc {

namespace {

struct MergeOptions {
    std::string base;
    std::vector<std::string> overrides;
    std::string output = "-";
    bool keepGoing = false;
    bool summary = false;
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

bool MergeInto(TypedDataContainer& tree, const Override& change) {
    change.source->Document().SetCurrentNode(nullptr);
    return tree.MergeFromDataPacket(nullptr, change.feature, &change.source->Document(), false);
}

void Write(TypedDataContainer& tree, const std::string& output) {
    if (output != "-") {
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
    WriteOutput(text);
}

ExitCode Merge(const MergeOptions& options, ColorMode color) {
    const MergeInput input = ReadInput(options);
    const Style style = StyleOfErrors(color);
    IssueLog issues;
    const std::unique_ptr<TypedDataContainer> tree = input.base->Load();
    issues.Report("warning", input.base->Name());
    // The tree as it was before the feature at hand: each feature is merged into it once it has been compared.
    std::unique_ptr<TypedDataContainer> before;
    if (options.summary) {
        before = input.base->Load();
        issues.Forget();
    }
    std::size_t problems = 0;
    std::string summary;
    for (const Override& change : input.overrides) {
        const bool merged = MergeInto(*tree, change);
        if (!merged && issues.Count() == 0) {
            ++problems;
            Say(WithSeverity(tree->GetLastError(), "error", change.source->Name()));
        }
        problems += issues.Count();
        issues.Report("error", change.source->Name());
        if (before != nullptr) {
            summary += SummaryOf(change.feature, CompareTrees(*before, *tree), style);
            MergeInto(*before, change);
            issues.Forget();
        }
    }
    if (problems > 0 && !options.keepGoing) {
        throw Failure(ExitCode::MergeRefused,
                      "lanedoc: merge refused, nothing is written: " + std::to_string(problems) +
                          (problems == 1 ? " problem" : " problems") + "; --keep-going writes the rest");
    }
    Write(*tree, options.output);
    if (!summary.empty()) {
        summary.pop_back();
        Say(summary);
    }
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
    command->add_flag("--summary", options->summary, "Tell on standard error what each feature added and changed");
    command->footer(R"(Examples:
  lanedoc merge StateProcessingRoot.xml coupons.xml > merged.xml
  lanedoc merge StateProcessingRoot.xml Coupons=coupons.xml Store12=store.xml -o merged.xml --summary

FEATURE is what the override is merged as: without it the FeatureID of its root element, else the name of the file.
All documents are read before anything is written. Problems are reported as file:line:column: error: text.

Exit codes: 0 written, 2 wrong use, 3 bad input, 4 refused (nothing is written without --keep-going), 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Merge(*options, request.color); }; });
}

} // namespace Lanedoc
