#include "IssueLog.h"

#include <utility>

namespace Lanedoc {

namespace {

Message MessageOfIssue(const OverrideIssue& issue, Severity severity, const std::string& documentName) {
    Message message;
    message.severity = severity;
    message.code = FindingName(FindingCode::OtherIssue);
    message.place.File = documentName;
    message.place.Line = issue.Line;
    message.place.Column = issue.Column;
    message.text = "in " + issue.ContainerName + ": " + issue.ErrorText;
    return message;
}

} // namespace

IssueLog::IssueLog() {
    const auto keep = [](void* context, const OverrideIssue& issue) {
        static_cast<std::vector<OverrideIssue>*>(context)->push_back(issue);
    };
    TypedDataContainer::SetOverrideIssueHandler(keep, &m_issues);
}

IssueLog::~IssueLog() {
    TypedDataContainer::SetOverrideIssueHandler(nullptr, nullptr);
}

std::vector<Message> IssueLog::TakeMessages(Severity severity, const std::string& documentName) {
    std::vector<Message> messages;
    for (const OverrideIssue& issue : std::exchange(m_issues, {})) {
        messages.push_back(MessageOfIssue(issue, severity, documentName));
    }
    return messages;
}

} // namespace Lanedoc
