#include "IssueLog.h"

#include "Output.h"
#include "Source.h"

namespace Lanedoc {

IssueLog::IssueLog() {
    const auto keep = [](void* context, const OverrideIssue& issue) {
        static_cast<std::vector<OverrideIssue>*>(context)->push_back(issue);
    };
    TypedDataContainer::SetOverrideIssueHandler(keep, &m_issues);
}

IssueLog::~IssueLog() {
    TypedDataContainer::SetOverrideIssueHandler(nullptr, nullptr);
}

void IssueLog::Report(const std::string& severity, const std::string& documentName) {
    for (const OverrideIssue& issue : m_issues) {
        const std::string text = "in " + issue.ContainerName + ": " + issue.ErrorText;
        if (issue.Line == 0) {
            Say(WithSeverity(text, severity, documentName));
            continue;
        }
        const std::string place =
            issue.File + ":" + std::to_string(issue.Line) + ":" + std::to_string(issue.Column) + ": ";
        Say(WithSeverity(place + text, severity, documentName));
    }
    Forget();
}

} // namespace Lanedoc
