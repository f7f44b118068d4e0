#include "MergeInput.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "Failure.h"
#include "InputFailure.h"
#include "MaxErrorsOption.h"
#include "MessageCodes.h"

namespace Lanedoc {

namespace {

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

void CheckRoot(const Source& change, const Source& base) {
    if (change.RootName() != base.RootName()) {
        Message message;
        message.code = Codes::otherRoot;
        message.place = change.PlaceOfRoot();
        message.text =
            "the root element is " + change.RootName() + ", expected " + base.RootName() + " as in " + base.Name();
        throw InputFailure(message);
    }
}

} // namespace

void AddMergeArguments(CLI::App& command, MergeArguments& arguments) {
    command.add_option("BASE", arguments.base, "The document to merge into, \"-\" for standard input")->required();
    command.add_option("OVERRIDE", arguments.overrides, "What is merged into it, in this order; see below")
        ->required()
        ->type_name("[FEATURE=]FILE");
    AddMaxErrorsOption(command, arguments.maxErrors);
    command.add_flag("-q,--quiet", arguments.quiet, "Tell errors only, no warnings");
}

MergeInput ReadMergeInput(const MergeArguments& arguments) {
    std::vector<OverrideArgument> overrides;
    for (const std::string& text : arguments.overrides) {
        overrides.push_back(ReadOverrideArgument(text));
    }
    const auto fromInput =
        std::count_if(overrides.begin(), overrides.end(), [](const auto& change) { return change.path == "-"; });
    if (fromInput + (arguments.base == "-" ? 1 : 0) > 1) {
        throw Failure(ExitCode::WrongUse, "lanedoc: error: standard input can be one document only");
    }
    MergeInput input;
    input.base = std::make_unique<Source>(arguments.base);
    static_cast<void>(input.base->Class()); // an unknown base is told before any trouble with the overrides
    for (const OverrideArgument& change : overrides) {
        auto source = std::make_unique<Source>(change.path);
        CheckRoot(*source, *input.base);
        std::string feature = change.feature.empty() ? source->Feature() : change.feature;
        input.overrides.push_back({std::move(source), std::move(feature)});
    }
    return input;
}

} // namespace Lanedoc
