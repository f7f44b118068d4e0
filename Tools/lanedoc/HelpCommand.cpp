#include <algorithm>
#include <memory>

#include "Commands.h"
#include "MessageCodes.h"
#include "NearestName.h"

namespace Lanedoc {

namespace {

constexpr const char* codesTopic = "codes";

std::string CodesHelp() {
    const std::vector<MessageCode> codes = AllMessageCodes();
    std::size_t width = 0;
    for (const MessageCode& code : codes) {
        width = std::max(width, code.name.size());
    }
    const auto padded = [](std::string_view text, std::size_t columns) {
        return std::string(text) + std::string(columns + 2 - text.size(), ' ');
    };
    const std::size_t severityWidth = SeverityName(Severity::Warning).size();
    std::string text;
    for (const MessageCode& code : codes) {
        text += padded(code.name, width) + padded(SeverityName(code.severity), severityWidth);
        text.append(code.explanation).append("\n");
    }
    return text;
}

std::string HelpOn(const std::string& topic, const CLI::App& tool) {
    if (topic.empty()) {
        // Its own help function would give that of the command that is being run.
        return tool.get_formatter()->make_help(&tool, tool.get_name(), CLI::AppFormatMode::Normal);
    }
    if (topic == codesTopic) {
        return CodesHelp();
    }
    std::vector<std::string> topics{codesTopic};
    for (const CLI::App* const command : tool.get_subcommands({})) {
        if (command->get_name() == topic) {
            return command->help(tool.get_name());
        }
        topics.push_back(command->get_name());
    }
    const std::vector<std::string> nearest = NearestNames(topic, topics);
    throw Failure(ExitCode::WrongUse,
                  "lanedoc: error: there is no help on " + Quoted(topic) + "; " +
                      (nearest.empty() ? "expected one of " + JoinNames(topics, topics.size()) : DidYouMean(nearest)));
}

} // namespace

void AddHelpCommand(CLI::App& tool, Request& request) {
    CLI::App* const command = tool.add_subcommand("help", "Print the help of a command, or explain the message codes");
    const auto topic = std::make_shared<std::string>();
    command->add_option("TOPIC", *topic, "A command, or \"codes\" for a list of all message codes");
    command->footer(R"(Examples:
  lanedoc help merge
  lanedoc help codes | grep key

Exit codes: 0 printed, 2 there is no such command, 5 output failed)");
    command->callback([topic, &tool, &request] {
        request.run = [topic, &tool] {
            WriteOutput(HelpOn(*topic, tool));
            return ExitCode::Done;
        };
    });
}

} // namespace Lanedoc
