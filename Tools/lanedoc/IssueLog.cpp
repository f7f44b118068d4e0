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

std::vector<std::string> IssueLog::Texts() const {
    std::vector<std::string> texts;
    for (const OverrideIssue& issue : m_issues) {
        const std::string place =
            issue.Line == 0 ? "" : std::to_string(issue.Line) + ":" + std::to_string(issue.Column) + ": ";
        texts.push_back(place + issue.ErrorText);
    }
    return texts;
}

void IssueLog::Report(const std::string& severity, const std::string& documentName, std::size_t most) {
    std::size_t told = 0;
    for (const OverrideIssue& issue : m_issues) {
        if (most > 0 && told == most) {
            Say(Printable(documentName + ": " + severity + ": and " + std::to_string(m_issues.size() - told) +
                          " more"));
            break;
        }
        ++told;
        const std::string text = "in " + issue.ContainerName + ": " + issue.ErrorText;
        const std::string place =
            issue.Line == 0 ? ""
                            : issue.File + ":" + std::to_string(issue.Line) + ":" + std::to_string(issue.Column) + ": ";
        Say(WithSeverity(place + text, severity, documentName));
    }
    Forget();
}

} // namespace Lanedoc
