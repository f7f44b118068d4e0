#include <memory>
#include <set>

#include "Commands.h"
#include "FormatOption.h"
#include "History.h"
#include "JsonStream.h"
#include "MergeRun.h"
#include "NearestName.h"
#include "Place.h"
#include "TreeValues.h"

namespace Lanedoc {

namespace {

using Writer = MergeJournal::Writer;

// Who gave a value that no feature gave, in the column of the features.
constexpr const char* byBase = "Base";
constexpr const char* byDefault = "default";

struct BlameOptions {
    MergeArguments documents;
    std::string feature;
    std::string format = "text";
    bool noDefaults = false;
};

std::string FeatureOf(const Writer& origin) {
    switch (origin.Who) {
    case Writer::Kind::Default:
        return byDefault;
    case Writer::Kind::Base:
        return byBase;
    case Writer::Kind::Feature:
        break;
    }
    return origin.FeatureID;
}

class Blame {
public:
    Blame(const MergeRun& run, const BlameOptions& options) : m_run(run), m_options(options) {}

    std::string AsText() {
        std::string text;
        ForEachAsked([&](const TreeValue& value, const Writer& origin) {
            const bool isGiven = origin.Who != Writer::Kind::Default;
            text += (isGiven ? PlaceName(AsNamed(origin.Place)) : "-") + '\t' + Printable(FeatureOf(origin)) + '\t' +
                    Printable(value.path) + '\t' + Printable(value.text) + '\n';
        });
        return text;
    }

    void WriteAsJson() {
        JsonStream json(&WriteOutput);
        json.OpenObject();
        json.Add("format", jsonFormat);
        json.Add("root", m_run.Input().base->RootName());
        json.OpenArray("values");
        ForEachAsked([&json](const TreeValue& value, const Writer& origin) { json.Add(ValueAsJson(value, origin)); });
        json.Close();
        json.Close();
    }

private:
    static Json ValueAsJson(const TreeValue& value, const Writer& origin) {
        Json json = {{"path", value.path}, {"value", value.text}, {"who", WhoName(origin.Who)}};
        json["feature"] = origin.FeatureID.empty() ? Json() : Json(std::string(origin.FeatureID));
        json.update(JsonOf(AsNamed(origin.Place)));
        json["isReset"] = origin.IsReset;
        return json;
    }

    template <typename Visit> void ForEachAsked(const Visit& visit) {
        ForEachValue(m_run.Tree(), [&](const TreeValue& value) {
            const Writer origin = m_run.Journal().OriginOf(m_run.Tree(), value.path);
            const bool isLeftOut = m_options.noDefaults && origin.Who == Writer::Kind::Default;
            if (!isLeftOut && (m_options.feature.empty() || m_options.feature == FeatureOf(origin))) {
                visit(value, origin);
            }
        });
    }

    const MergeRun& m_run;
    const BlameOptions& m_options;
};

void CheckFeature(const std::string& feature, const MergeInput& input) {
    std::set<std::string> known = {byBase, byDefault};
    for (const Override& change : input.overrides) {
        known.insert(change.feature);
    }
    if (!feature.empty() && !known.contains(feature)) {
        const std::vector<std::string> names(known.begin(), known.end());
        const std::vector<std::string> nearest = NearestNames(feature, names);
        throw Failure(ExitCode::WrongUse,
                      "lanedoc: error: no feature " + Quoted(feature) + " is merged; " +
                          (nearest.empty() ? "there are " + JoinNames(names) : DidYouMean(nearest)));
    }
}

ExitCode RunBlame(const BlameOptions& options, ColorMode color) {
    MergeInput input = ReadMergeInput(options.documents);
    CheckFeature(options.feature, input);
    Messages messages = MessagesAbout(input, options.documents, StyleOfErrors(color));
    MergeRun run(input);
    MergeAll(run, messages, options.documents.quiet);
    Blame blame(run, options);
    if (options.format == "json") {
        blame.WriteAsJson();
    } else {
        WriteOutput(blame.AsText());
    }
    messages.TellCount();
    return ExitCode::Done;
}

} // namespace

void AddBlameCommand(CLI::App& tool, Request& request) {
    CLI::App* const command =
        tool.add_subcommand("blame", "Print every value of the merged document and where it comes from");
    const auto options = std::make_shared<BlameOptions>();
    AddMergeArguments(*command, options->documents);
    command
        ->add_option("--feature", options->feature,
                     "Only values that this feature gave; \"Base\" stands for the base, \"default\" for nobody")
        ->type_name("NAME");
    command->add_flag("--no-defaults", options->noDefaults, "Leave out the values that nobody gave");
    AddFormatOption(*command, options->format);
    command->footer(std::string(R"(Examples:
  lanedoc blame StateProcessingRoot.xml coupons.xml night.xml | grep 'State\[Name=Scan\]/'
  lanedoc blame StateProcessingRoot.xml coupons.xml night.xml --feature NightMode | cut -f 1,3

A line has four columns, with a tab between them: file:line:column of the value, the feature, the path, the value. The
feature is Base for what the base has, whatever FeatureID that bears; what nobody gave has "-" and "default". Control
characters are shown as \n and the like. Of a value that a feature took back to its default by Replace or Clear, the
place is that of the word. The JSON is described in Docs/JsonFormat.md.

)") + aboutFeatures +
                    R"(

Exit codes: 0 printed, 2 wrong use, 3 bad input, 5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return RunBlame(*options, request.color); }; });
}

} // namespace Lanedoc
