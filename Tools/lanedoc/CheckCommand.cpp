#include <algorithm>
#include <memory>
#include <tuple>

#include "Commands.h"
#include "DanglingNames.h"
#include "Framework/DocumentCheck.h"
#include "InputFailure.h"
#include "IssueLog.h"
#include "JsonStream.h"
#include "MaxErrorsOption.h"
#include "Messages.h"
#include "Source.h"

namespace Lanedoc {

namespace {

struct CheckOptions {
    std::vector<std::string> files;
    bool isOverride = false;
    std::string format = "text";
    std::size_t mostMessages = Lanedoc::mostMessages;
};

/// What takes the messages, each document's before the next is read.
class Report {
public:
    virtual ~Report() = default;
    /// The source is null when the file does not load.
    virtual void Tell(const std::string& file, Source* source, const std::vector<Message>& messages) = 0;
    virtual void End() = 0;
};

class TextReport : public Report {
public:
    TextReport(std::size_t most, const Style& style)
        : m_messages(style, most, [](const std::string& lines) { WriteOutput(lines + '\n'); }) {}

    void Tell(const std::string& file, Source* source, const std::vector<Message>& messages) override {
        if (source != nullptr) {
            m_messages.AddSource(*source);
        } else {
            m_messages.AddFile(file);
        }
        for (const Message& message : messages) {
            m_messages.Tell(message);
        }
        m_messages.RemoveSource(source != nullptr ? source->Name() : file);
    }
    void End() override { m_messages.TellCount(); }

private:
    Messages m_messages;
};

class JsonReport : public Report {
public:
    JsonReport() {
        m_json.OpenObject();
        m_json.Add("format", jsonFormat);
        m_json.OpenArray("messages");
    }

    void Tell(const std::string& /*file*/, Source* /*source*/, const std::vector<Message>& messages) override {
        for (const Message& message : messages) {
            m_json.Add(JsonOf(message));
            ++(message.severity == Severity::Error ? m_errors : m_warnings);
        }
    }
    void End() override {
        m_json.Close();
        m_json.Add("errors", m_errors);
        m_json.Add("warnings", m_warnings);
        m_json.Close();
    }

private:
    JsonStream m_json{&WriteOutput};
    std::size_t m_errors = 0;
    std::size_t m_warnings = 0;
};

std::vector<Message> FindAll(Source& source, bool isOverride) {
    const CatalogClass type = source.Class();
    std::vector<Message> messages;
    const DocumentCheck::Kind kind = isOverride ? DocumentCheck::Kind::Override : DocumentCheck::Kind::Document;
    for (const Finding& finding : DocumentCheck::Run(source.Document(), type, kind)) {
        messages.push_back(MessageOf(finding, SeverityOf(finding.Code)));
    }
    if (!isOverride) {
        // What a load refuses is among the findings.
        const IssueLog issues;
        std::vector<Message> names = FindDanglingNames(source);
        std::move(names.begin(), names.end(), std::back_inserter(messages));
        std::stable_sort(messages.begin(), messages.end(), [](const Message& one, const Message& other) {
            return std::tie(one.place.Line, one.place.Column) < std::tie(other.place.Line, other.place.Column);
        });
    }
    return messages;
}

ExitCode CheckOne(const std::string& file, bool isOverride, Report& report) {
    std::unique_ptr<Source> source;
    try {
        source = std::make_unique<Source>(file);
        const std::vector<Message> messages = FindAll(*source, isOverride);
        report.Tell(file, source.get(), messages);
        return messages.empty() ? ExitCode::Done : ExitCode::AnswerIsNo;
    } catch (const InputFailure& failure) {
        report.Tell(file, source.get(), {failure.Told()});
        return failure.Code();
    }
}

ExitCode Check(const CheckOptions& options, ColorMode color) {
    if (std::count(options.files.begin(), options.files.end(), "-") > 1) {
        throw Failure(ExitCode::WrongUse, "lanedoc: error: standard input can be one document only");
    }
    std::unique_ptr<Report> report;
    if (options.format == "json") {
        report = std::make_unique<JsonReport>();
    } else {
        report = std::make_unique<TextReport>(options.mostMessages, StyleOfOutput(color));
    }
    ExitCode code = ExitCode::Done;
    for (const std::string& file : options.files) {
        code = std::max(code, CheckOne(file, options.isOverride, *report));
    }
    report->End();
    return code;
}

} // namespace

void AddCheckCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand(
        "check", "Tell what programs pass over or misread in documents, without loading them there");
    const auto options = std::make_shared<CheckOptions>();
    command->add_option("FILE", options->files, "The documents, \"-\" for standard input")->required();
    command->add_flag("--override", options->isOverride,
                      "They are overrides: check their control words, and do not ask for what the base holds");
    command->add_option("--format", options->format, "text (default) or json")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"text", "json"}).description(""));
    AddMaxErrorsOption(*command, options->mostMessages);
    command->footer(R"(Examples:
  lanedoc check StateProcessingRoot.xml
  lanedoc check --override *.coupons.xml
  lanedoc check CommConfig.xml --format json | jq -r '.messages[] | select(.severity == "error") | .text'

It finds unknown elements and attributes, stray text, values that stand twice, keys that are missing or doubled, words
outside a vocabulary, texts that are no number or truth value, and in documents names that point to nothing. Messages
go to standard output, as file:line:column: severity: text [code]; lanedoc help codes explains the codes. The JSON is
described in Docs/JsonFormat.md and always holds all messages.

Exit codes: 0 nothing found, 1 something found, 2 wrong use, 3 bad input (the other files are checked all the same),
5 output failed)");
    command->callback(
        [options, &request] { request.run = [options, &request] { return Check(*options, request.color); }; });
}

} // namespace Lanedoc
